#include "ui/windows/frmGameOver.h"

#include <algorithm>

#include <QLabel>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

#include "ui/widgets/LongText.h"
#include "ui/widgets/NamedControls.h"
#include "ui/widgets/WindowPlacing.h"

namespace {

constexpr int IconSide = 48;
constexpr int Margin = 18;
constexpr int ButtonPadding = 16;
constexpr int ButtonGap = 8;
constexpr int MessageWidth = 240;
// What is beside the message: the icon, the margins and the frame.
constexpr int RoomBesideMessage = IconSide + 4 * Margin;

QIcon Symbol(const QWidget& window) {
  const QIcon own = window.windowIcon();
  return own.isNull() ? window.style()->standardIcon(QStyle::SP_MessageBoxInformation) : own;
}

}  // namespace

frmGameOver::frmGameOver(const GameOverReport& report, QWidget* mainWindow)
    : SecondaryWindow(mainWindow, "frmGameOver", "Game Over...") {
  QLabel* imgIcon = AddLabel(this, "imgIcon", QString());
  imgIcon->setPixmap(Symbol(*this).pixmap(QSize(IconSide, IconSide), devicePixelRatioF()));
  QLabel* lblMessage = AddLabel(this, "lblMessage", QString::fromStdString(report.message));
  KeepLinesWhole(*lblMessage, mainWindow->screen()->availableSize().width() - RoomBesideMessage);
  lblMessage->setMinimumWidth(std::max(lblMessage->minimumWidth(), MessageWidth));

  QPushButton* cmdScoresReplay =
      AddButton(this, "cmdScoresReplay", QString::fromStdString(report.buttonCaption),
                &frmGameOver::cmdScoresReplay_Click);
  cmdScoresReplay->setDefault(true);
  QPushButton* cmdUndo = AddButton(this, "cmdUndo", "&Undo Last Move", &frmGameOver::cmdUndo_Click);

  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(ButtonGap);
  buttons->addStretch();
  for (QPushButton* button : {cmdScoresReplay, cmdUndo}) {
    button->setMinimumWidth(button->sizeHint().width() + ButtonPadding);
    buttons->addWidget(button);
  }
  auto* iconAndMessage = new QHBoxLayout;
  iconAndMessage->setSpacing(Margin);
  iconAndMessage->addWidget(imgIcon, 0, Qt::AlignTop);
  iconAndMessage->addWidget(lblMessage, 1, Qt::AlignVCenter);
  QVBoxLayout* layout = AddColumn();
  layout->setContentsMargins(Margin, Margin, Margin, Margin);
  layout->setSpacing(Margin);
  layout->addLayout(iconAndMessage);
  layout->addLayout(buttons);
  cmdScoresReplay->setFocus();
  PlaceDialog(*this, *mainWindow);
}

void frmGameOver::cmdScoresReplay_Click() {
  answer_ = GameOverAnswer::MainButton;
  accept();
}

void frmGameOver::cmdUndo_Click() {
  answer_ = GameOverAnswer::Undo;
  accept();
}
