// Widths and heights of every glyph, from one place: the terminal, the tests and the desk lay out
// alike because none of them asks a font.
//
// The figures for letters and digits are the advance widths of TeX Gyre Schola (HalvernFont and headings) and
// TeX Gyre Pagella Bold and Regular (the faces of explanations), of TeX Gyre Heros and TeX Gyre Cursor
// Bold (the faces of the graph), in thousandths of an em, read from the fonts. The mathematical shapes of HalvernFont
// are our own drawings and so are their widths.
//
// A unit is a 96th of an inch on paper and a pixel of an ordinary screen.
#pragma once

#include <string_view>

namespace ordwise {

enum class Face {
    Halvern,      // the schoolbook face of the sheets
    Heading,      // the same for words that somebody has typed: no character is a sign of mathematics
    Explanation,  // the bold face of the explanation window
    Note,         // the same in its regular weight, for explanations on paper
    Sans,         // the face of the graph's numbers
    Courier       // the bold face of the graph's quadrants
};

// Words with mathematics in them, and not the other way round.
[[nodiscard]] bool isProse(Face face);
// The minus of prose, where "-" is the hyphen.
inline constexpr std::string_view proseMinus = "\u2212";

// The height of the em in surface units for a font of `points`. HalvernFont is cut a little larger
// than its size says, so that stacked fractions close up on the lines that the renderer gives them.
[[nodiscard]] double emOf(Face face, double points);
// From the top of a line of text to its base line, and from one line to the next.
[[nodiscard]] double ascentOf(Face face, double points);
[[nodiscard]] double lineHeightOf(Face face, double points);
// The advance width of UTF-8 text without kerning. In prose U+2212 is
// the minus. A character outside ASCII counts as a "?"; in a
// heading the letters of western Europe have their own width, and others count as an "n".
[[nodiscard]] double textWidth(Face face, std::string_view text, double points);

// How much of the room on either side of a sign it has only as an operator between two operands: a
// sign before a number, or one with a blank beside it, does without. 0 for what is no such sign.
[[nodiscard]] double signAir(Face face, char sign, double points);

}  // namespace ordwise
