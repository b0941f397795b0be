// Where the window of the graph opens, so that it hides the least of what it belongs to.
#pragma once

namespace ordwise {

// In pixels of the screen.
struct WindowPlace {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
    bool operator==(const WindowPlace&) const = default;
};

// To the right of the frame, where there is room, otherwise on the frame beside the sheets, smaller
// if need be but with its picture as a square; otherwise at the right border of the screen. `wanted`
// has the size with its frame, `strip` is what stands beside the picture.
[[nodiscard]] WindowPlace placeOfGraph(const WindowPlace& screen, const WindowPlace& frame, double sheetsEnd,
                                       const WindowPlace& wanted, double strip);

}  // namespace ordwise
