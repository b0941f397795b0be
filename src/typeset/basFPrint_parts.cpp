// The constructs of a line: exponent, fraction, radical. Each draws at the pen and leaves the pen
// behind what it drew; the line routine puts CurrentY back to its base line.
#include "basFPrint.hpp"

#include "Fault.hpp"
#include "HalvernShapes.hpp"
#include "MarkupReader.hpp"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace ordwise {
namespace {

constexpr std::size_t longestPart = 50;
constexpr double barOverhang = 0.05;  // of the longer half, in ems

// "a/(b/c)" -> "a", "(b/c)"; without a bar both are empty.
std::pair<std::string_view, std::string_view> halvesOf(std::string_view text) {
    const std::size_t bar = fractionBar(text);
    if (bar == std::string_view::npos) return {};
    return {text.substr(0, bar), text.substr(bar + 1)};
}

// The text between the mark at `at` and its partner; the fault if there is none.
std::string_view partAt(std::string_view text, std::size_t at) {
    const std::size_t end = text.find(text[at], at + 1);
    if (end == std::string_view::npos) raise(FaultNumber::Subscript);
    return text.substr(at + 1, end - at - 1);
}

}  // namespace

// An exponent is drawn as it stands, its signs as close as those before a number.
void MathLineRenderer::PrintExponent(std::string_view text) {
    const double size = surface_->FontSize;
    const double y = surface_->CurrentY;
    surface_->FontSize = offsets_.exponentSize;
    surface_->CurrentY -= offsets_.exponentRaise.at(surface_->FontSize);
    for (const char c : text) sign(c, false, false);
    surface_->FontSize = size;
    surface_->CurrentY = y;
}

// Both halves in the middle of the bar, which reaches over the longer one as drawn.
void MathLineRenderer::PrintFraction(std::string_view text) {
    const auto [num, den] = halvesOf(text);
    if (num.size() > longestPart || den.size() > longestPart) raise(FaultNumber::Subscript);
    if (num.empty() && den.empty()) return;
    const double numeratorWidth = widthOf(num);
    const double denominatorWidth = widthOf(den);
    const double overhang = barOverhang * surface_->EmAcross();
    const double width = barOver(std::max(numeratorWidth, denominatorWidth) + 2 * overhang);
    const double x0 = surface_->CurrentX;
    const double drop = offsets_.denominatorDrop.at(surface_->FontSize);

    surface_->CurrentY -= offsets_.numeratorRaise.at(surface_->FontSize);
    surface_->CurrentX = x0 + (width - numeratorWidth) / 2;
    part(num);
    surface_->CurrentY += drop;
    surface_->CurrentX = x0 + (width - denominatorWidth) / 2;
    part(den);
    denominatorEndX_ = surface_->CurrentX;
    surface_->CurrentY -= drop;
    surface_->CurrentX = x0;
    bar(width);
}

// A half of a fraction or a radicand, with the pen at its beginning.
void MathLineRenderer::part(std::string_view text) {
    const double y0 = surface_->CurrentY;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const bool nested = c == '^' || c == '~' || (c == '#' && inRadical_);
        if (nested) {
            const std::string_view inner = partAt(text, i);
            construct(c, inner);
            surface_->CurrentY = y0;
            i += inner.size() + 1;
        } else if (c == '[' || c == ']') {
            colour(c);
        } else {
            glyph(text, i);
        }
    }
}

// Draws the part beside the paper. Faults of the part come here first.
double MathLineRenderer::widthOf(std::string_view text) const {
    DrawingSurface surface = surface_->trial();
    MathLineRenderer trial(surface, offsets_, normal_, nextPage_);
    trial.part(text);
    return surface.CurrentX;
}

// The sign reaches up to the bar: over an exponent it rises a little, over a fraction it stands lower
// and its upper part leads up.
void MathLineRenderer::PrintRadical(std::string_view text) {
    if (text.size() > longestPart) raise(FaultNumber::Subscript);
    constexpr double signRoom = 545;  // from its left end to the radicand, clear of the stroke
    constexpr double signStart = 30;  // its hook stands that much nearer to the left end than in the glyph
    constexpr double exponentRise = 120;
    constexpr double overhang = 60;
    const bool tall = text.find('#') != std::string_view::npos;
    const double across = surface_->EmAcross() / 1000;
    const double down = surface_->EmDown() / 1000;
    const double lean = tall ? tallRadicalLean : 0;
    const double rise = !tall && text.find('^') != std::string_view::npos ? exponentRise : 0;
    const double y0 = surface_->CurrentY;
    const double signX = surface_->CurrentX - signStart * across;

    surface_->CurrentX = signX + (signRoom + lean) * across;
    const bool outer = std::exchange(inRadical_, true);
    part(text);
    inRadical_ = outer;
    const double barX = signX + (radicalRight - strokeWidth + lean) * across;
    const double end = surface_->CurrentX + overhang * across;

    surface_->CurrentX = barX;
    surface_->CurrentY = y0 - ((tall ? tallRadicalTop : radicalTop + rise) + barMiddle) * down;
    bar(barOver(end - barX));
    const double barEnd = surface_->CurrentX;

    surface_->CurrentX = signX;
    surface_->CurrentY = y0;
    if (tall) surface_->print("&");
    surface_->CurrentX = signX;
    surface_->CurrentY = y0 + (tall ? tallRadicalDrop : -rise) * down;
    surface_->print("~");
    surface_->CurrentX = barEnd;
    surface_->CurrentY = y0;
}

// The length of a row of bar pieces that reaches over `width`.
double MathLineRenderer::barOver(double width) const {
    constexpr double joint = 1e-9;
    const double piece = surface_->TextWidth("_");
    return std::max(std::ceil(width / piece - joint), 0.0) * piece;
}

void MathLineRenderer::bar(double width) {
    const auto pieces = static_cast<std::size_t>(std::lround(width / surface_->TextWidth("_")));
    surface_->print(std::string(pieces, '_'));
}

}  // namespace ordwise
