#pragma once

class QKeyEvent;

// The Windows virtual-key code of a key that the board knows, 0 for any other. Digits count only
// from the keypad.
int VirtualKeyCode(const QKeyEvent& event);

// The keys that act as a click; held down they do not repeat it.
bool IsClickKey(int keyCode);
