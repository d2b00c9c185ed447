#include <QAbstractButton>
#include <QFile>
#include <QMenu>
#include <QProcess>
#include <QTest>

#include "tests/ui/HistoryDesk.h"

namespace {

// A desk whose print command is a script of the test.
class Printing : public HistoryDesk {
 protected:
  enum class Outcome { Page, Message };

  Printing() : path_(qgetenv("PATH")) { QCoreApplication::setApplicationVersion("1.0.0"); }
  ~Printing() override { qputenv("PATH", path_); }

  // Without a script there is no print command at all.
  void PrintBy(const QByteArray& script) {
    const QString folder = ProgramFile("commands");
    ASSERT_TRUE(QDir().mkpath(folder));
    if (!script.isEmpty()) {
      QFile command(folder + "/lp");
      ASSERT_TRUE(command.open(QIODevice::WriteOnly));
      command.write("#!/bin/sh\nPATH=" + path_ + "\ncd '" + folder.toUtf8() + "'\n" + script);
      command.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    qputenv("PATH", folder.toUtf8());
  }

  // Prints the moves of the game and waits for the end.
  void Print(Outcome expected) {
    Read("mnuViewHistory", [=, this](frmHistory& history, QListWidget&) {
      if (expected == Outcome::Message) ExpectAMessage();
      Child<QAction>(history, "mnuEditPrint").trigger();
      EXPECT_FALSE(Main(history).isEnabled());
      EXPECT_TRUE(QTest::qWaitFor([&] { return Main(history).isEnabled() && AllVisitsMade(); }));
    });
  }

  void ExpectAMessage() {
    Answer("Sorry...",
           "Your document was not printed due to the following error:\nPrinter error (482).",
           QMessageBox::Ok);
  }

  static constexpr const char* Keep = "echo \"$@\" > arguments\ncat > page.pdf\n";

 private:
  QByteArray path_;
};

}  // namespace

TEST_F(Printing, HandsThePrintCommandADocument) {
  PrintBy(Keep);
  OpenGame(3);
  Print(Outcome::Page);
  EXPECT_EQ(Contents("commands/arguments"), "-t Move List\n");
  EXPECT_TRUE(Contents("commands/page.pdf").startsWith("%PDF-"));
  EXPECT_TRUE(Contents("commands/page.pdf").trimmed().endsWith("%%EOF"));
}

TEST_F(Printing, SaysSorryWhenTheDocumentIsRefused) {
  PrintBy("exit 1\n");
  OpenGame(3);
  Print(Outcome::Message);
}

TEST_F(Printing, SaysSorryWhenThePrintCommandCrashes) {
  PrintBy("kill -9 $$\n");
  OpenGame(3);
  Print(Outcome::Message);
}

TEST_F(Printing, SaysSorryWhenThereIsNoPrintCommand) {
  PrintBy(QByteArray());
  OpenGame(3);
  Print(Outcome::Message);
}

TEST_F(Printing, SaysSorryWhenThereIsNoAnswer) {
  PrintBy("exec sleep 1000\n");
  OpenGame(3);
  Print(Outcome::Message);
}

TEST_F(Printing, CanBeTriedAgain) {
  PrintBy("[ -e tried ] && exec cat > page.pdf\ntouch tried\nexit 1\n");
  OpenGame(3);
  Print(Outcome::Message);
  Print(Outcome::Page);
  EXPECT_TRUE(Contents("commands/page.pdf").startsWith("%PDF-"));
}

TEST_F(Printing, IsFinishedWhenTheWindowIsClosedAtOnce) {
  PrintBy(Keep);
  OpenGame(3);
  Read("mnuViewHistory", [](frmHistory& history, QListWidget&) {
    Child<QAction>(history, "mnuEditPrint").trigger();
    history.cmdClose_Click();
    EXPECT_TRUE(history.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !history.isVisible(); }));
  });
  EXPECT_TRUE(Contents("commands/page.pdf").trimmed().endsWith("%%EOF"));
}

TEST_F(Printing, LeavesNoFileOpenHoweverOftenItFails) {
  const auto openFiles = [] { return QDir("/proc/self/fd").count(); };
  for (const char* script : {"", "exit 1\n", "kill -9 $$\n"}) {
    PrintBy(script);
    OpenGame(3);
    Print(Outcome::Message);
    const auto before = openFiles();
    for (int attempt = 0; attempt < 3; ++attempt) Print(Outcome::Message);
    EXPECT_EQ(openFiles(), before) << script;
  }
}
