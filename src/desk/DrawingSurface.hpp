// The pen that the renderer, the solvers' figures and the graph draw with. It draws nothing itself:
// it records a display list, which a painter replays.
#pragma once

#include "DisplayList.hpp"

#include <string_view>

namespace ordwise {

struct DrawingArea {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
};

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
    Colour BackColor = white;
    double DrawWidth = 1;  // of strokes and circles, in units of the drawing

    // The pen's own units: from now on (left, top) to (right, bottom) lie over an area of the drawing
    // that begins at (x, y). Without it the pen counts in units of the drawing. Letters keep their
    // size; their widths and heights are told in the pen's units.
    // e.g. Scale(0, 0, 800, 600, page) for a page, Scale(-20, 20, 20, -20, window) for a graph
    void Scale(double left, double top, double right, double bottom, const DrawingArea& area);

    // Room that text of the current font takes, in the pen's units.
    [[nodiscard]] double TextWidth(std::string_view text) const;
    [[nodiscard]] double TextHeight() const;
    // The em of the current font, in the pen's units, and the air of a sign (see GlyphMetrics.hpp).
    [[nodiscard]] double EmAcross() const;
    [[nodiscard]] double EmDown() const;
    [[nodiscard]] double SignAir(char sign) const;
    // An empty surface with the same font and units, its pen at (0, 0), to try out how much room
    // something takes.
    [[nodiscard]] DrawingSurface trial() const;

    // Text at the pen: CurrentX moves by its width.
    void print(std::string_view text);
    // The same, then the pen goes to x 0 and one line of the current font down.
    void printLine(std::string_view text);
    // Strokes and circles leave the pen where it is. A radius counts in units across.
    void line(double x1, double y1, double x2, double y2);
    void circle(double x, double y, double radius, bool filled = false);
    void image(std::string_view key, double x, double y, double width, double height);
    // A finished drawing, its corner at (x, y) of this drawing.
    void place(const DisplayList& drawing, double x, double y);
    // A fresh page; a surface that is one page starts over nothing and keeps its list.
    virtual void NewPage();

    // Wipes all that was drawn and puts the pen to (0, 0); font and colours stay.
    void cls();
    [[nodiscard]] const DisplayList& drawn() const noexcept { return drawn_; }

protected:
    DisplayList drawn_;

private:
    [[nodiscard]] double across(double x) const { return originX_ + x * perX_; }
    [[nodiscard]] double down(double y) const { return originY_ + y * perY_; }
    [[nodiscard]] bool continues(const Glyphs& run) const;
    void addText(std::string_view text, double width);

    // Where the pen's (0, 0) lies in the drawing, and how much of it one unit of the pen takes.
    double originX_ = 0;
    double originY_ = 0;
    double perX_ = 1;
    double perY_ = 1;
    // Where the last run of glyphs ends, so that it need not be measured again with each glyph.
    double runEnd_ = 0;
};

}  // namespace ordwise
