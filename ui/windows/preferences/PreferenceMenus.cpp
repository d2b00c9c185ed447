#include "ui/windows/preferences/PreferenceMenus.h"

#include <QPainter>
#include <QPixmap>

#include "ui/application/ColorWells.h"
#include "ui/board/SystemColors.h"

namespace {

using namespace PreferenceEntry;

// These two have no meaning of their own.
constexpr int OtherSeparator = -1;
constexpr int Cancel = -2;

constexpr int SampleSide = 16;

constexpr const char* SystemColorNames[SystemColorCount] = {
    "Scroll Bar",
    "Desktop",
    "Active Window Title Bar",
    "Inactive Window Title Bar",
    "Menu Bar",
    "Window Background",
    "Window Frame",
    "Menu Text",
    "Window Text",
    "Title Bar Text",
    "Active Window Border",
    "Inactive Window Border",
    "Application Background",
    "Highlight",
    "Highlight Text",
    "3-D Face",
    "3-D Shadow",
    "Disabled Text",
    "Button Text",
    "Inactive Window Title Bar Text",
    "3-D Highlight",
    "3-D Dark Shadow",
    "3-D Light Shadow",
    "ToolTip Text",
    "ToolTip Background",
};

QAction* EntryOf(const QMenu& menu, int index) {
  for (QAction* entry : menu.actions()) {
    if (entry->data().toInt() == index) return entry;
  }
  return nullptr;
}

void Check(const QMenu& menu, int index, bool checked) {
  EntryOf(menu, index)->setCheckable(true);
  EntryOf(menu, index)->setChecked(checked);
}

void ShowFrameWidth(const QMenu& menu, bool visible) {
  EntryOf(menu, FrameWidthSeparator)->setVisible(visible);
  EntryOf(menu, FrameWidth)->setVisible(visible);
}

QPixmap Sample(const QColor& color, const QMenu& menu) {
  QPixmap sample(QSize(SampleSide, SampleSide) * menu.devicePixelRatioF());
  sample.fill(color);
  QPainter painter(&sample);
  painter.setPen(menu.palette().color(QPalette::Dark));
  painter.drawRect(sample.rect().adjusted(0, 0, -1, -1));
  painter.end();
  sample.setDevicePixelRatio(menu.devicePixelRatioF());
  return sample;
}

// The samples have the desktop's colours of this moment.
void ShowSamples(const QMenu& menu) {
  for (int index = 0; index < SystemColorCount; ++index) {
    EntryOf(menu, index)->setIcon(Sample(ResolveColor(SystemColor(index), menu.palette()), menu));
  }
}

}  // namespace

QString ColorWords(Color color) {
  for (int index = 0; index < SystemColorCount; ++index) {
    if (color == SystemColor(index)) return SystemColorNames[index];
  }
  return SpokenColor(ResolveColor(color, QPalette()));
}

PreferenceMenus::PreferenceMenus(QWidget* parent)
    : mnuSystemColors_(new QMenu(parent)), mnuImageOptions_(new QMenu(parent)) {
  mnuSystemColors_->setObjectName("mnuSystemColors");
  // A menu that is higher than the screen would break into columns.
  mnuSystemColors_->setStyleSheet("QMenu { menu-scrollable: 1; }");
  mnuSystemColors_->setAccessibleName("System Colors");
  announcer_.SayOpeningOf(*mnuSystemColors_);
  for (int index = 0; index < SystemColorCount; ++index) {
    AddEntry(*mnuSystemColors_, index, SystemColorNames[index]);
  }
  AddSharedEntries(*mnuSystemColors_);
  mnuImageOptions_->setObjectName("mnuImageOptions");
  mnuImageOptions_->setAccessibleName("Image Options");
  announcer_.SayOpeningOf(*mnuImageOptions_);
  AddEntry(*mnuImageOptions_, StretchImages, "&Stretch Images");
  AddEntry(*mnuImageOptions_, CenterImages, "C&enter Images");
  AddSharedEntries(*mnuImageOptions_);
}

void PreferenceMenus::AddSharedEntries(QMenu& menu) {
  AddSeparator(menu, FrameWidthSeparator);
  AddEntry(menu, FrameWidth, "Frame &Width...");
  AddSeparator(menu, OtherSeparator);
  AddEntry(menu, Borders, "&Borders");
  AddSeparator(menu, OtherSeparator);
  AddEntry(menu, Cancel, "&Cancel");
  ShowFrameWidth(menu, false);
}

void PreferenceMenus::AddEntry(QMenu& menu, int index, const char* caption) {
  QAction* entry = menu.addAction(caption);
  entry->setObjectName(menu.objectName() + "Entry");
  entry->setData(index);
}

void PreferenceMenus::AddSeparator(QMenu& menu, int index) {
  QAction* separator = menu.addSeparator();
  separator->setObjectName(menu.objectName() + "Entry");
  separator->setData(index);
}

std::optional<int> PreferenceMenus::PopUpSystemColors(const QPoint& place, bool withFrameWidth) {
  ShowSamples(*mnuSystemColors_);
  return PopUp(*mnuSystemColors_, place, withFrameWidth);
}

std::optional<int> PreferenceMenus::PopUpImageOptions(const QPoint& place, bool withFrameWidth) {
  return PopUp(*mnuImageOptions_, place, withFrameWidth);
}

std::optional<int> PreferenceMenus::PopUp(QMenu& menu, const QPoint& place, bool withFrameWidth) {
  ShowFrameWidth(menu, withFrameWidth);
  const QAction* chosen = menu.exec(place);
  ShowFrameWidth(menu, false);
  if (chosen == nullptr || chosen->data().toInt() == Cancel) return std::nullopt;
  return chosen->data().toInt();
}

void PreferenceMenus::ShowLook(const BoardLook& look) {
  Check(*mnuImageOptions_, StretchImages, look.ImagePositioning == Positioning::Stretched);
  Check(*mnuImageOptions_, CenterImages, look.ImagePositioning == Positioning::Centred);
  Check(*mnuImageOptions_, Borders, look.UseBorders);
  Check(*mnuSystemColors_, Borders, look.UseBorders);
}
