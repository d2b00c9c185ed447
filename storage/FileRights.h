#pragma once

// Gives an open file the owner, the group, the permissions, the access lists and all other extended
// attributes of another one. False when something of it cannot be given; what the file has then
// lets nobody in who may not read the other one.
[[nodiscard]] bool CopyRights(int from, int to);
