// The per-user settings: read at start, written at exit.
//
// The file is text, the eleven keys of the settings table as lines of section [Ordwise]:
//
//   [Ordwise]
//   RoundVar=2
//
// A missing or broken file, and every line that is none of ours, means the default of that setting.
#pragma once

#include <string>
#include <string_view>

namespace ordwise {

// Every setting takes its value of the text, or its default.
void takeSettings(std::string_view text);
// The settings as they stand, keys in the order of the table.
[[nodiscard]] std::string settingsText();

// The same from and to the user's file. Writing answers with one sentence where it failed, "" if it
// went well; there is nothing to fear: the old file is then as it was.
void readSettings();
std::string writeSettings();

}  // namespace ordwise
