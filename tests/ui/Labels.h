#pragma once

#include <QString>

class QWidget;

// What a label of a window reads, whether or not its value changes quickly; fails the test when
// there is none of this name.
QString TextOf(const QWidget& window, const char* label);
