#include "ui/windows/history/ShellCommand.h"

#include <csignal>
#include <unistd.h>
#include <utility>

ShellCommand::ShellCommand() {
  process_.setStandardErrorFile(QProcess::nullDevice());
  // The shell gets a group of its own, so that what it has started ends with it.
  process_.setChildProcessModifier([] { setsid(); });
  connect(&process_, &QProcess::finished, this, [this](int exitCode, QProcess::ExitStatus how) {
    Result result{.output = process_.readAllStandardOutput()};
    if (how == QProcess::NormalExit) result.exitCode = exitCode;
    End(result);
  });
  connect(&process_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) End({});
  });
  patience_.setSingleShot(true);
  connect(&patience_, &QTimer::timeout, this, &ShellCommand::Kill);
}

ShellCommand::~ShellCommand() {
  Stop();
}

// Through the shell, which is always there: Qt loses an open file with every command that cannot be
// started.
void ShellCommand::Run(const QString& script, const QStringList& arguments, const QByteArray& input,
                       int patience, Then then) {
  then_ = std::move(then);
  patience_.start(patience);
  process_.start("/bin/sh", QStringList{"-c", script, "sh"} + arguments);
  process_.write(input);
  process_.closeWriteChannel();
}

void ShellCommand::Stop() {
  then_ = nullptr;
  patience_.stop();
  Kill();
  process_.waitForFinished();
}

void ShellCommand::Kill() {
  if (process_.processId() != 0) kill(static_cast<pid_t>(-process_.processId()), SIGKILL);
  process_.kill();
}

void ShellCommand::End(const Result& result) {
  patience_.stop();
  if (const Then then = std::exchange(then_, nullptr)) then(result);
}
