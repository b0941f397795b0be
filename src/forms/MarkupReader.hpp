// Markup read into a small tree, once for all forms in which a line leaves the tutor.
//
// The markup: #a/b# a stacked fraction, ^n^ raised text, ~r~ a radical, "[" and "]" the highlight on
// and off; "`" is pi, "\" plus-or-minus, "{" the division sign, "$" is-not-equal-to. A row keeps every
// blank, so that what is written from it can be the line again.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ordwise {

// What a letter is: in the topics of the engine a variable each, "xy" being a product; elsewhere two
// or more in a row are a word.
enum class Letters { Variables, Words };

// The topics that the engine solves have variables.
[[nodiscard]] Letters lettersOf(int problemType);

enum class PieceKind {
    Number,    // "12", "3.5", ".5", "1E+15"
    Letter,    // "x"
    Name,      // a letter with its number, "a1"
    Words,     // " converted to " with the blanks and the punctuation around it
    Sign,      // one character: + - * / = < > ( ) , . : ? % ` \ { $ ...
    OpenBar,   // "|" where an absolute value begins
    CloseBar,  // and where it ends
    Blank,     // between what is not words
    Times,     // the product of two neighbours, of which nothing is seen: 3x, 2(x+1), 3~2~
    Degree,    // ^o^
    Fraction,  // inside / below
    Power,     // inside ^ below; nothing inside where nothing stands in front of it
    Root,      // inside
};

struct Piece {
    PieceKind kind = PieceKind::Sign;
    std::string text;  // of the kinds without parts, as the markup has it
    std::vector<Piece> inside;
    std::vector<Piece> below;
    bool highlighted = false;  // of a construct: all of it
};

using Row = std::vector<Piece>;

// Where a fraction's text splits into its halves: its last "/" outside of parentheses, npos for a
// text that has none. e.g. "a/(b/c)" -> 1
[[nodiscard]] std::size_t fractionBar(std::string_view text);

// A line. There are no faults: a construct without its end is the bare sign, and a "#...#" without a
// "/" is what stands in it.
// e.g. "3x^2^" -> Number 3, Times, Power(Letter x; Number 2)
[[nodiscard]] Row readMarkup(std::string_view markup, Letters letters);

// A note: sentences with mathematics in them.
struct NotePart {
    bool formula = false;
    std::string text;  // of the words between
    Row row;           // of a formula
};

// What carries a sign of mathematics, a negative number and a term are formulas; numbers that stand
// alone stay in their sentence.
// e.g. "Add 3x and 4 to form (-x)." -> "Add ", {3x}, " and 4 to form (", {-x}, ")."
[[nodiscard]] std::vector<NotePart> readNote(std::string_view note, Letters letters);

// --- questions that several forms ask

[[nodiscard]] inline bool isSign(const Piece& piece, char sign) {
    return piece.kind == PieceKind::Sign && piece.text.size() == 1 && piece.text[0] == sign;
}
// Words as a form that spaces its operators by itself writes them: without the blank beside one.
// e.g. "length " in front of "=" -> "length"
[[nodiscard]] std::string wordsBesideSigns(const Row& row, std::size_t i);
// An opening bracket at `open` of the row: where it closes, the row's size where it does not.
[[nodiscard]] std::size_t closingOf(const Row& row, std::size_t open);
// Some fraction or root stands between the two places.
[[nodiscard]] bool isTall(const Row& row, std::size_t begin, std::size_t end);

}  // namespace ordwise
