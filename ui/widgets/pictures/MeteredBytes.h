#pragma once

#include <ctime>

#include <QByteArray>
#include <QIODevice>

// The bytes of a file for a decoder. When the processor's clock has reached a time there are no
// more of them, which ends any decoder soon; the picture is then not to be used.
class MeteredBytes : public QIODevice {
 public:
  MeteredBytes(QByteArray bytes, std::clock_t until);

  bool IsStopped() const { return isStopped_; }

  qint64 size() const override { return bytes_.size(); }
  bool seek(qint64 place) override;

 protected:
  qint64 readData(char* data, qint64 maximumSize) override;
  qint64 writeData(const char*, qint64) override { return -1; }

 private:
  QByteArray bytes_;
  std::clock_t until_;
  qint64 place_ = 0;
  bool isStopped_ = false;
};
