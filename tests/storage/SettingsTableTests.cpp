#include <set>

#include "storage/SettingsTable.h"
#include "tests/storage/TestFiles.h"

namespace {

// What a key gives for an empty or missing value, and for a text that is no number.
QString TextAfter(const SettingRow& row, const QString& text) {
  Settings settings;
  SetFromText(row, text, "/p/", settings);
  return TextOf(row, settings);
}

const QStringList HostileTexts = {QString(255, '9'),
                                  "-" + QString(254, '9'),
                                  QString(255, 'x'),
                                  "%s%n%1",
                                  "<b>bold</b>",
                                  "../../../etc/passwd",
                                  "\"",
                                  "[Settings]",
                                  "=;=",
                                  QString(QChar(0)),
                                  QString(QChar(0xD800)),
                                  "1e400",
                                  "-0",
                                  "0x7FFFFFFF",
                                  "nan",
                                  "inf"};

}  // namespace

class EverySetting : public FolderTest, public testing::WithParamInterface<SettingRow> {
 protected:
  QString LoadedFrom(const QByteArray& text) const {
    Settings settings;
    LoadSettings(IniValues(text), "/p/", settings);
    return TextOf(GetParam(), settings);
  }
  QByteArray Line(const QByteArray& value) const {
    return '[' + QByteArray(GetParam().section) + "]\n" + GetParam().key + '=' + value + '\n';
  }
};

TEST_P(EverySetting, IsItsDefaultWhenItIsMissingOrEmpty) {
  const QString byDefault = TextAfter(GetParam(), "");
  EXPECT_EQ(LoadedFrom(""), byDefault);
  EXPECT_EQ(LoadedFrom(Line("")), byDefault);
  EXPECT_EQ(LoadedFrom(Line("  \t ")), byDefault);
  EXPECT_EQ(LoadedFrom(Line("\"\"")), byDefault);
}

TEST_P(EverySetting, IsReadBackAsItWasWritten) {
  for (const QString value : {"1", "0"}) {
    const QString text = TextAfter(GetParam(), value);
    EXPECT_EQ(LoadedFrom(Line(text.toUtf8())), text);
  }
}

TEST_P(EverySetting, TakesAHostileTextForWhatItIs) {
  for (const QString& text : HostileTexts) {
    const QString stored = LoadedFrom(Line(text.toUtf8()));
    const QString again = LoadedFrom(Line(stored.toUtf8()));
    EXPECT_EQ(stored, again) << text.toStdString();
  }
}

TEST_P(EverySetting, StaysWithinItsRange) {
  const SettingRow& row = GetParam();
  if (row.kind != SettingKind::Number) return;
  for (const QString& text : HostileTexts) {
    const int number = TextAfter(row, text).toInt();
    EXPECT_GE(number, row.range.lowest) << text.toStdString();
    EXPECT_LE(number, row.range.highest) << text.toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Settings, EverySetting,
                         testing::ValuesIn(SettingsTable().begin(), SettingsTable().end()),
                         [](const auto& parameter) {
                           return QString(parameter.param.key).remove(' ').toStdString();
                         });

TEST(TheSettingsTable, IsInTheOrderOfReading) {
  QStringList keys;
  for (const SettingRow& row : SettingsTable()) keys += row.key;
  EXPECT_EQ(keys, QStringList({"Previous Directory",
                               "Preferences Previous Directory",
                               "Scores Image",
                               "About Image",
                               "Show Time",
                               "Show Score",
                               "Show Solve Warnings",
                               "Solve Refresh",
                               "Corner Distance",
                               "Starting Position",
                               "Starting X",
                               "Starting Y",
                               "Light Color",
                               "Dark Color",
                               "Visited Color",
                               "Knight Color",
                               "Light Image",
                               "Dark Image",
                               "Visited Image",
                               "Knight Image",
                               "Highlight Image",
                               "Chessboard Background Color",
                               "Chessboard Background Image",
                               "Use Images",
                               "Use Borders",
                               "Image Positioning",
                               "Highlight Color",
                               "Highlighting Method"}));
}

TEST(TheSettingsTable, HasEachKeyOnce) {
  std::set<std::string> keys;
  for (const SettingRow& row : SettingsTable()) EXPECT_TRUE(keys.insert(row.key).second) << row.key;
}
