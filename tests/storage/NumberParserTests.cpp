#include <limits>

#include <QString>
#include <gtest/gtest.h>

#include "storage/NumberParser.h"

TEST(LenientNumber, IsTheLeadingNumberOfAText) {
  EXPECT_EQ(LenientNumber(u"12 apples"), 12.0);
  EXPECT_EQ(LenientNumber(u"  -7x"), -7.0);
  EXPECT_EQ(LenientNumber(u"+3"), 3.0);
  EXPECT_EQ(LenientNumber(u"\t 9"), 9.0);
}

TEST(LenientNumber, IsZeroWithoutANumber) {
  for (const QString text : {"", " ", "-", ".", "yes", "--1", "- 1", "x1"}) {
    EXPECT_EQ(LenientNumber(text), 0.0) << text.toStdString();
    EXPECT_EQ(LenientInt32(text), 0) << text.toStdString();
  }
}

TEST(LenientNumber, TakesAFractionAfterAPoint) {
  EXPECT_EQ(LenientNumber(u"0.5"), 0.5);
  EXPECT_EQ(LenientNumber(u".25"), 0.25);
  EXPECT_EQ(LenientNumber(u"-1.5.5"), -1.5);
  EXPECT_EQ(LenientNumber(u"3."), 3.0);
  EXPECT_EQ(LenientNumber(u"3,5"), 3.0);
}

TEST(LenientNumber, KnowsNoExponent) {
  EXPECT_EQ(LenientNumber(u"2e9"), 2.0);
  EXPECT_EQ(LenientInt32(u"2e9"), 2);
}

TEST(LenientNumber, SaturatesInsteadOfOverflowing) {
  const QString digits(400, '9');
  EXPECT_EQ(LenientNumber(digits), std::numeric_limits<double>::max());
  EXPECT_EQ(LenientInt64(digits), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(LenientInt32(digits), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(LenientInt32("-" + digits), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(LenientInt16(digits), std::numeric_limits<std::int16_t>::max());
  EXPECT_EQ(LenientInt16("-" + digits), std::numeric_limits<std::int16_t>::min());
}

TEST(LenientNumber, TakesAFractionTooSmallToMatterAsNothing) {
  EXPECT_EQ(LenientNumber("1." + QString(400, '0') + "1"), 1.0);
}

TEST(LenientInteger, DropsTheFraction) {
  EXPECT_EQ(LenientInt32(u"5.9"), 5);
  EXPECT_EQ(LenientInt32(u"-5.9"), -5);
}

TEST(LenientInteger, KeepsTheLimitsOfItsType) {
  EXPECT_EQ(LenientInt32(u"-2147483648"), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(LenientInt32(u"2147483647"), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(LenientInt16(u"32767"), 32767);
  EXPECT_EQ(LenientInt16(u"32768"), 32767);
}

TEST(LenientInteger, TakesOnlyTheDigitsFromZeroToNine) {
  EXPECT_EQ(LenientInt32(u"\u0661\u0662"), 0);
}
