// Keys that were not taken. Whoever looks at the keyboard while typing misses the red light: "1/2x+3=7"
// where no "/" is allowed would become 12x+3=7 unseen. So the worksheet remembers them, with a mark at
// the place of each, until the student has gone back over the place, or Erase or Solve.
#pragma once

#include <string>
#include <string_view>

namespace ordwise {

// A key has just been refused at the end of the paper (box 0) or of a box; its reason stands in
// ExplainOverrideText. The same key at the same place is remembered once.
void rememberDroppedKey(std::string_view key, int box = 0);

// After something was taken back from the paper or from a box: what was dropped there, or behind it,
// no longer matters.
void forgetKeysGoneBackOver(int box = 0);

// None is outstanding and no mark is to be seen.
void forgetDroppedKeys();

// Puts a mark at the place of each, on the paper and at the boxes, as they are drawn now.
void markDroppedKeys();

// e.g. "'/' was not taken: The division symbol is not allowed ...", and how many others there are; ""
// if none is outstanding. Of several the one whose reason the light tells, otherwise the first.
[[nodiscard]] std::string droppedKeysSentence();

}  // namespace ordwise
