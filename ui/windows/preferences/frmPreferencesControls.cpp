// The controls of the preferences and their places.

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

#include "ui/widgets/NamedControls.h"
#include "ui/windows/preferences/ChooserButton.h"
#include "ui/windows/preferences/PreviewBoard.h"
#include "ui/windows/preferences/Swatch.h"
#include "ui/windows/preferences/frmPreferences.h"

namespace {

constexpr int ColumnGap = 12;
constexpr int ButtonGap = 8;
// The room beside a button's caption.
constexpr int CaptionMargin = 16;

// Options numbered from 0 in the order of their captions, each in the row after the one before.
QButtonGroup* AddOptions(QGroupBox* frame, QGridLayout& layout, const QString& name,
                         std::initializer_list<const char*> captions) {
  auto* group = new QButtonGroup(frame);
  QVBoxLayout* column = AddOptionColumn(frame);
  for (const char* caption : captions) {
    const int index = static_cast<int>(group->buttons().size());
    QRadioButton* option =
        AddOption(column->parentWidget(), QString("%1(%2)").arg(name).arg(index), caption);
    group->addButton(option, index);
    column->addWidget(option);
  }
  layout.addWidget(column->parentWidget(), layout.rowCount(), 0, 1, 2);
  return group;
}

}  // namespace

void frmPreferences::AddControls() {
  auto* frames = new QGridLayout;
  frames->setHorizontalSpacing(ColumnGap);
  frames->addWidget(AddChessboardFrame(), 0, 0);
  frames->addWidget(AddHighlightFrame(), 1, 0);
  frames->addWidget(AddPositionFrame(), 0, 1);
  frames->addWidget(AddProgramFrame(), 1, 1);
  QVBoxLayout* layout = AddColumn();
  layout->addLayout(frames);
  layout->addLayout(AddClosingButtons());
}

QGroupBox* frmPreferences::AddChessboardFrame() {
  QGroupBox* frame = AddFrame(this, "fraChessboard", "Chessboard:");
  auto* layout = new QGridLayout(frame);
  int row = 0;
  for (int owner = 0; owner < ChooserCount; ++owner) {
    if (owner != HighlightChooser) AddChooser(owner, *layout, row++);
  }
  chkUseImages_ = new QCheckBox("Use &Images", frame);
  chkUseImages_->setObjectName("chkUseImages");
  connect(chkUseImages_, &QCheckBox::toggled, this, &frmPreferences::chkUseImages_Click);
  layout->addWidget(chkUseImages_, row, 0, 1, 2);
  return frame;
}

void frmPreferences::AddChooser(int owner, QGridLayout& layout, int row) {
  const ChooserRow& names = ChooserRows[owner];
  auto* button = new ChooserButton(layout.parentWidget());
  button->setObjectName(names.button);
  connect(button, &ChooserButton::clicked, this, [this, owner] { Chooser_Click(owner); });
  connect(button, &ChooserButton::MenuRequested, this, [this, owner] { Chooser_MouseUp(owner); });
  button->setAccessibleDescription("has a menu");
  auto* swatch = new Swatch(layout.parentWidget());
  swatch->setObjectName(names.swatch);
  swatch->Image().setObjectName(names.preview);
  layout.addWidget(button, row, 0);
  layout.addWidget(swatch, row, 1);
  // The buttons are as wide with one caption as with the other.
  layout.setColumnMinimumWidth(
      0, fontMetrics().horizontalAdvance("Highlight Image...") + 2 * CaptionMargin);
  choosers_[owner] = {button, swatch};
}

QGroupBox* frmPreferences::AddHighlightFrame() {
  QGroupBox* frame = AddFrame(this, "fraHighlight", "Highlight:");
  auto* layout = new QGridLayout(frame);
  AddChooser(HighlightChooser, *layout, 0);
  optHighlight_ = AddOptions(frame, *layout, "optHighlight",
                             {"&None", "Cursor &Position", "Valid &Moves Only"});
  return frame;
}

QGroupBox* frmPreferences::AddPositionFrame() {
  QGroupBox* frame = AddFrame(this, "fraPosition", "Starting Position:");
  auto* layout = new QGridLayout(frame);
  pctGrid_ = new PreviewBoard(settings_, frame);
  connect(pctGrid_, &PreviewBoard::Clicked, this, &frmPreferences::pctGrid_Click);
  layout->addWidget(pctGrid_, 0, 0, 1, 2, Qt::AlignHCenter);
  optPosition_ = AddOptions(frame, *layout, "optPosition",
                            {"&Above Position", "&Chosen Positon", "&Random Positon"});
  return frame;
}

QGroupBox* frmPreferences::AddProgramFrame() {
  QGroupBox* frame = AddFrame(this, "fraProgram", "Program:");
  auto* layout = new QVBoxLayout(frame);
  layout->addWidget(AddButton(this, "cmdDefaultConfiguration", "Defa&ult Configuration",
                              &frmPreferences::cmdDefaultConfiguration_Click));
  layout->addWidget(AddButton(this, "cmdClearScores", "Clear &Score Lists",
                              &frmPreferences::cmdClearScores_Click));
  layout->addStretch();
  return frame;
}

QLayout* frmPreferences::AddClosingButtons() {
  auto* layout = new QHBoxLayout;
  layout->setSpacing(ButtonGap);
  layout->addStretch();
  QPushButton* cmdOK = AddButton(this, "cmdOK", "OK", &frmPreferences::cmdOK_Click);
  cmdOK->setDefault(true);
  layout->addWidget(cmdOK);
  layout->addWidget(AddButton(this, "cmdCancel", "Cancel", &frmPreferences::cmdCancel_Click));
  return layout;
}
