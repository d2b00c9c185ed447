#pragma once

#include <cstdint>
#include <limits>
#include <span>
#include <variant>

#include <QString>

#include "storage/Settings.h"

enum class SettingKind {
  Text,           // any text
  NumberBoolean,  // true for every number but 0
  ExactBoolean,   // true for the text "1" only
  Number,         // an integer of the field's size; the default outside lowest..highest
};

using SettingField =
    std::variant<QString Settings::*, bool Settings::*, std::int16_t Settings::*, int Settings::*>;

struct SettingRow {
  const char* section;
  const char* key;
  SettingKind kind;
  SettingField field;
  int lowest = std::numeric_limits<int>::min();
  int highest = std::numeric_limits<int>::max();
};

// Every setting that Settings holds, in the order in which all are read.
std::span<const SettingRow> SettingsTable();

// The row of a key that the table has; no key is in two sections.
const SettingRow& SettingOf(const char* key);

// Gives the field what the text says; an empty text means the default.
void SetFromText(const SettingRow& row, const QString& text, const QString& programDirectory,
                 Settings& settings);

// The field as files keep it.
QString TextOf(const SettingRow& row, const Settings& settings);
