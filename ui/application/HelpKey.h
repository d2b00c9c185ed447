#pragma once

#include <functional>

#include <QObject>

class QWidget;

// F1 in any dialog asks for that dialog's page. The main window has a menu entry for its own F1.
class HelpKey : public QObject {
 public:
  using GetHelp = std::function<void(const QString& topic)>;

  // getHelp gets the window's object name, or nothing for a window without a page.
  explicit HelpKey(GetHelp getHelp);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  GetHelp getHelp_;
};

// The object name of the window that a widget is in; for a message or a file dialog, which have no
// page, that of the window it was opened from.
QString HelpTopicOf(const QWidget& widget);
