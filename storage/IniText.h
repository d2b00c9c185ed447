#pragma once

#include <vector>

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

// Where one line of a text lies: its content is [begin, end), its line end (CR LF, LF, CR, or none
// at the end of the text) is [end, next).
struct TextLine {
  qsizetype begin;
  qsizetype end;
  qsizetype next;
};

// Where a text begins, after the byte order mark that some editors put there.
qsizetype BeginOf(QByteArrayView text);

// The line that begins at the given place of the text, which is not the text's end.
TextLine LineAt(QByteArrayView text, qsizetype begin);

// The dialect of all key/value files, over their bytes: "[section]" lines, "key=value" lines, ";"
// comments. Names are compared without case, and the first match wins, of sections as of keys.
// Bytes are UTF-8; a text that is not valid UTF-8 is read as Windows-1252.

struct IniEntry {
  QString section;
  QString key;
  QString value;
};

// A line that is not blank: the head of a section, an entry, or neither. The name, that of the
// section or the key, lies in the text.
struct IniLine {
  TextLine place;
  bool isHead;
  bool isEntry;
  QByteArrayView name;
};

// The values of a text, which is looked through once.
class IniValues {
 public:
  explicit IniValues(const QByteArray& text);

  // Without blanks around it and without one pair of quotes, at most 255 characters of it; empty
  // when there is none.
  QString Value(const QString& section, const QString& key) const;

 private:
  QByteArray text_;  // shared by every copy, so that the names in lines_ stay where they are
  std::vector<IniLine> lines_;
};

// The text with the entries put in, in their order. Every other line stays as it is, byte for byte.
// A value comes back from IniValues as it was given, except that a line break becomes a blank
// and what passes 255 characters is not read.
QByteArray ReplaceIniValues(QByteArray text, const std::vector<IniEntry>& entries);
