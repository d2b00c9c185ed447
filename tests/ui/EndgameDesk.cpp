#include "tests/ui/EndgameDesk.h"

#include <QFile>
#include <QLabel>
#include <QTest>

void EndgameDesk::PlayOnBoard(std::string_view squares) {
  for (const MoveRow& square : SquaresNamed(squares)) ClickSquare(square.x, square.y);
}

void EndgameDesk::PressInNextWindow(const QString& windowName, const char* button) {
  WhenNextModalOpens([=](QWidget& window) {
    EXPECT_EQ(window.objectName(), windowName);
    Press(window, button);
  });
}

void EndgameDesk::SubmitAGame(LookAtScores look) {
  PressInNextWindow("frmGameOver", "cmdScoresReplay");
  WhenNextModalOpens([look = std::move(look)](QWidget& window) {
    auto* scores = qobject_cast<frmScores*>(&window);
    if (scores == nullptr) throw std::runtime_error("not the scores window");
    look(*scores);
  });
  PlayOnBoard(Games::DeadEndAfter20);
}

void EndgameDesk::LookAtList(const char* menuEntry, const LookAtScores& look) {
  WhenNextModalOpens([look](QWidget& window) {
    look(dynamic_cast<frmScores&>(window));
    Press(window, "cmdClose");
  });
  Choose(menuEntry);
}

void EndgameDesk::ExpectNameIsMissing() {
  WhenNextModalOpens([](QWidget& window) {
    const auto& box = dynamic_cast<QMessageBox&>(window);
    EXPECT_EQ(box.windowTitle(), "Aren't you forgetting something?");
    EXPECT_EQ(box.text(), "Please enter your name.");
    EXPECT_EQ(box.icon(), QMessageBox::Warning);
    window.close();
  });
}

void EndgameDesk::WriteScores(const QByteArray& text) {
  QFile file(ProgramFile("Scores.dat"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(text);
}

void Press(QWidget& window, const char* button) {
  Child<QPushButton>(window, button).click();
}

NameBox& BoxOf(frmScores& scores) {
  return Child<NameBox>(scores, "txtHighScore");
}

void TypeName(frmScores& scores, const QString& name) {
  BoxOf(scores).selectAll();
  QTest::keyClicks(&BoxOf(scores), name);
}

QStringList Texts(const QWidget& window, const char* name) {
  QStringList texts;
  for (const QLabel* label : window.findChildren<QLabel*>(name)) texts << label->text();
  return texts;
}

QLabel& LabelAt(const QWidget& window, const char* name, int row) {
  return *window.findChildren<QLabel*>(name).at(row);
}
