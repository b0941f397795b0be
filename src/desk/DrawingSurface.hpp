// The pen that the renderer, the solvers' figures and the graph draw with. It draws nothing itself:
// it records a display list, which a painter replays.
#pragma once

#include "DisplayList.hpp"

#include <string_view>

namespace ordwise {

class DrawingSurface {
public:
    DrawingSurface() = default;
    DrawingSurface(const DrawingSurface&) = default;
    DrawingSurface(DrawingSurface&&) = default;
    DrawingSurface& operator=(const DrawingSurface&) = default;
    DrawingSurface& operator=(DrawingSurface&&) = default;
    virtual ~DrawingSurface() = default;

    // The pen. CurrentY is the top of the text to be drawn next.
    double CurrentX = 0;
    double CurrentY = 0;
    double FontSize = 18;  // points
    Face FontFace = Face::Halvern;
    Colour ForeColor = black;
    double DrawWidth = 1;  // of strokes and circles

    // Text at the pen: CurrentX moves by its width.
    void print(std::string_view text);
    // The same, then the pen goes to x 0 and one line of the current font down.
    void printLine(std::string_view text);
    // Strokes and circles leave the pen where it is.
    void line(double x1, double y1, double x2, double y2);
    void circle(double x, double y, double radius, bool filled = false);
    void image(std::string_view key, double x, double y, double width, double height);
    // A fresh page; a surface that is one page starts over nothing and keeps its list.
    virtual void NewPage();

    // Wipes all that was drawn and puts the pen to (0, 0); font and colours stay.
    void cls();
    [[nodiscard]] const DisplayList& drawn() const noexcept { return drawn_; }

protected:
    DisplayList drawn_;
};

}  // namespace ordwise
