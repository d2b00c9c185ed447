#pragma once

#include <optional>

#include <QByteArray>
#include <QPageSize>

// The paper that a print queue takes by default; queueOptions as the system lists them, a line for
// each option with its choices and a star before the default one. Nothing where it is not told.
std::optional<QPageSize> DefaultPaperIn(const QByteArray& queueOptions);

// What is usual in the player's country, else A4.
QPageSize PaperOfLocale();
