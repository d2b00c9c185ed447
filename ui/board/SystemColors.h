#pragma once

#include <QColor>
#include <QPalette>

#include "storage/BoardLook.h"

inline constexpr int SystemColorCount = 25;

// The colour on the screen of a stored colour: a system colour follows the desktop's palette where
// the palette has its role, and is a fixed classic colour elsewhere.
QColor ResolveColor(Color color, const QPalette& palette);

// The stored form 0x00BBGGRR of a colour on the screen.
Color StoredColor(const QColor& color);
