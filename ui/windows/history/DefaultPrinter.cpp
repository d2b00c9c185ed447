#include "ui/windows/history/DefaultPrinter.h"

#include <utility>

#include <QRegularExpression>

#include "ui/windows/history/Paper.h"

namespace {

constexpr const char* AskForJobs = "lpstat -u \"$(id -un)\"";
constexpr const char* AskForPaperAndJobs = "lpoptions -l; lpstat -u \"$(id -un)\"";

// "Keeper-12   somebody   1024   Sun Nov 22 00:00:00 2026": a line for each job.
QStringList JobsIn(const QByteArray& answers) {
  static const QRegularExpression job("^(\\S+-\\d+)\\s", QRegularExpression::MultilineOption);
  QStringList jobs;
  for (const auto& match : job.globalMatch(QString::fromUtf8(answers))) jobs += match.captured(1);
  return jobs;
}

}  // namespace

DefaultPrinter::DefaultPrinter(const Patience& patience) : patience_(patience) {
  watch_.setSingleShot(true);
  watch_.setInterval(patience_.untilAsked);
  connect(&watch_, &QTimer::timeout, this, &DefaultPrinter::AskWhetherServerIsAlive);
}

// The server is asked first for what the document needs to know, and for what tells its job from
// others should it be withdrawn.
void DefaultPrinter::Print(const QString& title, MakeDocument makeDocument) {
  title_ = title;
  makeDocument_ = std::move(makeDocument);
  stay_.emplace();
  question_.Run(AskForPaperAndJobs, {}, {}, patience_.answer,
                [this](const ShellCommand::Result& result) {
                  result.exitCode ? Send(result.output) : Finish(false);
                });
}

void DefaultPrinter::Send(const QByteArray& answers) {
  jobsBefore_ = JobsIn(answers);
  const QPageSize paper = DefaultPaperIn(answers).value_or(PaperOfLocale());
  watch_.start();
  job_.Run("exec lp -t \"$1\"", {title_}, makeDocument_(paper), patience_.document,
           [this](const ShellCommand::Result& result) {
             result.exitCode ? Finish(*result.exitCode == 0) : GiveUp();
           });
}

void DefaultPrinter::AskWhetherServerIsAlive() {
  question_.Run(AskForJobs, {}, {}, patience_.answer, [this](const ShellCommand::Result& result) {
    result.exitCode ? watch_.start() : GiveUp();
  });
}

// What has come through of the document must not be printed now that it is said to be lost.
void DefaultPrinter::GiveUp() {
  watch_.stop();
  job_.Stop();
  question_.Stop();
  question_.Run(AskForJobs, {}, {}, patience_.answer, [this](const ShellCommand::Result& result) {
    QStringList jobs = JobsIn(result.output);
    jobs.removeIf([this](const QString& job) { return jobsBefore_.contains(job); });
    jobs.isEmpty() ? Finish(false) : Withdraw(jobs);
  });
}

void DefaultPrinter::Withdraw(const QStringList& jobs) {
  question_.Run("exec cancel \"$@\"", jobs, {}, patience_.answer,
                [this](const ShellCommand::Result&) { Finish(false); });
}

void DefaultPrinter::Finish(bool printed) {
  watch_.stop();
  question_.Stop();
  makeDocument_ = nullptr;
  emit Finished(printed);
  if (!printed) emit Failed();
  stay_.reset();
}
