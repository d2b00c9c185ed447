#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QFile>
#include <gtest/gtest.h>

#include "storage/AttemptMark.h"
#include "tests/storage/TestFiles.h"

namespace {

class AttemptMarks : public FolderTest {
 protected:
  const QString name = PathOf("mark");

  bool WasCutShort() const { return AttemptMark(name).WasCutShortBefore(); }

  // Another copy of the program that ends in the middle of its attempt.
  void DieInTheMiddle() const {
    const pid_t copy = fork();
    if (copy == 0) {
      const AttemptMark mark(name);
      kill(getpid(), SIGKILL);
    }
    waitpid(copy, nullptr, 0);
  }
};

}  // namespace

TEST_F(AttemptMarks, SayNothingAtFirst) {
  EXPECT_FALSE(WasCutShort());
}

TEST_F(AttemptMarks, AreGoneAfterwards) {
  WasCutShort();
  EXPECT_FALSE(QFile::exists(name));
}

TEST_F(AttemptMarks, SayNothingAfterAnAttemptThatCameToItsEnd) {
  WasCutShort();
  EXPECT_FALSE(WasCutShort());
}

TEST_F(AttemptMarks, TellOnceThatTheLastAttemptWasCutShort) {
  DieInTheMiddle();
  EXPECT_TRUE(WasCutShort());
  EXPECT_FALSE(WasCutShort());
}

TEST_F(AttemptMarks, AreNotMistakenForADeadCopysWhileItIsAlive) {
  const AttemptMark living(name);
  EXPECT_FALSE(WasCutShort());
  EXPECT_TRUE(QFile::exists(name));
}

TEST_F(AttemptMarks, DoNoHarmWhereTheyCannotBeMade) {
  EXPECT_FALSE(AttemptMark(PathOf("missing/mark")).WasCutShortBefore());
}

TEST_F(AttemptMarks, LeaveWhatIsNotTheirsAlone) {
  ASSERT_EQ(mkfifo(QFile::encodeName(name).constData(), 0600), 0);
  EXPECT_FALSE(WasCutShort());
  EXPECT_TRUE(QFile::exists(name));
  QFile::remove(name);

  const QString other = Put("other", "mine");
  ASSERT_TRUE(QFile::link(other, name));
  EXPECT_FALSE(WasCutShort());
  EXPECT_EQ(ContentOf(other), "mine");
}

TEST_F(AttemptMarks, LeaveAFileOfTheirNameAlone) {
  Put("mark", "my notes");
  EXPECT_FALSE(WasCutShort());
  EXPECT_EQ(ContentOf(name), "my notes");
}

TEST_F(AttemptMarks, LeaveAnotherNameOfAFileAlone) {
  const QString other = Put("other", "1");
  ASSERT_EQ(link(QFile::encodeName(other).constData(), QFile::encodeName(name).constData()), 0);
  EXPECT_FALSE(WasCutShort());
  EXPECT_EQ(ContentOf(other), "1");
  EXPECT_TRUE(QFile::exists(name));
}

TEST_F(AttemptMarks, LeaveAStrangersFileAlone) {
  Put("mark", "1");
  if (!GiveAway(name, Nobody, Nobody)) GTEST_SKIP() << "files cannot be given away here";
  EXPECT_FALSE(WasCutShort());
  EXPECT_EQ(ContentOf(name), "1");
}
