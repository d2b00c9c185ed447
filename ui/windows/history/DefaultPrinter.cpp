#include "ui/windows/history/DefaultPrinter.h"

namespace {

constexpr int PatienceMilliseconds = 2000;

}  // namespace

DefaultPrinter::DefaultPrinter() {
  command_.setStandardOutputFile(QProcess::nullDevice());
  command_.setStandardErrorFile(QProcess::nullDevice());
  connect(&command_, &QProcess::finished, this,
          [this](int exitCode, QProcess::ExitStatus exitStatus) {
            Finish(exitStatus == QProcess::NormalExit && exitCode == 0);
          });
  connect(&command_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) Finish(false);
  });
  patience_.setSingleShot(true);
  patience_.setInterval(PatienceMilliseconds);
  connect(&patience_, &QTimer::timeout, &command_, &QProcess::kill);
}

void DefaultPrinter::Print(const QString& title, const QByteArray& pdf) {
  printing_ = true;
  patience_.start();
  // Through the shell, which is always there: the toolkit loses an open file with every command
  // that cannot be started.
  command_.start("/bin/sh", {"-c", "exec lp -t \"$1\"", "print", title});
  command_.write(pdf);
  command_.closeWriteChannel();
}

void DefaultPrinter::Finish(bool accepted) {
  patience_.stop();
  printing_ = false;
  emit Finished(accepted);
}
