#pragma once

#include <optional>

#include <QColor>
#include <QString>

#include "core/GameWindow.h"

class QWidget;

// The small dialogs of the whole program. Each belongs to the widget given, or to the topmost
// dialog that is open.

// A Yes/No question with a question icon; true for Yes. Closing the box is No.
bool AskQuestion(QWidget& mainWindow, const QString& title, const QString& text,
                 DefaultAnswer defaultAnswer);
void TellMessage(QWidget& mainWindow, const QString& title, const QString& text, MessageIcon icon);

// Nothing when cancelled.
std::optional<QColor> ChooseColor(QWidget& mainWindow, const QColor& initial);
std::optional<QString> InputBox(QWidget& mainWindow, const QString& title, const QString& prompt,
                                const QString& prefilled);

// The topmost dialog that is open, else the widget itself.
QWidget* DialogParent(QWidget& mainWindow);
