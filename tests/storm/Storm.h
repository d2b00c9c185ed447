#pragma once

#include <cstdint>

#include <QObject>

#include "tests/storm/Chance.h"
#include "tests/storm/Invariants.h"
#include "tests/storm/Journal.h"
#include "tests/storm/ProgramFolder.h"

class frmGame;
class QWidget;

// A random player who starts the program again and again in one program directory, and acts on
// whatever window has the input, also while the program is at work. After each action everything is
// inspected.
class Storm {
 public:
  Storm(std::uint64_t seed, int actions, Journal& journal);

  void Run();

 private:
  void RunProgram();
  QString CommandLine();
  void ActLater(frmGame& window);
  int Pause();
  void Act(frmGame& window);
  void ActOn(frmGame& window);
  void ActWhileBusy(frmGame& window);
  void Activate(QWidget& window);
  void CountAt(const QWidget& window);
  void Inspect(frmGame& window);
  void InspectEnd();
  void FailOn(const std::string& complaint);

  Chance chance_;
  int actions_;
  Journal& journal_;
  ProgramFolder folder_;
  Inspector inspector_;
  QObject clockOfPlayer_;
  bool started_ = false;  // the program has started up
  int depth_ = 0;         // actions under way, one within the other
  int actionsOfProgram_ = 0;
  int patience_ = 0;  // so many actions before the player wants to leave
};
