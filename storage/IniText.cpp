#include "storage/IniText.h"

#include <algorithm>
#include <optional>

#include "storage/EightBitText.h"

namespace {

constexpr qsizetype LongestValue = 255;
constexpr QByteArrayView ByteOrderMark = "\xEF\xBB\xBF";

bool IsBlank(char byte) {
  return byte == ' ' || byte == '\t' || byte == '\v' || byte == '\f';
}

QByteArrayView Trimmed(QByteArrayView bytes) {
  while (!bytes.isEmpty() && IsBlank(bytes.front())) bytes = bytes.sliced(1);
  while (!bytes.isEmpty() && IsBlank(bytes.back())) bytes.chop(1);
  return bytes;
}

// What stands between the brackets, if the line is the head of a section.
std::optional<QByteArrayView> SectionOf(QByteArrayView line) {
  if (!line.startsWith('[')) return std::nullopt;
  const qsizetype close = line.indexOf(']');
  if (close < 0) return std::nullopt;
  return line.sliced(1, close - 1);
}

std::optional<QByteArrayView> KeyOf(QByteArrayView line) {
  const qsizetype equals = line.indexOf('=');
  if (equals < 0 || line.startsWith(';')) return std::nullopt;
  return line.first(equals);
}

bool IsAscii(QByteArrayView bytes) {
  return std::all_of(bytes.begin(), bytes.end(),
                     [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

// Most names are plain, and need not be made into a text to be compared.
bool IsName(QByteArrayView found, const QString& wanted) {
  const Qt::CaseSensitivity anyCase = Qt::CaseInsensitive;
  return IsAscii(found) ? QLatin1String(found).compare(wanted, anyCase) == 0
                        : TextFromBytes(found).compare(wanted, anyCase) == 0;
}

IniLine LineFrom(QByteArrayView content, const TextLine& place) {
  const auto section = SectionOf(content);
  const auto key = section ? std::nullopt : KeyOf(content);
  const QByteArrayView name = section ? *section : key.value_or(QByteArrayView());
  return {place, section.has_value(), key.has_value(), Trimmed(name)};
}

// The lines that are not blank.
std::vector<IniLine> LinesOf(const QByteArray& text) {
  std::vector<IniLine> lines;
  TextLine line{0, 0, BeginOf(text)};
  while (line.next < text.size()) {
    line = LineAt(text, line.next);
    const auto content = Trimmed(QByteArrayView(text).sliced(line.begin, line.end - line.begin));
    if (!content.isEmpty()) lines.push_back(LineFrom(content, line));
  }
  return lines;
}

// Where an entry stands in the text, or where it belongs: a whole line without its line end, or an
// empty place at the beginning of a line.
struct IniPlace {
  bool hasSection = false;
  bool hasKey = false;
  qsizetype begin = 0;
  qsizetype end = 0;
};

IniPlace FindPlace(const std::vector<IniLine>& lines, qsizetype textEnd, const QString& section,
                   const QString& key) {
  IniPlace place;
  for (const IniLine& line : lines) {
    if (line.isHead) {
      if (place.hasSection) return place;
      place.hasSection = IsName(line.name, section);
    } else if (place.hasSection && line.isEntry && IsName(line.name, key)) {
      return {true, true, line.place.begin, line.place.end};
    }
    if (place.hasSection) place.begin = place.end = line.place.next;
  }
  if (!place.hasSection) place.begin = place.end = textEnd;
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
  const IniPlace place = FindPlace(LinesOf(text), text.size(), entry.section, entry.key);
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

qsizetype BeginOf(QByteArrayView text) {
  return text.startsWith(ByteOrderMark) ? ByteOrderMark.size() : 0;
}

TextLine LineAt(QByteArrayView text, qsizetype begin) {
  qsizetype end = begin;
  while (end < text.size() && text[end] != '\r' && text[end] != '\n') ++end;
  qsizetype next = end;
  if (next < text.size() && text[next] == '\r') ++next;
  if (next < text.size() && text[next] == '\n') ++next;
  return {begin, end, next};
}

IniValues::IniValues(const QByteArray& text) : text_(text), lines_(LinesOf(text)) {}

QString IniValues::Value(const QString& section, const QString& key) const {
  const IniPlace place = FindPlace(lines_, text_.size(), section, key);
  if (!place.hasKey) return {};
  const auto line = QByteArrayView(text_).sliced(place.begin, place.end - place.begin);
  const auto value = WithoutQuotes(Trimmed(line.sliced(line.indexOf('=') + 1)));
  return FirstCharacters(TextFromBytes(value), LongestValue);
}

QByteArray ReplaceIniValues(QByteArray text, const std::vector<IniEntry>& entries) {
  const QByteArray lineEnd = PrevailingLineEnd(text);
  for (const IniEntry& entry : entries) PutIn(text, entry, lineEnd);
  return text;
}
