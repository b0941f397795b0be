#include "DrawingSurface.hpp"

#include <cmath>

namespace ordwise {
namespace {

struct Shift {
    double right = 0;
    double down = 0;

    void operator()(Stroke& stroke) const {
        stroke.x1 += right;
        stroke.y1 += down;
        stroke.x2 += right;
        stroke.y2 += down;
    }
    template <class Placed>
    void operator()(Placed& placed) const {
        placed.x += right;
        placed.y += down;
    }
};

}  // namespace

void DrawingSurface::Scale(double left, double top, double right, double bottom, const DrawingArea& area) {
    perX_ = area.width / (right - left);
    perY_ = area.height / (bottom - top);
    originX_ = area.x - left * perX_;
    originY_ = area.y - top * perY_;
}

double DrawingSurface::TextWidth(std::string_view text) const {
    return textWidth(FontFace, text, FontSize) / std::abs(perX_);
}

double DrawingSurface::TextHeight() const {
    return lineHeightOf(FontFace, FontSize) / std::abs(perY_);
}

double DrawingSurface::EmAcross() const {
    return emOf(FontFace, FontSize) / std::abs(perX_);
}

double DrawingSurface::EmDown() const {
    return emOf(FontFace, FontSize) / std::abs(perY_);
}

double DrawingSurface::SignAir(char sign) const {
    return signAir(FontFace, sign, FontSize) / std::abs(perX_);
}

DrawingSurface DrawingSurface::trial() const {
    DrawingSurface empty;
    empty.FontSize = FontSize;
    empty.FontFace = FontFace;
    empty.perX_ = perX_;
    empty.perY_ = perY_;
    return empty;
}

// Glyphs that go on where a run of the same style ended belong to that run.
bool DrawingSurface::continues(const Glyphs& run) const {
    constexpr double joint = 1e-6;
    return run.face == FontFace && run.size == FontSize && run.colour == ForeColor &&
           std::abs(run.y - down(CurrentY)) < joint && std::abs(runEnd_ - across(CurrentX)) < joint;
}

// `width` in units of the drawing.
void DrawingSurface::addText(std::string_view text, double width) {
    Glyphs* run = drawn_.empty() ? nullptr : std::get_if<Glyphs>(&drawn_.back());
    if (run != nullptr && continues(*run)) {
        run->text += text;
        runEnd_ += width;
    } else if (text.find_first_not_of(' ') != std::string_view::npos) {  // blanks alone draw nothing
        Glyphs& begun = std::get<Glyphs>(drawn_.emplace_back(std::in_place_type<Glyphs>));
        begun.text = text;
        begun.x = across(CurrentX);
        begun.y = down(CurrentY);
        begun.face = FontFace;
        begun.size = FontSize;
        begun.colour = ForeColor;
        runEnd_ = begun.x + width;
    }
}

void DrawingSurface::print(std::string_view text) {
    if (text.empty()) return;
    const double width = textWidth(FontFace, text, FontSize);
    addText(text, width);
    CurrentX += width / std::abs(perX_);
}

void DrawingSurface::printLine(std::string_view text) {
    print(text);
    CurrentX = 0;
    CurrentY += TextHeight();
}

void DrawingSurface::line(double x1, double y1, double x2, double y2) {
    drawn_.push_back(Stroke{across(x1), down(y1), across(x2), down(y2), DrawWidth, ForeColor});
}

void DrawingSurface::circle(double x, double y, double radius, bool filled) {
    drawn_.push_back(Circle{across(x), down(y), radius * std::abs(perX_), DrawWidth, ForeColor, filled});
}

void DrawingSurface::image(std::string_view key, double x, double y, double width, double height) {
    drawn_.push_back(Picture{std::string(key), across(x), down(y), width * std::abs(perX_), height * std::abs(perY_)});
}

void DrawingSurface::place(const DisplayList& drawing, double x, double y) {
    for (DrawOperation operation : drawing) {
        std::visit(Shift{x, y}, operation);
        drawn_.push_back(std::move(operation));
    }
    if (const Glyphs* run = drawn_.empty() ? nullptr : std::get_if<Glyphs>(&drawn_.back()))
        runEnd_ = run->x + textWidth(run->face, run->text, run->size);
}

void DrawingSurface::NewPage() {}

void DrawingSurface::cls() {
    drawn_.clear();
    CurrentX = 0;
    CurrentY = 0;
}

}  // namespace ordwise
