#pragma once

// Lets pending events run: the one place where the program yields inside a handler.
void DoEvents();
