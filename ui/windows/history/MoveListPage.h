#pragma once

#include <QByteArray>
#include <QPageSize>
#include <QString>
#include <QStringList>

// The printed list of moves as a PDF document of one page, in two columns of 32 moves. version as
// in exported lists, such as "1.0".
QByteArray MoveListPage(const QStringList& lines, const QString& version, const QPageSize& paper);
