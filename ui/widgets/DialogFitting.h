#pragma once

class QDialog;
class QSize;

// Keeps a dialog within a room, its frame not counted. Where it would be larger, the rows of its
// layout scroll, all but the last: the buttons there stay in sight. A dialog whose layout is no
// column stays as it is.
void FitDialog(QDialog& dialog, const QSize& room);
