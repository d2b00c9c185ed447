#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <string>

// Writes down what a random player does. When something is wrong, also when the program is killed
// by a signal or by a sanitizer, or hangs, it tells what was done last and how to repeat it.
class Journal {
 public:
  // There is one journal at a time. shownLive: print every action at once.
  explicit Journal(bool shownLive);
  ~Journal();
  Journal(const Journal&) = delete;
  Journal& operator=(const Journal&) = delete;

  void BeginSeed(std::uint64_t seed);
  // Counts one action.
  void BeginAction();
  // What the action is.
  void Note(const std::string& what);
  // Where it took place; counted over all seeds.
  void CountAt(const std::string& place) { ++places_[place]; }
  const std::map<std::string, int>& Places() const { return places_; }
  int ActionsOfSeed() const { return actions_; }

  // Tells about it and ends the program.
  [[noreturn]] void Fail(const std::string& complaint);
  void Tell(const std::string& complaint) const;

 private:
  bool shownLive_;
  std::uint64_t seed_ = 0;
  int actions_ = 0;
  std::deque<std::string> last_;
  std::map<std::string, int> places_;
};
