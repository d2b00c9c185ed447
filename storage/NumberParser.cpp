#include "storage/NumberParser.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string>

namespace {

bool IsDigit(QChar character) {
  return character >= u'0' && character <= u'9';
}

struct LeadingNumber {
  bool negative = false;
  std::string digits = {};
  std::string fraction = {};
};

QStringView SkipBlanks(QStringView text) {
  while (!text.isEmpty() && (text.front() == u' ' || text.front() == u'\t')) text = text.sliced(1);
  return text;
}

std::string TakeDigits(QStringView& text) {
  std::string digits;
  while (!text.isEmpty() && IsDigit(text.front())) {
    digits += text.front().toLatin1();
    text = text.sliced(1);
  }
  return digits;
}

LeadingNumber Scan(QStringView text) {
  LeadingNumber number;
  text = SkipBlanks(text);
  if (!text.isEmpty() && (text.front() == u'-' || text.front() == u'+')) {
    number.negative = text.front() == u'-';
    text = text.sliced(1);
  }
  number.digits = TakeDigits(text);
  if (!text.isEmpty() && text.front() == u'.') {
    text = text.sliced(1);
    number.fraction = TakeDigits(text);
  }
  return number;
}

template <typename Number>
Number Convert(const std::string& digits) {
  Number value = 0;
  const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return result.ec == std::errc::result_out_of_range ? std::numeric_limits<Number>::max() : value;
}

template <typename Integer>
Integer Saturated(std::int64_t value) {
  using Limits = std::numeric_limits<Integer>;
  return static_cast<Integer>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

// More digits than a double tells apart; a longer fraction could only underflow.
constexpr std::size_t UsefulFractionDigits = 20;

}  // namespace

double LenientNumber(QStringView text) {
  const LeadingNumber number = Scan(text);
  const double size = Convert<double>("0" + number.digits + "." +
                                      number.fraction.substr(0, UsefulFractionDigits) + "0");
  return number.negative ? -size : size;
}

std::int64_t LenientInt64(QStringView text) {
  const LeadingNumber number = Scan(text);
  const auto size = Convert<std::int64_t>("0" + number.digits);
  return number.negative ? -size : size;
}

std::int32_t LenientInt32(QStringView text) {
  return Saturated<std::int32_t>(LenientInt64(text));
}

std::int16_t LenientInt16(QStringView text) {
  return Saturated<std::int16_t>(LenientInt64(text));
}
