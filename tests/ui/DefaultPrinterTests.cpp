// Print servers that let the program wait.

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include "ui/windows/history/DefaultPrinter.h"

namespace {

// Long enough for every script that answers at all, however busy the machine is.
constexpr int Answer = 4000;
constexpr int Long = 600000;

class PrintServer : public testing::Test {
 protected:
  PrintServer() : path_(qgetenv("PATH")) { qputenv("PATH", folder_.path().toUtf8()); }
  ~PrintServer() override { qputenv("PATH", path_); }

  void Command(const QString& name, const QByteArray& script) {
    QFile command(folder_.filePath(name));
    ASSERT_TRUE(command.open(QIODevice::WriteOnly));
    command.write("#!/bin/sh\nPATH=" + path_ + "\ncd '" + folder_.path().toUtf8() + "'\n" + script);
    command.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  }

  // What is asked of the server in its turn; from the last on it is always the same.
  void Questions(const QList<QByteArray>& answers) {
    QByteArray script = "echo asked >> questions\ncase $(wc -l < questions) in\n";
    for (int i = 0; i < answers.size(); ++i) {
      const bool isLast = i + 1 == answers.size();
      script += (isLast ? "*" : QByteArray::number(i + 1)) + ") " + answers[i] + ";;\n";
    }
    Command("lpstat", script + "esac\n");
  }

  // True when the document was printed.
  bool Print(const DefaultPrinter::Patience& patience) {
    DefaultPrinter printer(patience);
    const QSignalSpy finished(&printer, &DefaultPrinter::Finished);
    printer.Print("Title", [](const QPageSize&) { return QByteArray("a document"); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return !finished.isEmpty(); }, 20000));
    EXPECT_FALSE(printer.IsPrinting());
    return !finished.isEmpty() && finished[0][0].toBool();
  }

  QByteArray Contents(const QString& name) const {
    QFile file(folder_.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

 private:
  QTemporaryDir folder_;
  QByteArray path_;
};

constexpr const char* Silent = "exec sleep 1000";

}  // namespace

TEST_F(PrintServer, IsSentNothingWhenItNeverAnswers) {
  Questions({Silent});
  Command("lp", "cat > printed\n");
  EXPECT_FALSE(Print({.answer = 200, .untilAsked = 1, .document = Long}));
  EXPECT_EQ(Contents("printed"), "");
}

TEST_F(PrintServer, IsWaitedForAsLongAsItIsAlive) {
  Questions({"true", "true", "true", "touch go"});
  Command("lp", "until [ -e go ]; do sleep 0.01; done\ncat > printed\n");
  EXPECT_TRUE(Print({.answer = 5 * Answer, .untilAsked = 1, .document = Long}));
  EXPECT_EQ(Contents("printed"), "a document");
}

TEST_F(PrintServer, IsAskedToWithdrawTheDocumentWhenItHasDiedOnTheWay) {
  Questions({"echo 'Keeper-1 me 1024'", Silent,
             "printf '%s\\n' 'Keeper-1 me 1024' 'Keeper-2 me 0' 'Keeper-3 me 0'"});
  Command("lp", Silent);
  Command("cancel", "echo \"$@\" > cancelled");
  EXPECT_FALSE(Print({.answer = Answer, .untilAsked = 1, .document = Long}));
  EXPECT_EQ(Contents("cancelled"), "Keeper-2 Keeper-3\n");
}

TEST_F(PrintServer, IsGivenUpWhenItNeverPrints) {
  Questions({"true", "echo 'Keeper-2 me 0'"});
  Command("lp", Silent);
  Command("cancel", "echo \"$@\" > cancelled");
  EXPECT_FALSE(Print({.answer = 5 * Answer, .untilAsked = 1, .document = 500}));
  EXPECT_EQ(Contents("cancelled"), "Keeper-2\n");
}

TEST_F(PrintServer, KeepsTheJobsThatWereThereBefore) {
  Questions({"echo 'Keeper-1 me 0'"});
  Command("lp", "kill -9 $$");
  Command("cancel", "echo \"$@\" > cancelled");
  EXPECT_FALSE(Print({.answer = Answer, .untilAsked = 1, .document = Long}));
  EXPECT_EQ(Contents("cancelled"), "");
}

TEST_F(PrintServer, LeavesNoCommandBehindThatWaitsForIt) {
  Questions({"echo $$ > waiting\nsleep 1000 & echo $! > child\nwait"});
  EXPECT_FALSE(Print({.answer = Answer, .untilAsked = 1, .document = Long}));
  for (const char* name : {"waiting", "child"}) {
    const QByteArray process = Contents(name).trimmed();
    ASSERT_NE(process, "");
    EXPECT_TRUE(QTest::qWaitFor([&] {
      QFile status("/proc/" + process + "/stat");
      return !status.open(QIODevice::ReadOnly) || status.readAll().contains(") Z ");
    })) << name;
  }
}
