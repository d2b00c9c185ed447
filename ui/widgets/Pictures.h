#pragma once

#include <QImage>
#include <QString>

inline constexpr int MaximumPictureSide = 4096;

// Loads a picture; a bare or relative name is looked up in the program directory. Its format is
// told by its content first, then by its extension. A null image where there is no readable picture
// of at most MaximumPictureSide pixels a side.
QImage LoadPicture(const QString& name, const QString& programDirectory);
