// Draws MathMarkup, character by character: what has been drawn moves the pen, and fractions, exponents
// and radicals are placed relative to the pen. Only the halves of a fraction are measured beforehand.
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
    Distance belowFraction;      // added behind a line that holds a fraction
    double breakAt = 0;          // a plain character that ends beyond it breaks the line
    double breakX = 0;           // where the rest of a broken line begins
    Distance breakDown;          // and how far below
    Distance breakDownFraction;  // the same in a line with fractions
    double pageFull = 0;         // a pen below it needs the next page
    bool pageTestFirst = false;  // the page test comes before each plain character
    double exponentSize = 0;     // points
    Distance exponentRaise;      // by the size of the exponent
    Distance numeratorRaise;
    Distance denominatorDrop;
};

extern const SurfaceOffsets worksheetOffsets;
// The worksheet's, with so much less of a gap above each line.
[[nodiscard]] SurfaceOffsets closedUp(double closer);
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

    // The same for words without markup, in which every mark is a character.
    void words(std::string_view text);

    // After a fault: puts the pen to the beginning of the next line, as if the line had ended where
    // the fault came. Does nothing when no line was begun.
    void newLine();

    // Where the pen stood at the end of the line drawn last, and what stands behind the line begins.
    [[nodiscard]] double lineWidth() const;
    [[nodiscard]] double lineEndX() const { return lineEndX_; }
    [[nodiscard]] double lineEndY() const { return lineEndY_; }
    [[nodiscard]] double denominatorEndX() const { return denominatorEndX_; }
    [[nodiscard]] bool endsInFraction() const { return endsInFraction_; }

private:
    void begin(bool hasFraction);
    void end();
    void construct(char mark, std::string_view text);
    void plain(std::string_view s, std::size_t at);
    void glyph(std::string_view text, std::size_t at);
    void sign(char c, bool airBefore, bool airBehind);
    void breakLine();
    void turnFullPage();
    void turnPage(bool afterBreak);
    void colour(char mark);
    void PrintExponent(std::string_view text);
    void PrintFraction(std::string_view text);
    void part(std::string_view text);
    [[nodiscard]] double widthOf(std::string_view part) const;
    void PrintRadical(std::string_view text);
    [[nodiscard]] double barOver(double width) const;
    void bar(double width);

    DrawingSurface* surface_;
    const SurfaceOffsets& offsets_;
    Colour normal_;
    NextPage nextPage_;
    bool begun_ = false;
    bool hasFractions_ = false;
    bool overfull_ = false;  // a character has passed breakAt; what comes next breaks the line
    bool inRadical_ = false;
    double baseline_ = 0;
    double lineEndX_ = 0;
    double lineEndY_ = 0;
    double denominatorEndX_ = 0;
    bool endsInFraction_ = false;
};

// Draws one line on the current sheet of the worksheet, going to the next sheet where it is full,
// and leaves LineEndX, LineEndY, DenominatorEndX and LineEndsInFraction. With `placeButton` the
// Next Step button is put behind it. A line that cannot be drawn ends in a message box. `closer` is taken
// from the gap above the line.
void PrintMathLine(std::string_view line, bool placeButton, double closer = 0);

}  // namespace ordwise
