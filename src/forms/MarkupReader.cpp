// Reading a row in four passes: the characters, the bars and bases, the words, the unseen products.
#include "MarkupReader.hpp"

#include "MarkupCharacters.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace ordwise {
namespace {

constexpr std::array engineTopics{76, 81, 82, 83, 84, 91, 101, 102, 103, 105, 120, 121, 150};

bool opensConstruct(char c) {
    return c == '#' || c == '^' || c == '~';
}

// Without the blanks at both ends, which only keep a half away from its bar.
std::string_view inner(std::string_view text) {
    const std::size_t first = std::min(text.find_first_not_of(' '), text.size());
    const std::size_t last = text.find_last_not_of(' ');
    return last == std::string_view::npos ? std::string_view() : text.substr(first, last + 1 - first);
}

class Reader {
public:
    explicit Reader(Letters letters) : letters_(letters) {}

    Row read(std::string_view text) {
        Row row;
        for (std::size_t i = 0; i < text.size();) i = readAt(text, i, row);
        return row;
    }

private:
    // Reads what begins at `i`; returns where the next begins.
    std::size_t readAt(std::string_view text, std::size_t i, Row& row) {
        const char c = text[i];
        if (c == '[' || c == ']') {
            highlighted_ = c == '[';
            return i + 1;
        }
        if (opensConstruct(c)) {
            const std::size_t end = text.find(c, i + 1);
            if (end != std::string_view::npos) {
                construct(c, text.substr(i + 1, end - i - 1), row);
                return end + 1;
            }
        }
        if (const std::size_t end = numberEnd(text, i); end > i) return add(PieceKind::Number, text, i, end, row);
        if (isAsciiLetter(c)) return readLetters(text, i, row);
        const PieceKind kind = c == ' ' ? PieceKind::Blank : PieceKind::Sign;
        const std::size_t end = c == ' ' ? std::min(text.find_first_not_of(' ', i), text.size()) : i + 1;
        return add(kind, text, i, end, row);
    }

    std::size_t add(PieceKind kind, std::string_view text, std::size_t begin, std::size_t end, Row& row) const {
        row.push_back({kind, std::string(text.substr(begin, end - begin)), {}, {}, highlighted_});
        return end;
    }

    std::size_t readLetters(std::string_view text, std::size_t i, Row& row) const {
        const std::size_t end = wordEnd(text, i);
        const bool word = letters_ == Letters::Words ? end - i > 1 : standsAsWord(text, i, end);
        if (word) return add(PieceKind::Words, text, i, end, row);
        if (letters_ == Letters::Words && end < text.size() && isAsciiDigit(text[end])) {
            return add(PieceKind::Name, text, i, numberEnd(text, end), row);
        }
        return add(PieceKind::Letter, text, i, i + 1, row);
    }

    // Lines of variables have no blanks but around words: "The prime factorization of 75 is:",
    // "xy, when x = 2 and y = 3".
    static bool standsAsWord(std::string_view text, std::size_t begin, std::size_t end) {
        const bool opens = begin == 0 || text[begin - 1] == ' ';
        const bool closes = end == text.size() || text[end] == ' ' || isPunctuation(text[end]);
        if (!opens || !closes || end - begin < 2) return false;
        return begin > 0 || isCapital(text[begin]);
    }

    void construct(char mark, std::string_view content, Row& row) {
        if (mark == '^') return power(content, row);
        if (mark == '~') {
            Row under = read(inner(content));
            row.push_back({PieceKind::Root, "", std::move(under), {}, highlighted_});
            return;
        }
        const std::size_t bar = fractionBar(content);
        if (bar == std::string_view::npos) {
            for (Piece& piece : read(content)) row.push_back(std::move(piece));
            return;
        }
        Row above = read(inner(content.substr(0, bar)));
        Row below = read(inner(content.substr(bar + 1)));
        row.push_back({PieceKind::Fraction, "", std::move(above), std::move(below), highlighted_});
    }

    void power(std::string_view content, Row& row) {
        if (content == "o") {
            row.push_back({PieceKind::Degree, "", {}, {}, highlighted_});
        } else {
            Row exponent = read(inner(content));
            row.push_back({PieceKind::Power, "", {}, std::move(exponent), highlighted_});
        }
    }

    Letters letters_;
    bool highlighted_ = false;
};

bool endsOperand(const Piece& piece) {
    switch (piece.kind) {
        case PieceKind::Sign: return piece.text == ")" || piece.text == "`";
        case PieceKind::OpenBar:
        case PieceKind::Words:
        case PieceKind::Blank:
        case PieceKind::Times:
        case PieceKind::Degree: return false;
        default: return true;
    }
}

bool beginsOperand(const Piece& piece) {
    if (piece.kind == PieceKind::Sign) return piece.text == "(" || piece.text == "`";
    if (piece.kind == PieceKind::OpenBar) return true;
    return piece.kind != PieceKind::CloseBar && endsOperand(piece);
}

// A bar behind something that can end a value closes the one that is open; any other opens one. A bar
// without a partner stays a sign.
void pairBars(Row& row) {
    std::vector<std::size_t> open;
    for (std::size_t i = 0; i < row.size(); ++i) {
        if (!isSign(row[i], '|')) continue;
        std::size_t before = i;
        while (before > 0 && row[before - 1].kind == PieceKind::Blank) --before;
        const bool closes = !open.empty() && before > 0 &&
                            (endsOperand(row[before - 1]) || row[before - 1].kind == PieceKind::Power ||
                             row[before - 1].kind == PieceKind::Words);
        if (!closes) {
            open.push_back(i);
            continue;
        }
        row[open.back()].kind = PieceKind::OpenBar;
        row[i].kind = PieceKind::CloseBar;
        open.pop_back();
    }
}

// Where the value begins that ends in front of `end`; `end` itself where none does.
std::size_t operandBefore(const Row& row, std::size_t end) {
    if (end == 0) return end;
    const Piece& last = row[end - 1];
    if (last.kind == PieceKind::Words || (endsOperand(last) && last.kind != PieceKind::CloseBar && last.text != ")"))
        return end - 1;
    if (!endsOperand(last)) return end;
    int depth = 0;
    for (std::size_t i = end; i > 0; --i) {
        const Piece& piece = row[i - 1];
        const bool opens = last.kind == PieceKind::CloseBar ? piece.kind == PieceKind::OpenBar : isSign(piece, '(');
        const bool closes = last.kind == PieceKind::CloseBar ? piece.kind == PieceKind::CloseBar : isSign(piece, ')');
        depth += closes ? 1 : 0;
        depth -= opens ? 1 : 0;
        if (depth == 0) return i - 1;
    }
    return end;
}

// A power takes what it stands behind as its base.
void attachBases(Row& row) {
    for (std::size_t i = 0; i < row.size(); ++i) {
        if (row[i].kind != PieceKind::Power || !row[i].inside.empty()) continue;
        const std::size_t begin = operandBefore(row, i);
        const auto from = row.begin() + static_cast<std::ptrdiff_t>(begin);
        const auto to = row.begin() + static_cast<std::ptrdiff_t>(i);
        Row base(std::make_move_iterator(from), std::make_move_iterator(to));
        row[i].inside = std::move(base);
        row.erase(from, to);
        i = begin;
    }
}

bool isKind(const Row& row, std::size_t i, PieceKind kind) {
    return i < row.size() && row[i].kind == kind;
}

// One letter between words is a word as well: "to a mixed number".
void readArticles(Row& row) {
    for (std::size_t i = 2; i + 2 < row.size(); ++i) {
        if (row[i].kind != PieceKind::Letter) continue;
        const bool behindWord = isKind(row, i - 1, PieceKind::Blank) && isKind(row, i - 2, PieceKind::Words);
        const bool beforeWord = isKind(row, i + 1, PieceKind::Blank) && isKind(row, i + 2, PieceKind::Words);
        const bool beforeUnit =
            row[i].text == "a" && isKind(row, i + 1, PieceKind::Blank) && isKind(row, i + 2, PieceKind::Letter);
        if (behindWord && (beforeWord || beforeUnit)) row[i].kind = PieceKind::Words;
    }
}

// A parenthesis that belongs to its sentence, "(degrees)", "mile(s)", "a ton (T):", becomes words.
void readAsides(Row& row) {
    for (std::size_t open = 1; open < row.size(); ++open) {
        if (!isSign(row[open], '(')) continue;
        std::size_t close = open + 1;
        while (close < row.size() && (isKind(row, close, PieceKind::Words) || isKind(row, close, PieceKind::Blank) ||
                                      isKind(row, close, PieceKind::Letter)))
            ++close;
        const bool letter = close == open + 2 && isKind(row, open + 1, PieceKind::Letter);
        const bool behindWord =
            isKind(row, open - 1, PieceKind::Words) ||
            (open > 1 && isKind(row, open - 1, PieceKind::Blank) && isKind(row, open - 2, PieceKind::Words));
        const bool words = std::any_of(row.begin() + static_cast<std::ptrdiff_t>(open),
                                       row.begin() + static_cast<std::ptrdiff_t>(close),
                                       [](const Piece& piece) { return piece.kind == PieceKind::Words; });
        if (close >= row.size() || !isSign(row[close], ')') || !(words || (letter && behindWord))) continue;
        for (std::size_t i = open; i <= close; ++i) row[i].kind = PieceKind::Words;
    }
}

bool joinsWords(const Piece& piece) {
    if (piece.kind == PieceKind::Words || piece.kind == PieceKind::Blank) return true;
    return piece.kind == PieceKind::Sign && isPunctuation(piece.text[0]);
}

// Words with the blanks and the punctuation between and around them become one piece.
void joinWords(Row& row) {
    Row joined;
    for (std::size_t i = 0; i < row.size();) {
        std::size_t end = i;
        bool words = false;
        while (end < row.size() && joinsWords(row[end]) && row[end].highlighted == row[i].highlighted) {
            words = words || row[end].kind == PieceKind::Words;
            ++end;
        }
        if (!words) {
            end = std::max(end, i + 1);
            std::move(row.begin() + static_cast<std::ptrdiff_t>(i), row.begin() + static_cast<std::ptrdiff_t>(end),
                      std::back_inserter(joined));
        } else {
            Piece run{PieceKind::Words, "", {}, {}, row[i].highlighted};
            for (std::size_t j = i; j < end; ++j) run.text += row[j].text;
            joined.push_back(std::move(run));
        }
        i = end;
    }
    row = std::move(joined);
}

// A number in front of a fraction is the whole part of a mixed number and multiplies nothing.
bool multiplies(const Piece& left, const Piece& right) {
    if (left.kind == PieceKind::Number && right.kind == PieceKind::Fraction) return false;
    return endsOperand(left) && beginsOperand(right);
}

void insertProducts(Row& row) {
    Row out;
    for (std::size_t i = 0; i < row.size(); ++i) {
        out.push_back(std::move(row[i]));
        const bool blank = isKind(row, i + 1, PieceKind::Blank) && i + 2 < row.size() && isSign(row[i + 2], '`');
        const std::size_t next = blank ? i + 2 : i + 1;  // "2 ` * radius"
        if (next >= row.size() || !multiplies(out.back(), row[next])) continue;
        if (blank) out.push_back(std::move(row[++i]));
        out.push_back({PieceKind::Times, "", {}, {}, out.back().highlighted && row[next].highlighted});
    }
    row = std::move(out);
}

// A construct is highlighted when all of it is: `#[4]x/[4]#` is not, though its parts are.
bool spreadHighlight(Row& row) {
    bool all = true;
    for (Piece& piece : row) {
        if (!piece.inside.empty() || !piece.below.empty()) {
            const bool inside = spreadHighlight(piece.inside);
            piece.highlighted = spreadHighlight(piece.below) && inside;
        }
        all = all && (piece.highlighted || piece.kind == PieceKind::Blank || piece.kind == PieceKind::Times);
    }
    return all;
}

// The last passes over a row and over the bases that were taken out of it.
void finish(Row& row) {
    readArticles(row);
    readAsides(row);
    joinWords(row);
    insertProducts(row);
    for (Piece& piece : row) {
        if (piece.kind == PieceKind::Power) finish(piece.inside);
    }
}

void arrange(Row& row) {
    for (Piece& piece : row) {
        arrange(piece.inside);
        arrange(piece.below);
    }
    pairBars(row);
    attachBases(row);
    finish(row);
}

}  // namespace

Letters lettersOf(int problemType) {
    const bool engine = std::find(engineTopics.begin(), engineTopics.end(), problemType) != engineTopics.end();
    return engine ? Letters::Variables : Letters::Words;
}

std::size_t fractionBar(std::string_view text) {
    int depth = 0;
    std::size_t bar = std::string_view::npos;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '(') ++depth;
        if (text[i] == ')') --depth;
        if (text[i] == '/' && depth == 0) bar = i;
    }
    return bar;
}

Row readMarkup(std::string_view markup, Letters letters) {
    Row row = Reader(letters).read(markup);
    arrange(row);
    spreadHighlight(row);
    return row;
}

std::string wordsBesideSigns(const Row& row, std::size_t i) {
    const auto isOperator = [&](std::size_t at) {
        return at < row.size() && row[at].kind == PieceKind::Sign &&
               std::string_view("+-*/=<>{\\$").find(row[at].text[0]) != std::string_view::npos;
    };
    std::string text = row[i].text;
    if (isOperator(i + 1) && text.back() == ' ') text.pop_back();
    if (i > 0 && isOperator(i - 1) && text.front() == ' ') text.erase(0, 1);
    return text;
}

std::size_t closingOf(const Row& row, std::size_t open) {
    const bool bars = row[open].kind == PieceKind::OpenBar;
    int depth = 0;
    for (std::size_t i = open; i < row.size(); ++i) {
        if (bars ? row[i].kind == PieceKind::OpenBar : isSign(row[i], '(')) ++depth;
        if (bars ? row[i].kind == PieceKind::CloseBar : isSign(row[i], ')')) --depth;
        if (depth == 0) return i;
    }
    return row.size();
}

bool isTall(const Row& row, std::size_t begin, std::size_t end) {
    for (std::size_t i = begin; i < std::min(end, row.size()); ++i) {
        const Piece& piece = row[i];
        if (piece.kind == PieceKind::Fraction || piece.kind == PieceKind::Root) return true;
        if (isTall(piece.inside, 0, piece.inside.size())) return true;
    }
    return false;
}

}  // namespace ordwise
