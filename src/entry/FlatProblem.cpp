#include "FlatProblem.hpp"

#include "TextTools.hpp"
#include "TokenPredicates.hpp"

#include <string_view>

namespace ordwise {
namespace {

bool isDigit(const std::string& c) {
    return c.size() == 1 && c[0] >= '0' && c[0] <= '9';
}

// Walks the characters and remembers what stands open in the drawn form.
class Flattener {
public:
    explicit Flattener(std::string_view problem) : characters_(characters(problem)) {}

    std::vector<ProblemKey> keys() {
        for (std::size_t i = 0; i < characters_.size(); ++i) take(i);
        return std::move(keys_);
    }

private:
    void take(std::size_t i) {
        const std::string& c = characters_[i];
        if (c == " " || c == "#" || (c == "^" && closesExponent(i)) || (c == "~" && closesRoot(i))) return;
        if (c == "^") {
            exponentLength_ = 0;
        } else if (isDigit(c) && exponentLength_ >= 0) {
            ++exponentLength_;
        } else if (!(c == "-" && exponentLength_ == 0)) {
            exponentLength_ = -1;
        }
        if (c == "~") {
            rootLength_ = 0;
        } else if (IsOperator(c) || c == "=" || c == ")") {
            rootLength_ = -1;
        } else if (rootLength_ >= 0) {
            ++rootLength_;
        }
        keys_.push_back({static_cast<int>(i), c == "{" ? "/" : c});
    }

    bool closesExponent(std::size_t i) {
        if (exponentLength_ <= 0 || isDigit(next(i)) || next(i) == "^") return false;
        exponentLength_ = -1;
        return true;
    }

    bool closesRoot(std::size_t i) {
        const std::string after = next(i);
        if (rootLength_ <= 0 || isDigit(after) || after == "~" || after == "." || IsLetter(after)) return false;
        rootLength_ = -1;
        return true;
    }

    [[nodiscard]] std::string next(std::size_t i) const { return i + 1 < characters_.size() ? characters_[i + 1] : ""; }

    std::vector<std::string> characters_;
    std::vector<ProblemKey> keys_;
    int exponentLength_ = -1;  // digits of the open exponent, -1 for none
    int rootLength_ = -1;      // characters of the open root, -1 for none
};

}  // namespace

std::vector<ProblemKey> keysOf(std::string_view problem) {
    return Flattener(problem).keys();
}

}  // namespace ordwise
