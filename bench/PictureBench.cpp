// What hostile pictures take, when a look names six files of a kind: processor time of reading them
// and memory at its peak. One line a kind; each is measured in a process of its own.

#include <cstdio>
#include <functional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include "tests/ui/HostilePictures.h"
#include "ui/widgets/pictures/PictureReader.h"

namespace {

constexpr QSize Largest(MaximumPictureSide, MaximumPictureSide);
constexpr int FilesOfALook = 6;

QByteArray DeepPng(const QSize& size) {
  QImage plain(size, QImage::Format_RGBX64);
  plain.fill(Qt::black);
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  plain.save(&buffer, "PNG");
  return buffer.data();
}

struct Kind {
  const char* name;
  std::function<QByteArray()> make;
};

const Kind Kinds[] = {
    {"JPEG, 150 scans", [] { return ProgressiveJpeg(Largest, 150); }},
    {"JPEG, 32 scans", [] { return ProgressiveJpeg(Largest, 32); }},
    {"JPEG, 60 MB of comments", [] { return JpegWithComments(1000); }},
    {"PNG, 20 GB of texts", [] { return PngWithTexts(20000); }},
    {"such a PNG in an icon", [] { return IconAround(PngWithTexts(20000)); }},
    {"PNG of sixteen bits", [] { return DeepPng(Largest); }},
    {"GIF, an empty large screen", [] { return EmptyGif(Largest); }},
    {"GIF that does not end", [] { return EndlessGif(60000); }},
};

void Make(const Kind& kind, const QStringList& names) {
  const QByteArray bytes = kind.make();
  for (const QString& name : names) {
    QFile file(name);
    if (file.open(QIODevice::WriteOnly)) file.write(bytes);
  }
}

void Measure(const Kind& kind, const QStringList& names) {
  const std::clock_t begun = std::clock();
  const std::vector<QImage> images = PictureReader(QString()).Read(names);
  const double seconds = static_cast<double>(std::clock() - begun) / CLOCKS_PER_SEC;
  qsizetype shown = 0;
  for (const QImage& image : images) shown += image.isNull() ? 0 : 1;
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  std::printf("%-28s %9lld bytes  %5.2f s  %4ld MB  %lld of %d shown\n", kind.name,
              static_cast<long long>(QFile(names.front()).size()), seconds, usage.ru_maxrss / 1024,
              static_cast<long long>(shown), FilesOfALook);
  std::fflush(stdout);
}

// Each kind runs in a process of its own, since the peak of another would hide its own.
void RunApart(const std::function<void()>& work) {
  const pid_t child = fork();
  if (child == 0) {
    work();
    _exit(0);
  }
  waitpid(child, nullptr, 0);
}

}  // namespace

int main(int argumentCount, char* arguments[]) {
  const QGuiApplication application(argumentCount, arguments);
  for (const Kind& kind : Kinds) {
    const QTemporaryDir folder;
    QStringList names;
    for (int i = 0; i < FilesOfALook; ++i) names << folder.filePath(QString::number(i));
    RunApart([&] { Make(kind, names); });
    RunApart([&] { Measure(kind, names); });
  }
}
