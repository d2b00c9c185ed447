#pragma once

#include <QString>

// What the program is to the system.

// A file that grows beyond what the process may write is from now on an error of the call that
// writes it, and not the signal that ends the program. Other programs that this one starts get the
// signal as ever.
void TakeSizeLimitAsError();

// The executable's folder, ends in "/".
QString FolderOfProgram();
