#pragma once

#include <chrono>
#include <cstdint>

// A program that links these two functions runs in a time of its own: it passes only where the
// event loop waits, and then at once, so that hours take seconds and every run is the same. A turn
// of the event loop that need not wait costs one millisecond.
//
// Only the main thread moves the time.
namespace VirtualTime {

std::int64_t Milliseconds();

// The time for a loop that looks at it again and again without a turn of the event loop. A look
// costs ten microseconds.
std::chrono::nanoseconds Look();

// Never back.
void JumpTo(std::int64_t milliseconds);

// How often the event loop has gone to sleep: what a real program would wake up from.
std::int64_t Waits();

// To be called before the application is made: chooses the event loop that this works with.
void Begin();

}  // namespace VirtualTime
