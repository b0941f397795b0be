// The boxes and lists of the box topics: what can be typed into them, how wide they grow, and when
// the problem in them is complete.
//
// Numbers of boxes and lists are those of their names, Text1 to Text6 and Combo1 to Combo3. A refusal
// changes nothing but ExplainOverrideText, where its sentence stands.
#pragma once

#include <string>
#include <string_view>

namespace ordwise {

// One key in a box: digits, one ".", a "-" at the start, and Backspace (backspaceKey), which takes the last
// character away; ten characters at most. The boxes of exponents take no ".". False if refused, also
// once the problem has been solved. e.g. "3" in the box "-1" -> "-13"
bool Text_KeyPress(int number, std::string_view key);

// Fills an empty box as if `text` were typed key by key; stops at the first refused key, and refuses
// a box that the topic does not show. e.g. typeIntoBox(1, "1x") -> false, the box holds "1"
bool typeIntoBox(int number, std::string_view text);

// Whether a text could have been typed into the box of this topic. e.g. (25, 2, "1.5") -> false
[[nodiscard]] bool isBoxText(int problemType, int number, std::string_view text);

// Puts text that needs no check into a box, as a saved problem or an example does.
void setBoxText(int number, std::string text);

// Empties all boxes.
void clearBoxes();

// Selects an entry of a list, from 0. False for an entry that the list does not have, or a list that
// the topic does not show.
bool selectInCombo(int number, int index);

// True if the boxes of the current topic hold a complete problem; false for a topic of the paper.
[[nodiscard]] bool boxesAreReady();

// What keeps the boxes from being ready, in a sentence.
// e.g. "The problem is not finished: 2 boxes still need a number."
[[nodiscard]] std::string whatBoxesMiss();

}  // namespace ordwise
