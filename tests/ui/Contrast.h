#pragma once

#include <QColor>

// How far two colours stand apart in brightness, from 1 (the same) to 21 (black and white): the
// measure of legibility, which holds in greyscale and for the colour-blind too.
double Contrast(const QColor& one, const QColor& other);
