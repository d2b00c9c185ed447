#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QMenu>

#include "tests/ui/Desk.h"
#include "ui/windows/preferences/frmPreferences.h"

// A desk where the preferences are opened and worked with.
class PreferencesDesk : public Desk {
 protected:
  using Work = std::function<void(frmPreferences& window)>;
  using MenuWork = std::function<void(QMenu& menu)>;

  // Opens the preferences from the menu and works in them. The work ends with the window closed;
  // a window that it leaves open is cancelled.
  void InPreferences(const Work& work);
  // As a new start of the program.
  void Restart();

  // The next window is the colour dialog: a colour is chosen there.
  void ChooseColor(const QColor& color);
  // The next window is a file dialog: a file is chosen there.
  void ChooseFile(const QString& pathName);
  // The next window is the frame width's box: it is answered.
  void AnswerFrameWidth(const QString& answer);
  // The next window is cancelled, whatever it is.
  void CancelNextWindow();
  // What is done in the popup menu that opens next. It ends with the menu closed.
  void WhenPopupOpens(const MenuWork& work);

  // A picture in one colour, as a file of the program directory; gives its path.
  QString PictureFile(const QString& name, const QColor& color);
  // What the settings file has for a key; empty when it has not got it.
  QString Stored(const QString& section, const QString& key) const;
  const Settings& InMemory() const { return globals.settings; }

 private:
  QObject popupVisitor_;
};

void Click(QWidget& window, const char* button);
void RightClick(QWidget& window, const char* button);
QString CaptionOf(QWidget& window, const char* button);
// The colour in the middle of a widget, and that beside its corner.
QColor ColorOf(QWidget& window, const char* widget);
QColor EdgeColorOf(QWidget& window, const char* widget);
// One square of the preview board.
QAbstractButton& Cell(QWidget& window, int x, int y);
std::string SelectedSquare(QWidget& window);

QAction& Entry(const QMenu& menu, int index);
// Picks an entry with the mouse; the menu closes.
void Pick(QMenu& menu, int index);
