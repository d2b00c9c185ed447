#include <QAbstractButton>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QTest>

#include "tests/ui/HistoryDesk.h"

namespace {

constexpr const char* Keep = "echo \"$@\" > arguments\ncat > part\nmv part page.pdf\n";

// A desk whose print commands are scripts of the test.
class Printing : public HistoryDesk {
 protected:
  enum class Outcome { Page, Message };

  Printing() : path_(qgetenv("PATH")) {
    QCoreApplication::setApplicationVersion("1.0.0");
    EXPECT_TRUE(QDir().mkpath(ProgramFile("commands")));
    qputenv("PATH", ProgramFile("commands").toUtf8());
  }
  ~Printing() override { qputenv("PATH", path_); }

  // Without this there is no such command at all.
  void Command(const QString& name, const QByteArray& script) {
    QFile command(ProgramFile("commands/" + name));
    ASSERT_TRUE(command.open(QIODevice::WriteOnly));
    const QByteArray folder = ProgramFile("commands").toUtf8();
    command.write("#!/bin/sh\nPATH=" + path_ + "\ncd '" + folder + "'\n" + script);
    command.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  }
  void PrintBy(const QByteArray& script) { Command("lp", script); }

  // Prints the moves of the game and waits for the end.
  void Print(Outcome expected) {
    Read("mnuViewHistory", [=, this](frmHistory& history, QListWidget&) {
      if (expected == Outcome::Message) ExpectAMessage();
      Child<QAction>(history, "mnuEditPrint").trigger();
      EXPECT_TRUE(QTest::qWaitFor([&] { return !IsPrinting(history) && AllVisitsMade(); }));
    });
  }

  void ExpectAMessage() {
    Answer("Sorry...",
           "Your document was not printed due to the following error:\nPrinter error (482).",
           QMessageBox::Ok);
  }

  static QString Sign(const frmHistory& history) {
    return history.findChild<QLabel*>("lblPrinting")->text();
  }
  static bool IsPrinting(const frmHistory& history) { return Sign(history) == "Printing..."; }

  bool IsPrinted() { return Contents("commands/page.pdf").trimmed().endsWith("%%EOF"); }

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
  EXPECT_TRUE(IsPrinted());
}

TEST_F(Printing, IsForThePaperThatTheQueueHas) {
  Command("lpoptions", "[ \"$*\" = -l ] && echo 'PageSize/Media Size: A4 *Letter Legal'\n");
  PrintBy(Keep);
  OpenGame(3);
  Print(Outcome::Page);
  EXPECT_TRUE(Contents("commands/page.pdf").contains("/MediaBox [0 0 612.000000 792.000000]"));
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
  OpenGame(3);
  Print(Outcome::Message);
}

TEST_F(Printing, IsNoLongerUnderWayWhenTheMessageOpens) {
  OpenGame(3);
  Read("mnuViewHistory", [this](frmHistory& history, QListWidget&) {
    WhenNextModalOpens([&](QWidget& message) {
      EXPECT_FALSE(IsPrinting(history));
      message.close();
    });
    Child<QAction>(history, "mnuEditPrint").trigger();
    EXPECT_TRUE(QTest::qWaitFor([this] { return AllVisitsMade(); }));
  });
}

TEST_F(Printing, CanBeTriedAgain) {
  PrintBy("[ -e tried ] && exec cat > page.pdf\ntouch tried\nexit 1\n");
  OpenGame(3);
  Print(Outcome::Message);
  Print(Outcome::Page);
  EXPECT_TRUE(IsPrinted());
}

TEST_F(Printing, ShowsThatItIsUnderWayAndThatItIsDone) {
  PrintBy("until [ -e go ]; do sleep 0.01; done\n");
  OpenGame(3);
  Read("mnuViewHistory", [this](frmHistory& history, QListWidget& list) {
    auto& print = Child<QAction>(history, "mnuEditPrint");
    EXPECT_EQ(Sign(history), "");
    print.trigger();
    EXPECT_EQ(Sign(history), "Printing...");
    EXPECT_FALSE(print.isEnabled());
    EXPECT_TRUE(list.isEnabled() && Main(history).isEnabled());
    EXPECT_TRUE(QFile(ProgramFile("commands/go")).open(QIODevice::WriteOnly));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !IsPrinting(history); }));
    EXPECT_EQ(Sign(history), "Sent to the printer.");
    EXPECT_TRUE(print.isEnabled());
  });
}

TEST_F(Printing, LeavesTheKeyboardWhereItIs) {
  PrintBy(Keep);
  OpenGame(3);
  Read("mnuViewHistory", [](frmHistory& history, QListWidget&) {
    Main(history).setFocus();
    Child<QAction>(history, "mnuEditPrint").trigger();
    EXPECT_EQ(history.focusWidget(), &Main(history));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !IsPrinting(history); }));
    EXPECT_EQ(history.focusWidget(), &Main(history));
  });
}

TEST_F(Printing, GoesOnWhenTheWindowIsClosedAtOnce) {
  PrintBy("until [ -e go ]; do sleep 0.01; done\n" + QByteArray(Keep));
  OpenGame(3);
  Read("mnuViewHistory", [](frmHistory& history, QListWidget&) {
    Child<QAction>(history, "mnuEditPrint").trigger();
    history.cmdClose_Click();
    EXPECT_FALSE(history.isVisible());
  });
  Read("mnuViewHistory", [this](frmHistory& history, QListWidget&) {
    EXPECT_TRUE(IsPrinting(history));
    EXPECT_TRUE(QFile(ProgramFile("commands/go")).open(QIODevice::WriteOnly));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !IsPrinting(history); }));
  });
  EXPECT_TRUE(IsPrinted());
}

TEST_F(Printing, SaysSorryAlsoWhenTheWindowIsClosedByThen) {
  PrintBy("until [ -e go ]; do sleep 0.01; done\nexit 1\n");
  OpenGame(3);
  Read("mnuViewHistory", [](frmHistory& history, QListWidget&) {
    Child<QAction>(history, "mnuEditPrint").trigger();
  });
  WhenNextModalOpens([this](QWidget& about) {
    EXPECT_TRUE(QFile(ProgramFile("commands/go")).open(QIODevice::WriteOnly));
    about.close();
  });
  Choose("mnuHelpAbout");
  ExpectAMessage();
  EXPECT_TRUE(QTest::qWaitFor([this] { return AllVisitsMade(); }));
}

TEST_F(Printing, LeavesNoFileOpenHoweverOftenItFails) {
  const auto openFiles = [] { return QDir("/proc/self/fd").count(); };
  for (const char* script : {"exit 1\n", "kill -9 $$\n"}) {
    PrintBy(script);
    OpenGame(3);
    Print(Outcome::Message);
    const auto before = openFiles();
    for (int attempt = 0; attempt < 3; ++attempt) Print(Outcome::Message);
    EXPECT_EQ(openFiles(), before) << script;
  }
}
