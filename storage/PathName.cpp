#include "storage/PathName.h"

#include <algorithm>
#include <array>
#include <climits>
#include <unistd.h>

#include <QStringDecoder>

namespace {

constexpr int LongestChainOfLinks = 40;  // as the system has it
constexpr char16_t FirstEscape = 0xDC80;
constexpr char16_t LastEscape = 0xDCFF;

// How many bytes a character has that begins so.
qsizetype LengthFrom(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  if (code < 0x80) return 1;
  return code < 0xE0 ? 2 : code < 0xF0 ? 3 : 4;
}

QString EscapedByte(char byte) {
  return QChar(static_cast<char16_t>(0xDC00 + static_cast<unsigned char>(byte)));
}

FilePlace PlaceOf(const QByteArray& path) {
  const qsizetype end = path.lastIndexOf('/');
  if (end < 0) return {".", path};
  return {path.first(std::max<qsizetype>(end, 1)), path.sliced(end + 1)};
}

}  // namespace

QByteArray BytesOfPath(const QString& pathName) {
  QByteArray bytes;
  for (qsizetype begin = 0; begin < pathName.size();) {
    const char16_t code = pathName[begin].unicode();
    if (code >= FirstEscape && code <= LastEscape) {
      bytes += static_cast<char>(code - 0xDC00);
      ++begin;
      continue;
    }
    const qsizetype length = pathName[begin].isHighSurrogate() ? 2 : 1;
    bytes += pathName.mid(begin, length).toUtf8();
    begin += length;
  }
  return bytes;
}

QString PathFromBytes(const QByteArray& bytes) {
  QString path;
  for (qsizetype begin = 0; begin < bytes.size();) {
    const QByteArray character = bytes.mid(begin, LengthFrom(bytes[begin]));
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(character);
    path += decoder.hasError() ? EscapedByte(bytes[begin]) : text;
    begin += decoder.hasError() ? 1 : character.size();
  }
  return path;
}

FilePlace PlaceBehindLinks(const QString& pathName) {
  QByteArray path = BytesOfPath(pathName);
  std::array<char, PATH_MAX> target{};
  for (int links = 0; links < LongestChainOfLinks; ++links) {
    const ssize_t length = readlink(path.constData(), target.data(), target.size());
    if (length < 0) break;
    const QByteArray text(target.data(), length);
    path = text.startsWith('/') ? text : PlaceOf(path).folder + '/' + text;
  }
  FilePlace place = PlaceOf(path);
  place.isLinked = path != BytesOfPath(pathName);
  return place;
}

bool IsNoPath(const QString& pathName) {
  return pathName.isEmpty() || pathName.contains(QChar::Null);
}
