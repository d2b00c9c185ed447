#pragma once

#include <cstdint>

#include <QStringView>

// The leading number of a text: blanks are skipped, then a sign, digits and (LenientNumber only) a
// fraction are taken, up to the first character that cannot go on with the number. 0 when there is
// none; a number beyond the type becomes the type's last one.

double LenientNumber(QStringView text);
std::int64_t LenientInt64(QStringView text);
std::int32_t LenientInt32(QStringView text);
std::int16_t LenientInt16(QStringView text);
