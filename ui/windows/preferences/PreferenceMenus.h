#pragma once

#include <optional>
#include <vector>

#include <QMenu>

#include "storage/BoardLook.h"
#include "ui/application/Announcer.h"

// The indices of the entries that both popup menus share, and of the two choices of Image Options.
// The indices 0 to 24 of System Colors are the system's colour indices.
namespace PreferenceEntry {

inline constexpr int StretchImages = 0;
inline constexpr int CenterImages = 1;
inline constexpr int FrameWidthSeparator = 25;
inline constexpr int FrameWidth = 26;
inline constexpr int Borders = 51;

}  // namespace PreferenceEntry

// The words of the colour menu for a system colour; for any other its red, green and blue.
QString ColorWords(Color color);

// The two popup menus behind the chooser buttons.
class PreferenceMenus {
 public:
  explicit PreferenceMenus(QWidget* parent);

  // Shows a menu at a place on the screen until it is closed; gives the index of the chosen entry,
  // nothing for "Cancel" and for closing it in any other way.
  std::optional<int> PopUpSystemColors(const QPoint& place, bool withFrameWidth);
  std::optional<int> PopUpImageOptions(const QPoint& place, bool withFrameWidth);

  // Sets the check marks.
  void ShowLook(const BoardLook& look);

 private:
  std::optional<int> PopUp(QMenu& menu, const QPoint& place, bool withFrameWidth);
  void AddEntry(QMenu& menu, int index, const char* caption);
  void AddSeparator(QMenu& menu, int index);
  void AddSharedEntries(QMenu& menu);

  Announcer announcer_;
  QMenu* mnuSystemColors_;
  QMenu* mnuImageOptions_;
};
