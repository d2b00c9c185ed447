#pragma once

// How long to wait for another copy of the program that has a lock.
enum class Wait { Not, AMoment, AsLongAsItTakes };

// What became of asking for a lock. Some disks know no locks: of two copies that change a file
// there at once, the last one wins.
enum class FileLock { Taken, AnotherHasIt, ThereIsNone };

// Locks an open file or folder until it is closed. The lock belongs to the process, so a killed one
// leaves nothing that the next would have to wait for or clear away.
[[nodiscard]] FileLock TakeLock(int descriptor, Wait wait);
