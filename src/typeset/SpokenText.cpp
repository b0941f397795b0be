#include "SpokenText.hpp"

#include "TextTools.hpp"
#include "basFPrint.hpp"

#include <algorithm>
#include <array>
#include <cctype>
#include <utility>

namespace ordwise {
namespace {

bool isLetter(char c) {
    return std::isalpha(static_cast<unsigned char>(c)) != 0;
}

bool isDigit(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

char at(std::string_view text, std::size_t i) {
    return i < text.size() ? text[i] : ' ';
}

// Two letters in a row make a word, one letter is a variable.
bool wordEndsBefore(std::string_view text, std::size_t i) {
    return i >= 2 && isLetter(text[i - 1]) && isLetter(text[i - 2]);
}

bool wordStartsAt(std::string_view text, std::size_t i) {
    return isLetter(at(text, i)) && isLetter(at(text, i + 1));
}

// Signs that mean mathematics wherever they stand.
constexpr std::array<std::pair<char, std::string_view>, 10> alwaysSpoken{{
    {'+', "plus"},
    {'*', "times"},
    {'=', "equals"},
    {'$', "is not equal to"},
    {'<', "is less than"},
    {'>', "is greater than"},
    {'`', "pi"},
    {'\\', "plus or minus"},
    {'{', "divided by"},
    {'|', "bar"},
}};

class Reader {
public:
    explicit Reader(std::string_view text) : text_(text) {}

    std::string read() {
        for (std::size_t i = 0; i < text_.size();) i = readAt(i);
        while (!out_.empty() && out_.back() == ' ') out_.pop_back();
        return out_;
    }

private:
    // Reads what begins at `i`; returns where the next begins.
    std::size_t readAt(std::size_t i) {
        const char c = text_[i];
        if (c == '[' || c == ']') return i + 1;
        if (c == '#' || c == '^' || c == '~') {
            const std::size_t end = std::min(text_.find(c, i + 1), text_.size());
            readConstruct(c, text_.substr(i + 1, end - i - 1));
            return end + 1;
        }
        const std::string_view word = signAt(i);
        if (!word.empty()) {
            sayWord(word);
        } else if (isLetter(c) && !wordEndsBefore(text_, i + 1) && !wordStartsAt(text_, i) && i > 0 &&
                   (isDigit(text_[i - 1]) || text_[i - 1] == ')')) {
            sayWord(std::string_view(&text_[i], 1));  // "3x" is "3 x"
        } else {
            sayCharacter(c);
        }
        return i + 1;
    }

    // The words for the sign at `i`; "" for a character that is read as it stands.
    std::string_view signAt(std::size_t i) const {
        const char c = text_[i];
        for (const auto& [sign, word] : alwaysSpoken) {
            if (c == sign) return word;
        }
        const bool inProse = wordEndsBefore(text_, i) && wordStartsAt(text_, i + 1);  // "Prime/Composite"
        if (c == '-' && !inProse) return "minus";
        if (c == '/' && !inProse) return "divided by";
        if (c == ':' && i > 0 && isDigit(text_[i - 1]) && isDigit(at(text_, i + 1))) return "to";
        const bool aside = parenthesisIsProse(i);
        if (c == '(' && !aside) return "open parenthesis";
        if (c == ')' && !aside) return "close parenthesis";
        return "";
    }

    // A parenthesis around words, "(degrees)", is punctuation.
    bool parenthesisIsProse(std::size_t i) const {
        const bool opens = text_[i] == '(';
        const std::size_t open = opens ? i : text_.rfind('(', i);
        return open != std::string_view::npos && wordStartsAt(text_, open + 1);
    }

    void readConstruct(char mark, std::string_view inside) {
        if (mark == '#') {
            readFraction(inside);
        } else if (mark == '^') {
            readExponent(inside);
        } else {
            readRadical(inside);
        }
    }

    void readExponent(std::string_view power) {
        if (power == "o") {
            sayWord("degrees");
        } else if (power == "2") {
            sayWord("squared");
        } else if (power == "3") {
            sayWord("cubed");
        } else {
            sayWord("to the power " + Reader(power).read());
        }
    }

    void readFraction(std::string_view inside) {
        const std::size_t bar = fractionBar(inside);
        if (bar == std::string_view::npos) return;  // nothing is drawn either
        const std::string_view numerator = inside.substr(0, bar);
        const std::string_view denominator = inside.substr(bar + 1);
        const std::string over = Reader(numerator).read() + " over " + Reader(denominator).read();
        if (isOneTerm(numerator) && isOneTerm(denominator)) {
            sayWord(over);
        } else {
            sayWord("fraction, " + over + ", end of fraction");
        }
    }

    void readRadical(std::string_view inside) {
        sayWord("the square root of " + Reader(inside).read());
        if (!isOneTerm(inside)) out_ += ", end of root";
    }

    static bool isOneTerm(std::string_view text) {
        const std::size_t sign = text.find_first_of("+-*/({\\", text.empty() || text[0] != '-' ? 0 : 1);
        return sign == std::string_view::npos;
    }

    // A word stands between blanks.
    void sayWord(std::string_view word) {
        if (!out_.empty() && out_.back() != ' ' && out_.back() != '(') out_ += ' ';
        out_ += word;
        afterWord_ = true;
    }

    void sayCharacter(char c) {
        const bool joins = c == ' ' || c == '.' || c == ',' || c == ';' || c == ':' || c == '?' || c == '!' ||
                           c == ')' || c == '\'' || c == '%';
        if (afterWord_ && !joins) out_ += ' ';
        afterWord_ = false;
        if (c == ' ' && (out_.empty() || out_.back() == ' ')) return;
        out_ += c;
    }

    std::string_view text_;
    std::string out_;
    bool afterWord_ = false;
};

}  // namespace

std::string spoken(std::string_view markup) {
    return Reader(markup).read();
}

}  // namespace ordwise
