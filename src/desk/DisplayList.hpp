// What was drawn, kept as operations: the screen at any scale, the printer, the preview, PDF, SVG
// and the tests all replay the same list.
//
// Coordinates are in the units of the surface (a sheet is 800 wide and 657 high), y downwards.
#pragma once

#include "GlyphMetrics.hpp"

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace ordwise {

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    bool operator==(const Colour&) const = default;
};

inline constexpr Colour black{0, 0, 0};
inline constexpr Colour white{255, 255, 255};
inline constexpr Colour red{255, 0, 0};
inline constexpr Colour blue{0, 0, 255};

// A run of glyphs of one style on one line; (x, y) is the top left of its line box.
struct Glyphs {
    std::string text;
    double x = 0;
    double y = 0;
    Face face = Face::Halvern;
    double size = 0;  // points
    Colour colour;
    bool operator==(const Glyphs&) const = default;
};

struct Stroke {
    double x1 = 0;
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;
    double width = 1;
    Colour colour;
    bool operator==(const Stroke&) const = default;
};

struct Circle {
    double x = 0;  // centre
    double y = 0;
    double radius = 0;
    double width = 1;
    Colour colour;
    bool filled = false;
    bool operator==(const Circle&) const = default;
};

// A picture by its key, its top left at (x, y).
struct Picture {
    std::string key;
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    bool operator==(const Picture&) const = default;
};

using DrawOperation = std::variant<Glyphs, Stroke, Circle, Picture>;
using DisplayList = std::vector<DrawOperation>;

}  // namespace ordwise
