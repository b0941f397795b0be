#include "MarkupTree.hpp"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

namespace ordwise::exact {
namespace {

constexpr int deepest = 60;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isLetter(char c) {
    return c >= 'a' && c <= 'z';
}

// The place of the bar: the last "/" outside parentheses.
std::size_t barOf(std::string_view fraction) {
    std::size_t bar = std::string_view::npos;
    int depth = 0;
    for (std::size_t i = 0; i < fraction.size(); ++i) {
        if (fraction[i] == '(') ++depth;
        if (fraction[i] == ')') --depth;
        if (fraction[i] == '/' && depth == 0) bar = i;
    }
    return bar;
}

struct Unreadable {};

class Reader {
public:
    explicit Reader(std::string_view line, int depth = 0) : line_(line), depth_(depth) {}

    Tree whole() {
        Tree tree = expression();
        if (at_ != line_.size()) throw Unreadable();
        return tree;
    }

private:
    [[nodiscard]] char next() const { return at_ < line_.size() ? line_[at_] : '\0'; }

    void expect(char c) {
        if (next() != c) throw Unreadable();
        ++at_;
    }

    Tree expression() {
        if (++depth_ > deepest) throw Unreadable();
        std::vector<Tree> terms;
        if (next() != '+' && next() != '-') terms.push_back(term());
        while (next() == '+' || next() == '-') {
            const bool minus = line_[at_++] == '-';
            Tree one = term();
            terms.push_back(minus ? treeOf(Kind::Negated, {std::move(one)}) : std::move(one));
        }
        --depth_;
        if (terms.size() == 1) return std::move(terms.front());
        return treeOf(Kind::Sum, std::move(terms));
    }

    // "8/2/2" divides from left to right.
    Tree term() {
        Tree all = factor();
        while (true) {
            if (next() == '*') {
                ++at_;
                all = times(std::move(all), signedFactor());
            } else if (next() == '{' || next() == '/') {
                ++at_;
                all = treeOf(Kind::Divided, {std::move(all), signedFactor()});
            } else if (factorBegins()) {
                all = times(std::move(all), factor());
            } else {
                return all;
            }
        }
    }

    static Tree times(Tree all, Tree factor) {
        if (all.kind != Kind::Product) all = treeOf(Kind::Product, {std::move(all)});
        all.children.push_back(std::move(factor));
        return all;
    }

    [[nodiscard]] bool factorBegins() const {
        const char c = next();
        if (c == '|') return bars_ == 0;
        if (c == '~') return !inRadical_;
        return c == '#' || c == '.' || c == '(' || isDigit(c) || isLetter(c);
    }

    Tree signedFactor() {
        if (next() != '-') return factor();
        ++at_;
        return treeOf(Kind::Negated, {factor()});
    }

    Tree factor() {
        Tree tree = base();
        while (next() == '^') {
            const std::size_t close = line_.find('^', at_ + 1);
            if (close == std::string_view::npos) throw Unreadable();
            tree = powerTree(std::move(tree), whole(line_.substr(at_ + 1, close - at_ - 1)));
            at_ = close + 1;
        }
        return tree;
    }

    static int whole(std::string_view text) {
        const bool minus = !text.empty() && text.front() == '-';
        const std::string_view digits = text.substr(minus ? 1 : 0);
        if (digits.empty() || digits.size() > 3 || !std::all_of(digits.begin(), digits.end(), isDigit))
            throw Unreadable();
        int value = 0;
        for (const char c : digits) value = 10 * value + (c - '0');
        return minus ? -value : value;
    }

    Tree base() {
        const char c = next();
        if (isDigit(c) || c == '.') return number();
        if (isLetter(c)) return letter();
        if (c == '(') return group();
        if (c == '|' && bars_ == 0) return bars();
        if (c == '~' && !inRadical_) return radical();
        if (c == '#') return fraction();
        throw Unreadable();
    }

    Tree number() {
        const std::size_t begin = at_;
        while (isDigit(next()) || next() == '.') ++at_;
        if (next() == 'E') {
            ++at_;
            if (next() == '+' || next() == '-') ++at_;
            while (isDigit(next())) ++at_;
        }
        const auto value = rationalOf(line_.substr(begin, at_ - begin));
        if (!value) throw Unreadable();
        Tree tree;
        tree.number = *value;
        return tree;
    }

    Tree letter() {
        Tree tree;
        tree.kind = Kind::Letter;
        tree.letter = line_[at_++];
        return tree;
    }

    Tree group() {
        ++at_;
        const int outside = std::exchange(bars_, 0);
        const bool radical = std::exchange(inRadical_, false);
        Tree inside = expression();
        bars_ = outside;
        inRadical_ = radical;
        expect(')');
        return treeOf(Kind::Group, {std::move(inside)});
    }

    Tree bars() {
        ++at_;
        ++bars_;
        Tree inside = expression();
        --bars_;
        expect('|');
        return treeOf(Kind::Bars, {std::move(inside)});
    }

    Tree radical() {
        ++at_;
        inRadical_ = true;
        Tree inside = expression();
        inRadical_ = false;
        expect('~');
        return treeOf(Kind::Root, {std::move(inside)});
    }

    Tree fraction() {
        const std::size_t close = line_.find('#', at_ + 1);
        if (close == std::string_view::npos) throw Unreadable();
        const std::string_view inside = line_.substr(at_ + 1, close - at_ - 1);
        const std::size_t bar = barOf(inside);
        if (bar == std::string_view::npos) throw Unreadable();
        at_ = close + 1;
        Tree above = Reader(inside.substr(0, bar), depth_).whole();
        return treeOf(Kind::Fraction, {std::move(above), Reader(inside.substr(bar + 1), depth_).whole()});
    }

    std::string_view line_;
    int depth_;
    std::size_t at_ = 0;
    int bars_ = 0;
    bool inRadical_ = false;
};

}  // namespace

Tree treeOf(Kind kind, std::vector<Tree> children) {
    Tree tree;
    tree.kind = kind;
    tree.children = std::move(children);
    return tree;
}

Tree numberTree(const Rational& r) {
    Tree tree;
    tree.number = mp::abs(r);
    return r < 0 ? treeOf(Kind::Negated, {tree}) : tree;
}

Tree powerTree(Tree base, int exponent) {
    Tree tree = treeOf(Kind::Power, {std::move(base)});
    tree.exponent = exponent;
    return tree;
}

std::optional<Tree> readExpression(std::string_view markup) {
    const std::string bare = bareMarkup(markup);
    try {
        return Reader(bare).whole();
    } catch (const Unreadable&) {
        return std::nullopt;
    }
}

std::optional<SidesTree> readEquation(std::string_view markup) {
    const std::string bare = bareMarkup(markup);
    const std::size_t sign = bare.find_first_of("=$");
    if (sign == std::string::npos || bare.find_first_of("=$", sign + 1) != std::string::npos) return std::nullopt;
    auto left = readExpression(bare.substr(0, sign));
    auto right = readExpression(bare.substr(sign + 1));
    if (!left || !right) return std::nullopt;
    return SidesTree{std::move(*left), std::move(*right), bare[sign] == '$'};
}

std::string bareMarkup(std::string_view markup) {
    std::string bare;
    for (const char c : markup) {
        if (c != '[' && c != ']' && c != ' ') bare += c;
    }
    return bare;
}

std::string lettersOf(std::string_view markup) {
    std::set<char> letters;
    std::copy_if(markup.begin(), markup.end(), std::inserter(letters, letters.end()), isLetter);
    return {letters.begin(), letters.end()};
}

std::string lettersIn(const Tree& tree) {
    if (tree.kind == Kind::Letter) return std::string(1, tree.letter);
    std::string all;
    for (const Tree& child : tree.children) all += lettersIn(child);
    return lettersOf(all);
}

const Tree& ungrouped(const Tree& tree) {
    return tree.kind == Kind::Group ? ungrouped(tree.children.front()) : tree;
}

}  // namespace ordwise::exact
