#pragma once

#include "ui/widgets/pictures/EncodedPicture.h"

inline constexpr QByteArrayView PngSignature("\x89PNG\r\n\x1A\n");

// The picture in a PNG file.
EncodedPicture PngIn(const QByteArray& file);
