#pragma once

#include <QIcon>

enum class HelpIcon { Back, Forward, Home, ZoomIn, ZoomOut };

// Drawn in the colour of the desktop's button texts: not every desktop brings icons along.
QIcon IconOf(HelpIcon icon);
