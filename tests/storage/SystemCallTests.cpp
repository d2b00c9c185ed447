#include <gtest/gtest.h>

#include "storage/SystemCalls.h"

namespace {

// A call that fails so many times for one reason before it succeeds.
struct FailingCall {
  int failures;
  int reason;
  int calls = 0;

  int operator()() {
    ++calls;
    if (calls > failures) return 7;
    errno = reason;
    return -1;
  }
};

}  // namespace

TEST(ACallOfTheSystem, IsRepeatedWhenSignalsInterruptIt) {
  FailingCall call{.failures = 3, .reason = EINTR};
  EXPECT_EQ(Persist([&] { return call(); }), 7);
  EXPECT_EQ(call.calls, 4);
}

TEST(ACallOfTheSystem, IsNotRepeatedWhenItFails) {
  FailingCall call{.failures = 3, .reason = EIO};
  EXPECT_EQ(Persist([&] { return call(); }), -1);
  EXPECT_EQ(call.calls, 1);
}

TEST(ACallOfTheSystem, IsNotRepeatedWhenItSucceeds) {
  FailingCall call{.failures = 0, .reason = EINTR};
  errno = EINTR;
  EXPECT_EQ(Persist([&] { return call(); }), 7);
  EXPECT_EQ(call.calls, 1);
}
