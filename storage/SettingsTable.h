#pragma once

#include <cstdint>
#include <limits>
#include <span>
#include <variant>
#include <vector>

#include <QString>

#include "storage/Settings.h"

enum class SettingKind {
  Text,           // any text
  NumberBoolean,  // true for every number but 0
  ExactBoolean,   // true for the text "1" only
  Number,         // an integer of the field's size
};

using SettingField =
    std::variant<QString Settings::*, bool Settings::*, std::int16_t Settings::*, int Settings::*,
                 FirstSquare Settings::*, Positioning Settings::*, Highlighting Settings::*>;

// Accepted numbers; any other becomes the default.
struct NumberRange {
  int lowest = std::numeric_limits<int>::min();
  int highest = std::numeric_limits<int>::max();
};

// When a setting is written: its place among all that are written on an occasion, from 1 on, or 0
// when it is not written then.
struct WritingPlaces {
  int exit = 0;
  int preferences = 0;
  int chessboard = 0;
  // A chessboard file without it leaves it as it is; in one with it "1" is the only other choice
  // than 0.
  bool mayMissInChessboards = false;
};

struct SettingRow {
  const char* section;
  const char* key;
  SettingKind kind;
  SettingField field;
  WritingPlaces written = {};
  NumberRange range = {};
};

// Every setting that Settings holds, in the order in which all are read.
std::span<const SettingRow> SettingsTable();

// The rows that are written on an occasion, in their order.
std::vector<const SettingRow*> RowsWritten(int WritingPlaces::*occasion);

// Gives the field what the text says; an empty text means the default.
void SetFromText(const SettingRow& row, const QString& text, const QString& programDirectory,
                 Settings& settings);

// The field as files keep it.
QString TextOf(const SettingRow& row, const Settings& settings);
