// Guided typing: what happens on every key on the paper.
//
// A topic without boxes is typed on the paper, key by key. A key that keeps the problem
// well formed enters InputTokens, and the line is drawn anew; any other is refused: the light turns
// red, ExplainOverrideText says why, and nothing else changes.
#pragma once

#include <string_view>

namespace ordwise {

// A key is one character in UTF-8. Two of them are no text:
inline constexpr std::string_view backspaceKey = "\b";
inline constexpr std::string_view enterKey = "\r";

enum class KeyOutcome {
    Accepted,
    Refused,   // the reason is in ExplainOverrideText
    Dropped,   // not even looked at: the line is full, or the paper takes no keys; the status line tells
    Commanded  // Enter has run Solve or Next Step
};

// A key pressed on the worksheet. Enter that has nothing to run is refused with what is missing. A
// refused character is remembered as dropped. Leaves the light, the pencil, the drawn line, ProblemText and
// whether Solve is enabled as they are to be seen. CharAccepted is true for Accepted only.
// e.g. "4" behind "3/" -> Accepted; the paper shows #3/4#
KeyOutcome Form_KeyPress(std::string_view key);

// Draws the typed line anew, with the light, the pencil and Solve as after a key that was accepted:
// for typed text that has changed otherwise.
void showTypedAgain();

// A key for the text alone: CharAccepted, InputTokens, the syntax state, the rewrite and Solve.
// `quiet` draws nothing; example problems are typed so.
void FormFilter(std::string_view key, bool quiet);

// Whether a drawn line leaves room for further keys. Draws nothing. Faults (9) as the renderer does.
[[nodiscard]] bool hasRoomFor(std::string_view line);

}  // namespace ordwise
