#pragma once

#include <functional>
#include <optional>

#include <QEventLoopLocker>
#include <QObject>
#include <QPageSize>
#include <QTimer>

#include "ui/windows/history/ShellCommand.h"

// Sends documents to the default printer through the system's print commands. They are processes of
// their own: a slow server holds up nobody, and a queue that refuses the document is noticed, which
// Qt's own printing would not tell. The program does not end before the document is on its way.
class DefaultPrinter : public QObject {
  Q_OBJECT

 public:
  // Gives a PDF document for paper of this size.
  using MakeDocument = std::function<QByteArray(const QPageSize& paper)>;

  struct Patience {          // in milliseconds
    int answer = 30000;      // within which a server that is alive answers
    int untilAsked = 30000;  // whether it is alive
    int document = 600000;   // for which it may keep us waiting, though it is alive
  };

  explicit DefaultPrinter(const Patience& patience);

  // One document at a time. Finished follows, whatever happens.
  void Print(const QString& title, MakeDocument makeDocument);
  bool IsPrinting() const { return makeDocument_ != nullptr; }

 signals:
  // Not printed: nothing of it is left with the server, as far as that can be told.
  void Finished(bool printed);
  // After all have heard that it was not printed.
  void Failed();

 private:
  void Send(const QByteArray& answers);
  void AskWhetherServerIsAlive();
  void GiveUp();
  void Withdraw(const QStringList& jobs);
  void Finish(bool printed);

  const Patience patience_;
  QString title_;
  MakeDocument makeDocument_;
  QStringList jobsBefore_;  // that the player had there already
  std::optional<QEventLoopLocker> stay_;
  QTimer watch_;
  ShellCommand question_;
  ShellCommand job_;
};
