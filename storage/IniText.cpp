#include "storage/IniText.h"

#include <optional>

#include "storage/EightBitText.h"
#include "storage/TextLines.h"

namespace {

constexpr qsizetype LongestValue = 255;
const QByteArray ByteOrderMark = "\xEF\xBB\xBF";

bool IsBlank(char byte) {
  return byte == ' ' || byte == '\t' || byte == '\v' || byte == '\f';
}

QByteArrayView Trimmed(QByteArrayView bytes) {
  while (!bytes.isEmpty() && IsBlank(bytes.front())) bytes = bytes.sliced(1);
  while (!bytes.isEmpty() && IsBlank(bytes.back())) bytes.chop(1);
  return bytes;
}

bool IsName(QByteArrayView bytes, const QString& name) {
  return TextFromBytes(Trimmed(bytes)).compare(name, Qt::CaseInsensitive) == 0;
}

// What stands between the brackets, if the line is the head of a section.
std::optional<QByteArrayView> SectionOf(QByteArrayView line) {
  if (!line.startsWith('[')) return std::nullopt;
  const qsizetype close = line.indexOf(']');
  if (close < 0) return std::nullopt;
  return line.sliced(1, close - 1);
}

bool HasKey(QByteArrayView line, const QString& key) {
  const qsizetype equals = line.indexOf('=');
  return equals >= 0 && !line.startsWith(';') && IsName(line.first(equals), key);
}

// Where an entry stands in the text, or where it belongs: a whole line without its line end, or an
// empty place at the beginning of a line.
struct IniPlace {
  bool hasSection = false;
  bool hasKey = false;
  qsizetype begin = 0;
  qsizetype end = 0;
};

IniPlace FindPlace(const QByteArray& text, const QString& section, const QString& key) {
  IniPlace place;
  TextLine line{0, 0, text.startsWith(ByteOrderMark) ? ByteOrderMark.size() : 0};
  while (line.next < text.size()) {
    line = LineAt(text, line.next);
    const auto content = Trimmed(QByteArrayView(text).sliced(line.begin, line.end - line.begin));
    if (content.isEmpty()) continue;
    if (const auto name = SectionOf(content)) {
      if (place.hasSection) return place;
      place.hasSection = IsName(*name, section);
    } else if (place.hasSection && HasKey(content, key)) {
      return {true, true, line.begin, line.end};
    }
    if (place.hasSection) place.begin = place.end = line.next;
  }
  if (!place.hasSection) place.begin = place.end = text.size();
  return place;
}

bool IsQuoted(QByteArrayView value) {
  return value.size() >= 2 && value.front() == value.back() &&
         (value.front() == '"' || value.front() == '\'');
}

QByteArrayView WithoutQuotes(QByteArrayView value) {
  return IsQuoted(value) ? value.sliced(1, value.size() - 2) : value;
}

QString FirstCharacters(const QString& value, qsizetype count) {
  qsizetype end = 0;
  while (count > 0 && end < value.size()) {
    const bool isPair = value[end].isHighSurrogate() && end + 1 < value.size();
    end += isPair ? 2 : 1;
    --count;
  }
  return value.first(end);
}

bool WouldLoseItsEnds(QByteArrayView value) {
  return WithoutQuotes(Trimmed(value)).size() != value.size();
}

QByteArray OnOneLine(QString text) {
  text.replace("\r\n", " ").replace('\r', ' ').replace('\n', ' ');
  return text.toUtf8();
}

QByteArray EntryLine(const IniEntry& entry) {
  QByteArray value = OnOneLine(entry.value);
  if (WouldLoseItsEnds(value)) value = '"' + value + '"';
  return OnOneLine(entry.key) + '=' + value;
}

// The line end that most lines of the text have; CR LF for a text without lines.
QByteArray PrevailingLineEnd(const QByteArray& text) {
  const qsizetype pairs = text.count("\r\n");
  const qsizetype feeds = text.count('\n') - pairs;
  return feeds > pairs ? "\n" : "\r\n";
}

void PutIn(QByteArray& text, const IniEntry& entry, const QByteArray& lineEnd) {
  const IniPlace place = FindPlace(text, entry.section, entry.key);
  QByteArray line = EntryLine(entry);
  if (!place.hasKey) {
    line += lineEnd;
    if (!place.hasSection) line.prepend('[' + OnOneLine(entry.section) + ']' + lineEnd);
    const bool afterOpenLine =
        place.begin > 0 && text[place.begin - 1] != '\n' && text[place.begin - 1] != '\r';
    if (afterOpenLine && text != ByteOrderMark) line.prepend(lineEnd);
  }
  text.replace(place.begin, place.end - place.begin, line);
}

}  // namespace

QString FindIniValue(const QByteArray& text, const QString& section, const QString& key) {
  const IniPlace place = FindPlace(text, section, key);
  if (!place.hasKey) return {};
  const auto line = QByteArrayView(text).sliced(place.begin, place.end - place.begin);
  const auto value = WithoutQuotes(Trimmed(line.sliced(line.indexOf('=') + 1)));
  return FirstCharacters(TextFromBytes(value), LongestValue);
}

QByteArray ReplaceIniValues(QByteArray text, const std::vector<IniEntry>& entries) {
  const QByteArray lineEnd = PrevailingLineEnd(text);
  for (const IniEntry& entry : entries) PutIn(text, entry, lineEnd);
  return text;
}
