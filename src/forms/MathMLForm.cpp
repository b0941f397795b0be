#include "MathMLForm.hpp"

#include "SpokenForm.hpp"

#include <array>
#include <utility>

namespace ordwise {
namespace {

constexpr std::array<std::pair<char, std::string_view>, 5> operators{{
    {'-', "−"},
    {'*', "⋅"},
    {'{', "÷"},
    {'\\', "±"},
    {'$', "≠"},
}};

std::string element(std::string_view name, const std::string& content, bool highlighted,
                    std::string_view attributes = "") {
    const std::string tag(name);
    return "<" + tag + std::string(attributes) + (highlighted ? " mathcolor=\"red\"" : "") + ">" + content + "</" +
           tag + ">";
}

// Blanks that a reader would otherwise fold away.
std::string keptBlanks(const std::string& text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool atEdge = i == 0 || i + 1 == text.size() || text[i - 1] == ' ';
        out += text[i] == ' ' && atEdge ? "&#xA0;" : escapedForXml(std::string_view(&text[i], 1));
    }
    return out;
}

std::string operatorOf(const Piece& piece, bool red) {
    if (piece.text == "`") return element("mi", "π", red);
    for (const auto& [character, shown] : operators) {
        if (piece.text[0] == character) return element("mo", std::string(shown), red);
    }
    return element("mo", escapedForXml(piece.text), red);
}

// `inColour`: the row stands in something that is coloured already.
std::string elements(const Row& row, bool inColour);

// Exactly one element, as the parts of a construct have to be.
std::string single(const Row& row, bool inColour) {
    return row.size() == 1 ? elements(row, inColour) : "<mrow>" + elements(row, inColour) + "</mrow>";
}

std::string elementOf(const Row& row, std::size_t i, bool inColour) {
    const Piece& piece = row[i];
    const bool red = piece.highlighted && !inColour;
    const bool inner = piece.highlighted || inColour;
    switch (piece.kind) {
        case PieceKind::Number: return element("mn", piece.text, red);
        case PieceKind::Letter:
        case PieceKind::Name: return element("mi", piece.text, red);
        case PieceKind::Words: return element("mtext", keptBlanks(wordsBesideSigns(row, i)), red);
        case PieceKind::Sign: return operatorOf(piece, red);
        case PieceKind::OpenBar: return element("mo", "|", red, " form=\"prefix\" stretchy=\"true\"");
        case PieceKind::CloseBar: return element("mo", "|", red, " form=\"postfix\" stretchy=\"true\"");
        case PieceKind::Blank: return element("mtext", "&#xA0;", false);
        case PieceKind::Times: return element("mo", "&#x2062;", false);
        case PieceKind::Degree: return element("mo", "°", red, " lspace=\"0\" rspace=\"0\"");
        case PieceKind::Fraction:
            return element("mfrac", single(piece.inside, inner) + single(piece.below, inner), red);
        case PieceKind::Root: return element("msqrt", elements(piece.inside, inner), red);
        case PieceKind::Power: break;
    }
    return element("msup", single(piece.inside, inner) + single(piece.below, inner), red);
}

// Operators bring their own distance: a blank beside one is not written.
bool isSpared(const Row& row, std::size_t i) {
    const auto isOperator = [&](std::size_t at) {
        return at >= row.size() || (row[at].kind == PieceKind::Sign && row[at].text != "(" && row[at].text != "?" &&
                                    row[at].text != "%" && row[at].text != "`");
    };
    return row[i].kind == PieceKind::Blank && (i == 0 || isOperator(i - 1) || isOperator(i + 1));
}

std::string elements(const Row& row, bool inColour) {
    std::string out;
    for (std::size_t i = 0; i < row.size(); ++i) {
        if (!isSpared(row, i)) out += elementOf(row, i, inColour);
    }
    return out;
}

constexpr std::string_view nameSpace = " xmlns=\"http://www.w3.org/1998/Math/MathML\"";

}  // namespace

std::string mathmlOf(const Row& row) {
    return element("math", elements(row, false), false,
                   std::string(nameSpace) + " alttext=\"" + escapedForXml(spokenOf(row)) + "\"");
}

std::string mathmlOf(const std::vector<NotePart>& note) {
    std::string out;
    for (const NotePart& part : note)
        out += part.formula ? element("math", elements(part.row, false), false, nameSpace) : escapedForXml(part.text);
    return out;
}

std::string escapedForXml(std::string_view text) {
    std::string out;
    for (const char c : text) {
        switch (c) {
            case '&': out += "&amp;"; break;
            case '<': out += "&lt;"; break;
            case '>': out += "&gt;"; break;
            case '"': out += "&quot;"; break;
            default: out += c;
        }
    }
    return out;
}

}  // namespace ordwise
