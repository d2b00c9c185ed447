#include "tests/ui/Desk.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QTest>
#include <QTimer>

#include "ui/board/BoardView.h"

Desk::Desk() {
  globals.ProgramDirectory = directory_.path() + "/";
  LookOut();
}

Desk::~Desk() = default;

void Desk::Open(const QString& settings, const QString& commandLine) {
  if (!settings.isEmpty()) {
    QFile file(ProgramFile("GallopadeNova.ini"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(settings.toUtf8());
  }
  window_ = std::make_unique<frmGame>(globals, clock);
  window_->Form_Load(commandLine.toStdString());
  window_->activateWindow();  // a dialog at start-up had taken its place
  ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
}

bool Desk::Close() {
  return window_->close();
}

// Asked for anew before each look: a visit may open a window of its own and wait in it.
void Desk::LookOut() {
  QTimer::singleShot(1, &lookOut_, [this] {
    LookOut();
    LookForModal();
  });
}

void Desk::LookForModal() {
  visited_.removeIf(
      [](const QPointer<QWidget>& window) { return !window || !window->isVisible(); });
  QWidget* modal = QApplication::activeModalWidget();
  if (modal == nullptr || visited_.contains(modal)) return;
  visited_.append(modal);
  if (visits_.empty()) {
    ADD_FAILURE() << "an unexpected window: " << modal->windowTitle().toStdString();
    modal->close();
    return;
  }
  const Visit visit = std::move(visits_.front());
  visits_.pop_front();
  visit(*modal);
}

void Desk::Answer(const QString& title, const QString& text, QMessageBox::StandardButton button) {
  WhenNextModalOpens([=](QWidget& modal) {
    auto* box = qobject_cast<QMessageBox*>(&modal);
    if (box == nullptr) {
      ADD_FAILURE() << "not a message box: " << modal.windowTitle().toStdString();
      modal.close();
      return;
    }
    EXPECT_EQ(box->windowTitle(), title);
    EXPECT_EQ(box->text(), text);
    box->button(button)->click();
  });
}

void Desk::ClickSquare(int x, int y) {
  const QPoint middle = window_->Board().SquareRectangle(SquareIndex(x, y)).center();
  QTest::mouseClick(&window_->Board(), Qt::LeftButton, Qt::NoModifier, middle);
}

void Desk::PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(&window_->Board(), key, modifiers);
}

QAction& Desk::MenuItem(const char* name) const {
  auto* action = window_->findChild<QAction*>(name);
  if (action == nullptr) throw std::runtime_error(std::string("no menu entry named ") + name);
  return *action;
}

void Desk::Choose(const char* name) {
  MenuItem(name).trigger();
}

QByteArray Desk::Contents(const QString& name) const {
  QFile file(ProgramFile(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
