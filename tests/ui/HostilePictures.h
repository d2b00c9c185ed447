#pragma once

#include <QByteArray>
#include <QSize>

// Pictures that small files make costly, each as the bytes of its file.

// Grey, one component. Every scan after the first goes over all pixels once more and takes some
// fifty bytes.
QByteArray ProgressiveJpeg(const QSize& size, int scans);
// Eight by eight pixels; the comments are there beside the picture.
QByteArray JpegWithComments(int comments);
// A plain picture of eight by eight pixels and so many texts of a megabyte, each in a kilobyte.
QByteArray PngWithTexts(int texts);
// With one pixel in the corner; the rest of the screen is empty.
QByteArray EmptyGif(const QSize& screen);
// Eight by eight pixels, after which the codes do not end: each stands for thousands of pixels.
QByteArray EndlessGif(int kilobytes);
// A whole file of another kind in an icon.
QByteArray IconAround(const QByteArray& picture);
