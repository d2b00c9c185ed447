// Every deed at every moment: what the player, the window manager or a screen reader can do, tried
// while anything is open or under way.

#include <gtest/gtest.h>

#include "tests/storm/Deeds.h"
#include "tests/storm/Moments.h"

namespace {

using Cell = std::tuple<std::size_t, std::size_t>;

constexpr int LongEnoughToClose = 500;

class EveryDeedAtEveryMoment : public testing::TestWithParam<Cell> {
 protected:
  const MomentRow& Moment() const { return Moments()[std::get<0>(GetParam())]; }
  const DeedRow& Deed() const { return Deeds()[std::get<1>(GetParam())]; }

  void SetUp() override {
    stage_.AtTheMoment([this] {
      const QString before = stage_.Snapshot();
      Deed().act(stage_, Deed().name);
      changed_ = stage_.Snapshot() != before;
    });
    Moment().reach(stage_);
    ASSERT_TRUE(stage_.MomentHasCome());
    stage_.Settle(LongEnoughToClose);
  }

  QString Outcome() {
    if (!stage_.Opened().isEmpty()) return stage_.Opened().join(", ");
    if (!stage_.Window().isVisible()) return "closed";
    return changed_ ? "done" : "";
  }

  void ExpectOpened(const QStringList& titles) {
    EXPECT_EQ(stage_.Opened().join(", ").toStdString(), titles.join(", ").toStdString());
  }

  bool InProgress() { return stage_.Window().Context().game.GameInProgress(); }

  void ExpectIdleOutcome() {
    EXPECT_EQ(Outcome().toStdString(), Deed().idle[std::get<0>(GetParam())]);
  }

  void ExpectIgnored() {
    EXPECT_FALSE(changed_);
    ExpectOpened(Moment().leadsTo);
    EXPECT_TRUE(stage_.Window().isVisible());
  }

  // A finished game or a fresh one is closed without a question.
  void ExpectClosedAfterwards() {
    EXPECT_FALSE(changed_);
    if (InProgress()) {
      ExpectOpened({"Exit?"});
    } else {
      EXPECT_FALSE(stage_.Window().isVisible());
    }
  }

  void ExpectDialogClosed() {
    EXPECT_FALSE(stage_.HadToLeave());
    ExpectOpened(Moment().leadsTo);
  }

  void ExpectInDialog() {
    switch (Deed().reach) {
      case Reach::CloseBox:
        return ExpectDialogClosed();
      case Reach::Quit:
        return;  // a dialog that has a question or work to end may hold it up
      case Reach::Help:
        ExpectOpened(Moment().leadsTo);
        return;
      default:
        return ExpectIgnored();
    }
  }

  void ExpectAtWork() {
    const bool closing = Deed().reach == Reach::Closing || Deed().reach == Reach::Quit;
    closing ? ExpectClosedAfterwards() : ExpectIgnored();
  }

  // Whatever happened, the program is sound and can be closed.
  void ExpectSoundProgram() {
    if (!stage_.Window().isVisible()) return;
    EXPECT_EQ(stage_.TheInspector().ComplaintAbout(stage_.Window(), true), "");
    const bool asks = InProgress();
    const qsizetype opened = stage_.Opened().size();
    EXPECT_NE(stage_.Window().close(), asks);
    EXPECT_EQ(stage_.Opened().mid(opened), asks ? QStringList("Exit?") : QStringList());
  }

  Stage stage_{Moment().settings};
  bool changed_ = false;
};

std::string NameOfCell(const testing::TestParamInfo<Cell>& info) {
  std::string name = std::string(Moments()[std::get<0>(info.param)].name) + "_" +
                     Deeds()[std::get<1>(info.param)].name;
  std::replace(name.begin(), name.end(), '+', '_');
  return name;
}

}  // namespace

TEST_P(EveryDeedAtEveryMoment, EndsAsItShould) {
  switch (Moment().kind) {
    case MomentKind::Idle:
      ExpectIdleOutcome();
      break;
    case MomentKind::Work:
      ExpectAtWork();
      break;
    case MomentKind::Dialog:
      ExpectInDialog();
      break;
    case MomentKind::Menu:
      break;
  }
  ExpectSoundProgram();
}

INSTANTIATE_TEST_SUITE_P(All, EveryDeedAtEveryMoment,
                         testing::Combine(testing::Range<std::size_t>(0, Moments().size()),
                                          testing::Range<std::size_t>(0, Deeds().size())),
                         NameOfCell);
