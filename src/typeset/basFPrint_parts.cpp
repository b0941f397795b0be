// The constructs of a line: exponent, fraction, radical. Each draws at the pen and leaves the pen
// behind what it drew; the line routine puts CurrentY back to its base line.
#include "basFPrint.hpp"

#include "Fault.hpp"
#include "MarkupReader.hpp"

#include <string>
#include <utility>

namespace ordwise {
namespace {

constexpr std::size_t longestPart = 50;

// Where a radical sign of ordinary height stands.
constexpr double signLeft = 2;

// "a/(b/c)" -> "a", "(b/c)"; without a bar both are empty.
std::pair<std::string_view, std::string_view> halvesOf(std::string_view text) {
    const std::size_t bar = fractionBar(text);
    if (bar == std::string_view::npos) return {};
    return {text.substr(0, bar), text.substr(bar + 1)};
}

// What counts for the width of a half: marks, signs, points and blanks do not.
std::size_t countedLength(std::string_view half) {
    std::size_t count = 0;
    for (const char c : half) {
        if (std::string_view(" .[]^+-*~").find(c) == std::string_view::npos) ++count;
    }
    return count;
}

// Blanks that move the shorter half to the middle: none for a difference of one.
std::size_t padding(std::size_t length, std::size_t other) {
    return length < other ? 2 * (other - length - 1) : 0;
}

// The text between the mark at `at` and its partner; the fault if there is none.
std::string_view partAt(std::string_view text, std::size_t at) {
    const std::size_t end = text.find(text[at], at + 1);
    if (end == std::string_view::npos) raise(FaultNumber::Subscript);
    return text.substr(at + 1, end - at - 1);
}

}  // namespace

void MathLineRenderer::PrintExponent(std::string_view text) {
    const double size = surface_->FontSize;
    const double y = surface_->CurrentY;
    surface_->FontSize = offsets_.exponentSize;
    surface_->CurrentY -= offsets_.exponentRaise.at(surface_->FontSize);
    surface_->print(text);
    surface_->FontSize = size;
    surface_->CurrentY = y;
}

void MathLineRenderer::PrintFraction(std::string_view text) {
    const auto [num, den] = halvesOf(text);
    if (num.size() > longestPart || den.size() > longestPart) raise(FaultNumber::Subscript);
    const std::size_t a = countedLength(num);
    const std::size_t b = countedLength(den);
    const std::string_view longer = a < b ? den : num;
    const double x0 = surface_->CurrentX;
    const double drop = offsets_.denominatorDrop.at(surface_->FontSize);

    surface_->CurrentY -= offsets_.numeratorRaise.at(surface_->FontSize);
    const double numeratorEnd = half(num, padding(a, b));
    double right = num == longer ? numeratorEnd : x0;
    surface_->CurrentY += drop;
    surface_->CurrentX = x0;
    denominatorEndX_ = half(den, padding(b, a));
    if (den == longer) right = denominatorEndX_;
    surface_->CurrentY -= drop;
    surface_->CurrentX = x0;
    bar(right);
}

// Draws one half at the pen; returns where it ends.
double MathLineRenderer::half(std::string_view text, std::size_t padding) {
    surface_->print(std::string(padding, ' '));
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '^' || c == '~') {
            const std::string_view part = partAt(text, i);
            if (c == '^') {
                PrintExponent(part);
            } else {
                PrintRadical(part);
            }
            i += part.size() + 1;
        } else if (c == '[' || c == ']') {
            colour(c);
        } else {
            surface_->print(text.substr(i, 1));
        }
    }
    return surface_->CurrentX;
}

void MathLineRenderer::PrintRadical(std::string_view text) {
    if (text.size() > longestPart) raise(FaultNumber::Subscript);
    const double y0 = surface_->CurrentY;
    const double x0 = surface_->CurrentX;
    bool hasFraction = false;

    surface_->print("  ");  // room for the sign
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '#' || c == '^') {
            const std::string_view part = partAt(text, i);
            if (c == '#') {
                PrintFraction(part);
                surface_->CurrentY = y0;
                hasFraction = true;
                endsInFraction_ = true;
            } else {
                PrintExponent(part);
            }
            i += part.size() + 1;
        } else if (c == '[' || c == ']') {
            colour(c);
        } else {
            surface_->print(text.substr(i, 1));
        }
    }
    const double end = surface_->CurrentX;

    surface_->CurrentY -= offsets_.radicalBarRaise.at(surface_->FontSize);
    // Over a fraction the bar rises as far as its sign does, or it would strike the numerator through.
    if (hasFraction) surface_->CurrentY -= offsets_.tallSignUp;
    surface_->CurrentX = x0 + offsets_.radicalBarStart.at(surface_->FontSize);
    bar(end);
    const double barEnd = surface_->CurrentX;

    surface_->CurrentY = y0;
    surface_->CurrentX = x0;
    if (hasFraction) {
        surface_->CurrentY -= offsets_.tallSignUp;
        surface_->CurrentX += offsets_.tallSignRight;
        surface_->print("&");
        surface_->CurrentY += offsets_.tallSignDown;
        surface_->CurrentX -= offsets_.tallSignLeft;
    } else {
        surface_->CurrentX -= signLeft;
        surface_->CurrentY -= offsets_.signUp;
    }
    surface_->print("~");
    surface_->CurrentX = barEnd;
    surface_->CurrentY = y0;
}

// A row of bar pieces from the pen to the first joint past `until`.
void MathLineRenderer::bar(double until) {
    while (surface_->CurrentX < until) surface_->print("_");
}

}  // namespace ordwise
