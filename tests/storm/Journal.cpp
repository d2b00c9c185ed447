#include "tests/storm/Journal.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sanitizer/common_interface_defs.h>
#include <unistd.h>

// Only there when the program runs under a sanitizer.
#pragma weak __sanitizer_set_death_callback

namespace {

constexpr std::size_t ActionsKept = 40;
constexpr unsigned SecondsBeforeHang = 60;

Journal* current = nullptr;

void TellOfDeath() {
  if (current != nullptr) current->Tell("the program died");
  current = nullptr;
}

void TellOfSignal(int signal) {
  if (current != nullptr) current->Tell("signal " + std::to_string(signal));
  current = nullptr;
  std::_Exit(1);
}

}  // namespace

Journal::Journal(bool shownLive) : shownLive_(shownLive) {
  current = this;
  std::signal(SIGALRM, TellOfSignal);
  std::signal(SIGABRT, TellOfSignal);
  if (__sanitizer_set_death_callback != nullptr) {
    __sanitizer_set_death_callback(TellOfDeath);
  } else {
    std::signal(SIGSEGV, TellOfSignal);
    std::signal(SIGFPE, TellOfSignal);
  }
}

Journal::~Journal() {
  alarm(0);
  current = nullptr;
}

void Journal::BeginSeed(std::uint64_t seed) {
  seed_ = seed;
  actions_ = 0;
  last_.clear();
}

void Journal::BeginAction() {
  ++actions_;
  alarm(SecondsBeforeHang);
}

void Journal::Note(const std::string& what) {
  last_.push_back(std::to_string(actions_) + "  " + what);
  if (last_.size() > ActionsKept) last_.pop_front();
  if (shownLive_) std::printf("%s\n", last_.back().c_str());
}

void Journal::Tell(const std::string& complaint) const {
  std::fflush(stdout);
  std::fprintf(stderr, "\nSeed %llu, action %d: %s\nThe last actions:\n",
               static_cast<unsigned long long>(seed_), actions_, complaint.c_str());
  for (const std::string& action : last_) std::fprintf(stderr, "  %s\n", action.c_str());
  std::fprintf(stderr, "To repeat it: storm --seeds %llu --actions %d\n",
               static_cast<unsigned long long>(seed_), actions_);
  std::fflush(stderr);
}

void Journal::Fail(const std::string& complaint) {
  Tell(complaint);
  current = nullptr;
  std::_Exit(1);
}
