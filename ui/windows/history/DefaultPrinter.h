#pragma once

#include <QObject>
#include <QProcess>
#include <QTimer>

// Sends documents to the default printer through the system's print command. That is a process of
// its own: a print server that accepts a connection and never answers holds up nobody, and a queue
// that refuses the document is noticed, which the toolkit's printing would not tell.
class DefaultPrinter : public QObject {
  Q_OBJECT

 public:
  DefaultPrinter();

  // One document at a time. Finished follows, after two seconds at the latest.
  void Print(const QString& title, const QByteArray& pdf);
  bool IsPrinting() const { return printing_; }

 signals:
  void Finished(bool accepted);

 private:
  void Finish(bool accepted);

  QProcess command_;
  QTimer patience_;
  bool printing_ = false;
};
