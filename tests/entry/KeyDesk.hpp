// A fresh worksheet to press keys on, and what a student sees of it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ordwise::test {

// As a freshly started program in which the topic has just been chosen.
void chooseFresh(std::string_view topic);

// Keys as a case writes them: one character a key, "<-" for Backspace.
[[nodiscard]] std::vector<std::string> keysOf(std::string_view text);

[[nodiscard]] std::string typedText();
[[nodiscard]] std::string shownMarkup();
[[nodiscard]] bool solveEnabled();

// Presses the keys on a fresh worksheet and tells what came of it:
// typed text | markup | Solve or no Solve | "key" refused: reason (and n more)
[[nodiscard]] std::string afterKeys(std::string_view topic, std::string_view keys);

}  // namespace ordwise::test
