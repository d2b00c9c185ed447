#pragma once

#include <cerrno>
#include <unistd.h>
#include <utility>

// What the sources that talk to the system share. What fails leaves its reason in errno.

// Again as long as nothing but a signal came in between.
template <typename Call>
auto Persist(const Call& call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

// An open file or folder, closed with its owner.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() {
    const int reason = errno;
    if (IsOpen()) close(number_);
    errno = reason;
  }

  bool IsOpen() const { return number_ >= 0; }
  int Number() const { return number_; }

 private:
  int number_;
};
