#pragma once

class QDialog;
class QSize;
class QWidget;

// Of the rows of a dialog this one has the buttons; without such a row it is the last.
void KeepInSight(QWidget& row);

// Keeps a dialog within a room, its frame not counted. Where it would be larger, the rows of its
// layout scroll, all but the one with the buttons: it stays in sight below them. A dialog whose
// layout is no column stays as it is.
void FitDialog(QDialog& dialog, const QSize& room);
