#pragma once

#include <random>

// Uniform numbers in [0, 1), reseeded from the clock by whoever begins a random walk.
class Random {
 public:
  void Reseed();
  double Next();
  // An integer in 0..count-1.
  int Below(int count) { return static_cast<int>(Next() * count); }

 private:
  std::mt19937_64 engine_;
};
