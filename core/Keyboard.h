#pragma once

// The keys that the board knows, by their Windows virtual-key codes.
namespace KeyCode {

inline constexpr int Backspace = 8;
inline constexpr int Clear = 12;
inline constexpr int Enter = 13;
inline constexpr int Space = 32;
inline constexpr int PageUp = 33;
inline constexpr int PageDown = 34;
inline constexpr int End = 35;
inline constexpr int Home = 36;
inline constexpr int Left = 37;
inline constexpr int Up = 38;
inline constexpr int Right = 39;
inline constexpr int Down = 40;
// The keypad's digits; the digits of the main keyboard have other codes.
inline constexpr int Numeric0 = 96;
inline constexpr int Numeric2 = 98;
inline constexpr int Numeric4 = 100;
inline constexpr int Numeric5 = 101;
inline constexpr int Numeric6 = 102;
inline constexpr int Numeric8 = 104;

}  // namespace KeyCode
