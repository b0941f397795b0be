#include "SpokenForm.hpp"

#include "MarkupCharacters.hpp"

#include <array>
#include <utility>

namespace ordwise {
namespace {

constexpr std::array<std::pair<char, std::string_view>, 18> signWords{{
    {'+', "plus"},
    {'-', "minus"},
    {'*', "times"},
    {'{', "divided by"},
    {'/', "slash"},
    {'=', "equals"},
    {'$', "is not equal to"},
    {'<', "is less than"},
    {'>', "is greater than"},
    {'(', "open parenthesis"},
    {')', "close parenthesis"},
    {'`', "pi"},
    {'\\', "plus or minus"},
    {'|', "bar"},
    {'^', "caret"},
    {'~', "tilde"},
    {'#', "number sign"},
    {':', "to"},
}};

std::string_view wordFor(char sign) {
    for (const auto& [character, word] : signWords) {
        if (character == sign) return word;
    }
    return {};
}

// A number or a letter, which needs no word for its end.
bool isPlain(const Row& row) {
    if (row.size() != 1) return false;
    const PieceKind kind = row[0].kind;
    return kind == PieceKind::Number || kind == PieceKind::Letter || kind == PieceKind::Name || isSign(row[0], '?') ||
           isSign(row[0], '`');
}

class Speaker {
public:
    void row(const Row& pieces) {
        for (std::size_t i = 0; i < pieces.size(); ++i) piece(pieces, i);
    }

    // Words of a sentence, signs among them.
    void words(std::string_view text) {
        if (text.substr(0, 2) == "'s") {
            out_ += "'s";
            text.remove_prefix(2);
        }
        for (std::size_t i = 0; i < text.size(); ++i) {
            const char c = text[i];
            const char next = i + 1 < text.size() ? text[i + 1] : ' ';
            const bool inWord = i > 0 && isAsciiLetter(text[i - 1]) && isAsciiLetter(next);
            if (c == ' ' || (c == '-' && inWord)) {
                wordEnds_ = true;
            } else if (isPunctuation(c)) {
                punctuation(c, next, inWord);
            } else if (const std::string_view word = wordFor(c); !word.empty()) {
                say(word);
            } else {
                character(c);
            }
        }
        wordEnds_ = true;
    }

    [[nodiscard]] std::string take() {
        while (!out_.empty() && (out_.back() == ' ' || out_.back() == ',')) out_.pop_back();
        return std::move(out_);
    }

private:
    void piece(const Row& row, std::size_t i) {
        const Piece& piece = row[i];
        switch (piece.kind) {
            case PieceKind::Number: return number(piece.text);
            case PieceKind::Words: return words(piece.text);
            case PieceKind::Letter:
            case PieceKind::Name: return say(piece.text);
            case PieceKind::Sign: return sign(row, i);
            case PieceKind::OpenBar: return say("the absolute value of");
            case PieceKind::CloseBar: return end("absolute value");
            case PieceKind::Degree: return say(i > 0 && row[i - 1].text == "1" ? "degree" : "degrees");
            case PieceKind::Fraction: return fraction(piece, false, i > 0 && isMixed(row, i));
            case PieceKind::Root: return root(piece);
            case PieceKind::Power: return power(piece);
            case PieceKind::Blank:
            case PieceKind::Times: return;
        }
    }

    static bool isMixed(const Row& row, std::size_t i) {
        const std::size_t whole = row[i - 1].kind == PieceKind::Blank && i > 1 ? i - 2 : i - 1;
        return row[whole].kind == PieceKind::Number;
    }

    void number(const std::string& text) {
        std::string words = text;
        if (text.front() == '.') words.replace(0, 1, "point ");
        if (const std::size_t exponent = words.find('E'); exponent != std::string::npos) {
            const char sign = words[exponent + 1];
            words.replace(exponent, sign == '+' || sign == '-' ? 2 : 1, sign == '-' ? " E minus " : " E plus ");
        }
        say(words);
    }

    // A comma between two numbers of a list is heard; one with a blank behind it is a pause.
    void sign(const Row& row, std::size_t i) {
        const char c = row[i].text[0];
        const bool blankBehind =
            i + 1 >= row.size() || row[i + 1].kind == PieceKind::Blank || row[i + 1].kind == PieceKind::Words;
        const bool last = i + 1 == row.size();
        if (c == ',' && blankBehind) return attach(",");
        if (c == ',') return say("comma");
        if (c == ':' && blankBehind) return last ? void() : attach(",");
        if (c == '.') return blankBehind ? attach(".") : say("point");
        if (c == '%' && i > 0 && row[i - 1].kind == PieceKind::Number) return attach("%");
        const std::string_view word = wordFor(c);
        if (word.empty()) return say(row[i].text);
        say(word);
    }

    // `announced`: also where its halves are plain, as it is the base of a power.
    void fraction(const Piece& piece, bool announced, bool mixed) {
        const bool plain = isPlain(piece.inside) && isPlain(piece.below);
        if (mixed && plain) say("and");
        if (mixed || announced || !plain) {
            say("the fraction");
            row(piece.inside);
            say("over");
            row(piece.below);
            return end("fraction");
        }
        row(piece.inside);
        say("over");
        row(piece.below);
    }

    void root(const Piece& piece) {
        say("the square root of");
        row(piece.inside);
        if (!isPlain(piece.inside)) end("root");
    }

    void power(const Piece& piece) {
        const Row& base = piece.inside;
        if (base.size() == 1 && base[0].kind == PieceKind::Fraction) {
            fraction(base[0], true, false);
        } else {
            row(base);
        }
        const Row& exponent = piece.below;
        if (exponent.size() == 1 && exponent[0].text == "2") return say("squared");
        if (exponent.size() == 1 && exponent[0].text == "3") return say("cubed");
        say("to the power of");
        row(exponent);
        const bool negative = exponent.size() == 2 && isSign(exponent[0], '-') && isPlain({exponent[1]});
        if (!isPlain(exponent) && !negative) end("power");
    }

    void end(std::string_view construct) {
        pause();
        say("end");
        say(construct);
        pause();
    }

    void punctuation(char c, char next, bool inWord) {
        if (c == '\'' && inWord) return character(c);
        if (c == '\'' || c == '"') return;
        if (c == '.' && isAsciiDigit(next)) return wordEnds_ ? say("point") : character(c);
        if (c == ',' && next != ' ') return say("comma");
        attach(c == '.' || c == '!' ? "." : ",");
    }

    // A comma that the next word may bring itself.
    void pause() { pause_ = true; }

    // A word stands between blanks.
    void say(std::string_view word) {
        if (pause_ && !out_.empty() && out_.back() != ',') out_ += ',';
        pause_ = false;
        if (!out_.empty()) out_ += ' ';
        out_ += word;
        wordEnds_ = true;
    }

    // A sign of the sentence stands at the end of its word.
    void attach(std::string_view sign) {
        pause_ = false;
        if (!out_.empty() && out_.back() != ',') out_ += sign;
        wordEnds_ = true;
    }

    // A character of a word.
    void character(char c) {
        if (wordEnds_) {
            say(std::string_view(&c, 1));
        } else {
            out_ += c;
        }
        wordEnds_ = false;
    }

    std::string out_;
    bool wordEnds_ = true;
    bool pause_ = false;
};

}  // namespace

std::string spokenOf(const Row& row) {
    Speaker speaker;
    speaker.row(row);
    return speaker.take();
}

std::string spokenOf(const std::vector<NotePart>& note) {
    Speaker speaker;
    for (const NotePart& part : note) {
        part.formula ? speaker.row(part.row) : speaker.words(part.text);
    }
    return speaker.take();
}

std::string spokenLine(std::string_view markup, Letters letters) {
    return spokenOf(readMarkup(markup, letters));
}

std::string spokenNote(std::string_view note, Letters letters) {
    return spokenOf(readNote(note, letters));
}

}  // namespace ordwise
