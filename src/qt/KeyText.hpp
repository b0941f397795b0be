// What a key of the keyboard is to the logic.
#pragma once

#include <string>

class QKeyEvent;

namespace ordwise {

// The character of the key in UTF-8, "\b" for Backspace, "\r" for Enter; "" for a key that is no
// text, or that is held with Ctrl, Alt or the like.
[[nodiscard]] std::string keyTextOf(const QKeyEvent& event);

}  // namespace ordwise
