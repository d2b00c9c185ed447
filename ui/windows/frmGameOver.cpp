#include "ui/windows/frmGameOver.h"

#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include "ui/widgets/WindowPlacing.h"

namespace {

constexpr int IconSide = 48;
constexpr int Margin = 18;
constexpr int ButtonPadding = 16;
constexpr int ButtonGap = 8;
constexpr int MessageWidth = 240;

QIcon Symbol(const QWidget& window) {
  const QIcon own = window.windowIcon();
  return own.isNull() ? window.style()->standardIcon(QStyle::SP_MessageBoxInformation) : own;
}

}  // namespace

frmGameOver::frmGameOver(const GameOverReport& report, QWidget* mainWindow)
    : QDialog(mainWindow, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint) {
  setObjectName("frmGameOver");
  setWindowTitle("Game Over...");

  auto* imgIcon = new QLabel(this);
  imgIcon->setObjectName("imgIcon");
  imgIcon->setPixmap(Symbol(*this).pixmap(QSize(IconSide, IconSide), devicePixelRatioF()));
  auto* lblMessage = new QLabel(QString::fromStdString(report.message), this);
  lblMessage->setObjectName("lblMessage");
  lblMessage->setTextFormat(Qt::PlainText);
  lblMessage->setMinimumWidth(MessageWidth);

  auto* cmdScoresReplay = new QPushButton(QString::fromStdString(report.buttonCaption), this);
  cmdScoresReplay->setObjectName("cmdScoresReplay");
  cmdScoresReplay->setDefault(true);
  connect(cmdScoresReplay, &QPushButton::clicked, this, &frmGameOver::cmdScoresReplay_Click);
  auto* cmdUndo = new QPushButton("&Undo Last Move", this);
  cmdUndo->setObjectName("cmdUndo");
  connect(cmdUndo, &QPushButton::clicked, this, &frmGameOver::cmdUndo_Click);

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
  auto* layout = new QVBoxLayout(this);
  layout->setSizeConstraint(QLayout::SetFixedSize);
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
