#include "DrawingSurface.hpp"

#include <cmath>

namespace ordwise {
namespace {

// Glyphs that go on where a run of the same style ended belong to that run.
bool continues(const Glyphs& run, const DrawingSurface& pen) {
    constexpr double joint = 1e-6;
    return run.face == pen.FontFace && run.size == pen.FontSize && run.colour == pen.ForeColor &&
           std::abs(run.y - pen.CurrentY) < joint &&
           std::abs(run.x + textWidth(run.face, run.text, run.size) - pen.CurrentX) < joint;
}

}  // namespace

void DrawingSurface::print(std::string_view text) {
    if (text.empty()) return;
    Glyphs* run = drawn_.empty() ? nullptr : std::get_if<Glyphs>(&drawn_.back());
    if (run != nullptr && continues(*run, *this)) {
        run->text += text;
    } else if (text.find_first_not_of(' ') != std::string_view::npos) {  // blanks alone draw nothing
        drawn_.push_back(Glyphs{std::string(text), CurrentX, CurrentY, FontFace, FontSize, ForeColor});
    }
    CurrentX += textWidth(FontFace, text, FontSize);
}

void DrawingSurface::printLine(std::string_view text) {
    print(text);
    CurrentX = 0;
    CurrentY += lineHeightOf(FontFace, FontSize);
}

void DrawingSurface::line(double x1, double y1, double x2, double y2) {
    drawn_.push_back(Stroke{x1, y1, x2, y2, DrawWidth, ForeColor});
}

void DrawingSurface::circle(double x, double y, double radius, bool filled) {
    drawn_.push_back(Circle{x, y, radius, DrawWidth, ForeColor, filled});
}

void DrawingSurface::image(std::string_view key, double x, double y, double width, double height) {
    drawn_.push_back(Picture{std::string(key), x, y, width, height});
}

void DrawingSurface::NewPage() {}

void DrawingSurface::cls() {
    drawn_.clear();
    CurrentX = 0;
    CurrentY = 0;
}

}  // namespace ordwise
