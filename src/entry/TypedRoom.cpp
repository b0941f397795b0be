#include "TypedRoom.hpp"

#include "GlyphMetrics.hpp"
#include "MarkupReader.hpp"

#include <string>

namespace ordwise {
namespace {

constexpr double points = 18;
constexpr double exponentPoints = 8;
constexpr double breakAt = 750;
constexpr double breakX = 67;
constexpr std::size_t longestPart = 50;
constexpr std::size_t longestLine = 3000;

double widthOf(char c, double size) {
    const auto thousandths = [size](int width) { return width * emOf(Face::Halvern, size) / 1000.0; };
    switch (c) {
        case ' ': return thousandths(220);
        case '-':
        case '\\':
        case '{': return thousandths(606);
        case '`': return thousandths(600);
        default: return textWidth(Face::Heading, std::string_view(&c, 1), size);
    }
}

double blanks(std::size_t count) {
    return static_cast<double>(count) * widthOf(' ', points);
}

// Signs, points and marks count nothing for the width of a half.
std::size_t countedLength(std::string_view half) {
    std::size_t count = 0;
    for (const char c : half) {
        if (std::string_view(" .[]^+-*~").find(c) == std::string_view::npos) ++count;
    }
    return count;
}

class Measure {
public:
    // False where a mark has no partner or a part is too long.
    bool line(std::string_view s, TypedRows rows) {
        x_ = blanks(17);
        if (s.size() > longestLine) return false;
        return walk(s, "#^~", rows == TypedRows::One ? unlimited : breakAt);
    }
    [[nodiscard]] double x() const { return x_; }

private:
    bool walk(std::string_view s, std::string_view marks, double limit) {
        for (std::size_t i = 0; i < s.size(); ++i) {
            const char c = s[i];
            if (marks.find(c) != std::string_view::npos) {
                const std::size_t close = s.find(c, i + 1);
                if (close == std::string_view::npos || !construct(c, s.substr(i + 1, close - i - 1))) return false;
                i = close;
            } else if (c != '[' && c != ']') {
                x_ += widthOf(c, points);
                if (x_ > limit) x_ = breakX;
            }
        }
        return true;
    }

    bool construct(char mark, std::string_view text) {
        if (mark == '#') return fraction(text);
        if (mark == '~') return radical(text);
        for (const char c : text) x_ += widthOf(c, exponentPoints);
        return true;
    }

    bool fraction(std::string_view text) {
        const std::size_t slash = fractionBar(text);
        const bool stacked = slash != std::string_view::npos;
        const std::string_view num = stacked ? text.substr(0, slash) : std::string_view{};
        const std::string_view den = stacked ? text.substr(slash + 1) : std::string_view{};
        if (num.size() > longestPart || den.size() > longestPart) return false;
        const double x0 = x_;
        double right = x0;
        const std::size_t a = countedLength(num);
        const std::size_t b = countedLength(den);
        const std::string_view longer = a < b ? den : num;
        for (const auto& [half, own, other] : {Half{num, a, b}, Half{den, b, a}}) {
            x_ = x0 + blanks(own < other ? 2 * (other - own - 1) : 0);
            if (!walk(half, "^~", unlimited)) return false;
            if (half == longer) right = x_;
        }
        x_ = x0;
        bar(right);
        return true;
    }

    bool radical(std::string_view text) {
        if (text.size() > longestPart) return false;
        const double x0 = x_;
        x_ += blanks(2);
        if (!walk(text, "#^", unlimited)) return false;
        const double end = x_;
        x_ = x0 + points / 2;
        bar(end);
        return true;
    }

    void bar(double until) {
        const double piece = emOf(Face::Halvern, points) / 10;
        while (x_ < until) x_ += piece;
    }

    struct Half {
        std::string_view text;
        std::size_t own;
        std::size_t other;
    };
    static constexpr double unlimited = 1e9;
    double x_ = 0;
};

}  // namespace

std::optional<double> typedEnd(std::string_view markup, TypedRows rows) {
    constexpr double behind = 4;
    Measure measure;
    if (!measure.line(markup, rows)) return std::nullopt;
    return measure.x() - behind;
}

}  // namespace ordwise
