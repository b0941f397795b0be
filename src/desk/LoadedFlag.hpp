// Whether a window is open, and whether it has been at all since it was as the program starts.
//
// What a window holds is made by its load routine and changed while it is open. So one that was never
// open need not be put back for a fresh program, and most are not: a solve opens the paper alone.
#pragma once

namespace ordwise {

class LoadedFlag {
public:
    LoadedFlag& operator=(bool loaded) {
        loaded_ = loaded;
        wasLoaded_ = wasLoaded_ || loaded;
        return *this;
    }
    operator bool() const { return loaded_; }
    // Until the flag is assigned that of a window as it starts.
    [[nodiscard]] bool wasLoaded() const { return wasLoaded_; }

private:
    bool loaded_ = false;
    bool wasLoaded_ = false;
};

}  // namespace ordwise
