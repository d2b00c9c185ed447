#pragma once

#include <QByteArrayView>
#include <QString>

// The text of bytes from a file: UTF-8, or Windows-1252 where they are not valid UTF-8.
QString TextFromBytes(QByteArrayView bytes);
