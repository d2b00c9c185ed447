#pragma once

#include <functional>

#include <QString>

class ScrollBar;

// Has a screen reader hear the bar's name and its value in words, whenever it is asked where it is.
// At the bar itself it would say the bare number, and each other one.
void LeadReadersTo(ScrollBar& bar, const std::function<QString()>& value);
