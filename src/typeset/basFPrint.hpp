// Draws MathMarkup, character by character and without a measuring pass: what has been drawn moves
// the pen, and fractions, exponents and radicals are placed relative to the pen.
//
// The markup: #a/b# a stacked fraction, ^n^ raised text, ~r~ a radical, "[" and "]" the highlight
// colour on and off; every other character is a glyph. A fraction splits at its last "/" outside of
// parentheses. A half of a fraction and a radicand hold at most 50 characters, a line at most 3000.
//
// One design serves all surfaces; what differs is a SurfaceOffsets record.
#pragma once

#include "DrawingSurface.hpp"

#include <cstddef>
#include <functional>
#include <string_view>

namespace ordwise {

// A distance that follows the font: perPoint * FontSize + fixed, in units of the surface.
struct Distance {
    double perPoint = 0;
    double fixed = 0;
    [[nodiscard]] double at(double fontSize) const { return perPoint * fontSize + fixed; }
};

struct SurfaceOffsets {
    int indentBlanks = 0;        // printed before the line
    double indent = 0;           // added to CurrentX before the line
    Distance moveDown;           // before a line; the result is the base line of the line
    Distance moveDownFraction;   // the same for a line that holds a "/"
    double breakAt = 0;          // a plain character that ends beyond it breaks the line
    double breakX = 0;           // where the rest of a broken line begins
    double breakDown = 0;        // and how far below
    double pageFull = 0;         // a pen below it needs the next page
    bool pageTestFirst = false;  // the page test comes before each plain character
    double exponentSize = 0;     // points
    Distance exponentRaise;      // by the size of the exponent
    Distance numeratorRaise;
    Distance denominatorDrop;
    Distance radicalBarRaise;
    Distance radicalBarStart;
    double signUp = 0;      // of an ordinary radical sign
    double tallSignUp = 0;  // before the upper part of a tall radical
    double tallSignRight = 0;
    double tallSignDown = 0;  // behind it
    double tallSignLeft = 0;
};

extern const SurfaceOffsets worksheetOffsets;
extern const SurfaceOffsets explanationOffsets;
extern const SurfaceOffsets printerOffsets;  // also of the print preview, which shows the same pages

// The two distances at which a sheet of the worksheet begins.
inline constexpr double sheetTopY = 81;
inline constexpr double sheetTopAfterBreak = 88;

// One line on one kind of surface. `nextPage` gives the surface on which to go on when the page is
// full (the flag says that a line has been broken) and has set its pen.
class MathLineRenderer {
public:
    using NextPage = std::function<DrawingSurface&(bool afterBreak)>;

    MathLineRenderer(DrawingSurface& surface, const SurfaceOffsets& offsets, Colour normal, NextPage nextPage);

    // Draws the line from the pen's place and starts a new line. Faults (9) for a construct without
    // its closing mark and for text beyond the limits; what was drawn so far stays.
    void line(std::string_view markup);

    // After a fault: puts the pen to the beginning of the next line, as if the line had ended where
    // the fault came. Does nothing when no line was begun.
    void newLine();

    [[nodiscard]] double lineEndX() const { return lineEndX_; }
    [[nodiscard]] double lineEndY() const { return lineEndY_; }
    [[nodiscard]] double denominatorEndX() const { return denominatorEndX_; }
    [[nodiscard]] bool endsInFraction() const { return endsInFraction_; }

private:
    void construct(char mark, std::string_view text);
    void plain(char c);
    void breakLine();
    void turnFullPage();
    void turnPage(bool afterBreak);
    void colour(char mark);
    void PrintExponent(std::string_view text);
    void PrintFraction(std::string_view text);
    double half(std::string_view text, std::size_t padding);
    void PrintRadical(std::string_view text);
    void bar(double until);

    DrawingSurface* surface_;
    const SurfaceOffsets& offsets_;
    Colour normal_;
    NextPage nextPage_;
    bool begun_ = false;
    double baseline_ = 0;
    double lineEndX_ = 0;
    double lineEndY_ = 0;
    double denominatorEndX_ = 0;
    bool endsInFraction_ = false;
};

// Draws one line on the current sheet of the worksheet, going to the next sheet where it is full,
// and leaves LineEndX, LineEndY, DenominatorEndX and LineEndsInFraction. With `placeButton` the
// Next Step button is put behind it. A line that cannot be drawn ends in a message box.
void PrintMathLine(std::string_view line, bool placeButton);

}  // namespace ordwise
