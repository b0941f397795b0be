// Whether the user's desktop asks for things to stand still.
#pragma once

namespace ordwise {

// True if animations or the blinking of the text cursor are turned off on this desktop.
[[nodiscard]] bool reducedMotionWanted();

}  // namespace ordwise
