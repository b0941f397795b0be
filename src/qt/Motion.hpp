// Whether the user's desktop asks for things to stand still.
#pragma once

#include <optional>

class QDBusConnection;

namespace ordwise {

// True if animations or the blinking of the text cursor are turned off on this desktop.
[[nodiscard]] bool reducedMotionWanted();

// What the desktop's own settings say of animations, asked over the bus as sandboxed programs do;
// nothing where no desktop answers soon.
[[nodiscard]] std::optional<bool> animationsByPortal(const QDBusConnection& bus);

}  // namespace ordwise
