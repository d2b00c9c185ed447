#pragma once

#include <functional>
#include <optional>

#include <QByteArray>
#include <QObject>
#include <QProcess>
#include <QStringList>
#include <QTimer>

// A command of the system that runs beside the program, for a while and no longer: one that waits
// for a server holds up nobody. One at a time.
class ShellCommand : public QObject {
  Q_OBJECT

 public:
  struct Result {
    std::optional<int> exitCode = std::nullopt;  // none when it was broken off
    QByteArray output = QByteArray();
  };
  using Then = std::function<void(const Result& result)>;

  ShellCommand();
  ~ShellCommand() override;

  // script: for the system's shell, with the arguments as "$@". then is called when the command has
  // ended, after so many milliseconds at the latest.
  void Run(const QString& script, const QStringList& arguments, const QByteArray& input,
           int patience, Then then);
  bool IsRunning() const { return then_ != nullptr; }
  // Breaks it off; nothing is called any more.
  void Stop();

 private:
  void Kill();
  void End(const Result& result);

  Then then_;
  QTimer patience_;
  QProcess process_;
};
