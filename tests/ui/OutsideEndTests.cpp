#include <csignal>
#include <cstdlib>
#include <unistd.h>

#include <gtest/gtest.h>

#include "ui/application/OutsideEnd.h"

namespace {

constexpr int GoesOn = 7;
constexpr int PauseMicroseconds = 20000;

}  // namespace

TEST(OutsideEndDeathTest, IsNotBroughtForwardByARepeatedSignal) {
  EXPECT_EXIT(
      {
        const OutsideEnd outsideEnd([] {});
        for (int i = 0; i < 100; ++i) std::raise(SIGHUP);
        std::_Exit(GoesOn);
      },
      testing::ExitedWithCode(GoesOn), "");
}

// No event runs in it any more.
TEST(OutsideEndDeathTest, ComesBySignalsToAProgramThatIsStuck) {
  EXPECT_EXIT(
      {
        const OutsideEnd outsideEnd([] {});
        while (true) {
          std::raise(SIGTERM);
          usleep(PauseMicroseconds);
        }
      },
      testing::KilledBySignal(SIGTERM), "");
}
