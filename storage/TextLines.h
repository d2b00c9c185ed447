#pragma once

#include <QByteArrayView>

// Where one line of a text lies: its content is [begin, end), its line end (CR LF, LF, CR, or none
// at the end of the text) is [end, next).
struct TextLine {
  qsizetype begin;
  qsizetype end;
  qsizetype next;
};

// The line that begins at the given place of the text, which is not the text's end.
inline TextLine LineAt(QByteArrayView text, qsizetype begin) {
  qsizetype end = begin;
  while (end < text.size() && text[end] != '\r' && text[end] != '\n') ++end;
  qsizetype next = end;
  if (next < text.size() && text[next] == '\r') ++next;
  if (next < text.size() && text[next] == '\n') ++next;
  return {begin, end, next};
}
