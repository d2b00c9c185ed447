#include "core/Random.h"

#include <chrono>

void Random::Reseed() {
  const auto now = std::chrono::high_resolution_clock::now().time_since_epoch().count();
  engine_.seed(static_cast<std::mt19937_64::result_type>(now));
}

double Random::Next() {
  return std::uniform_real_distribution<double>{0.0, 1.0}(engine_);
}
