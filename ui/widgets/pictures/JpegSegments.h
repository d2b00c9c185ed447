#pragma once

#include "ui/widgets/pictures/EncodedPicture.h"

// The picture in a JPEG file. What stands before its first scan is written anew, so that a decoder
// finds there what was counted here.
EncodedPicture JpegIn(const QByteArray& file);
