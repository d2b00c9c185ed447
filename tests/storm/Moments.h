#pragma once

#include <vector>

#include "tests/storm/Stage.h"

enum class MomentKind {
  Idle,    // the main window has the input
  Menu,    // a menu is open over the main window, nothing else
  Work,    // the program is at work by itself
  Dialog,  // a dialog, or something above one, has the input
};

// A moment in the life of the program, and how to get there.
struct MomentRow {
  const char* name;
  MomentKind kind;
  // Calls stage.Moment() when the moment has come; returns when what was begun is over.
  void (*reach)(Stage& stage);
  // What opens when the player then only closes everything, questions answered with No.
  QStringList leadsTo = {};
  const char* settings = "";
};

// The idle moments come first.
const std::vector<MomentRow>& Moments();

// Its two parts.
const std::vector<MomentRow>& GameMoments();
const std::vector<MomentRow>& DialogMoments();
