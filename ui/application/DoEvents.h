#pragma once

class PicturePace;

// Lets pending events run: the one place where the program yields inside a handler. While the
// player watches the knight walk, it returns when he has seen the step.
void DoEvents(PicturePace& pace);
