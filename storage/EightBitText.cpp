#include "storage/EightBitText.h"

#include <array>

#include <QStringDecoder>

namespace {

// Windows-1252 differs from Latin-1 in 0x80..0x9F only; its five free codes stand for themselves.
constexpr std::array<char16_t, 32> Windows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

QString FromWindows1252(QByteArrayView bytes) {
  QString text;
  text.reserve(bytes.size());
  for (const char byte : bytes) {
    const auto code = static_cast<unsigned char>(byte);
    text += code >= 0x80 && code <= 0x9F ? QChar(Windows1252[code - 0x80U]) : QChar(code);
  }
  return text;
}

}  // namespace

QString TextFromBytes(QByteArrayView bytes) {
  QStringDecoder decoder(QStringDecoder::Utf8,
                         QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
  QString text = decoder(bytes);
  return decoder.hasError() ? FromWindows1252(bytes) : text;
}
