#pragma once

#include <QByteArray>
#include <QSize>

// A picture as its file holds it, without what files carry beside it: texts, profiles and previews
// are left out, since a small file may hold a flood of them and nothing of it is seen.
struct EncodedPicture {
  QByteArray format;  // as Qt calls it; empty for what the program does not read
  QByteArray bytes;
  int bytesPerPixel = 4;  // that a decoder takes at the most, the picture itself included
  int passes = 1;         // that a decoder makes over all of its pixels at the most
  QSize canvas = {};      // that a decoder takes at least, whatever the picture on it measures
};

// The format is told by the content, and by the suffix (in small letters) where that says nothing.
EncodedPicture EncodedPictureIn(const QByteArray& file, const QByteArray& suffix);
