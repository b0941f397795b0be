#include "AnswerText.hpp"

#include "NumberText.hpp"
#include "TextTools.hpp"

#include <algorithm>
#include <initializer_list>
#include <regex>

namespace ordwise {
namespace {

using exact::Integer;
using exact::Rational;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool hasDigit(const std::string& text) {
    return std::any_of(text.begin(), text.end(), isDigit);
}

// Without the marks of the drawn form, in small letters, one blank between words, no thousands commas.
std::string plain(const std::string& text) {
    std::string all = lowered(text);
    for (const char* mark : {"#", "[", "]"}) all = replaced(all, mark, "");
    all = replaced(all, "\xc3\x97", "*");  // the sign of multiplication
    all = replaced(all, "^o^", " ");
    all = replaced(all, "\xc2\xb0", " ");  // degrees
    static const std::regex comma("([0-9]),([0-9]{3})(?![0-9])");
    all = std::regex_replace(all, comma, "$1$2");
    static const std::regex blanks("[ \t]+");
    return trimmed(std::regex_replace(all, blanks, " "));
}

// What stands behind the last "=", or before it where there is no number behind it. e.g. "10 = c" -> "10"
std::string sideWithNumber(const std::string& text) {
    const std::size_t equals = text.rfind('=');
    if (equals == std::string::npos) return text;
    const std::string behind = trimmed(text.substr(equals + 1));
    return hasDigit(behind) ? behind : trimmed(text.substr(0, equals));
}

Rational signedValue(const std::string& text) {
    const bool minus = text.starts_with("-");
    const auto size = exact::rationalOf(minus ? text.substr(1) : text);
    const Rational value = size.value_or(Rational(0));
    return minus ? Rational(-value) : value;
}

// "1 4/8", "1+4/8"
std::optional<AnswerNumber> mixed(const std::string& text) {
    static const std::regex form("(-?)([0-9]{1,12})(?: and | ?\\+ ?| )([0-9]{1,12}) ?/ ?([0-9]{1,12})(?: (.*))?");
    std::smatch m;
    if (!std::regex_match(text, m, form)) return std::nullopt;
    const Rational above = signedValue(m[3]);
    const Rational below = signedValue(m[4]);
    if (below == 0) return std::nullopt;
    AnswerNumber number;
    number.form = NumberForm::Mixed;
    number.value = signedValue(m[2]) + above / below;
    if (m[1].length() > 0) number.value = -number.value;
    number.lowest = exact::mp::gcd(exact::mp::numerator(above), exact::mp::numerator(below)) == 1;
    number.proper = above < below && above > 0 && signedValue(m[2]) > 0;
    number.word = m[5];
    return number;
}

std::optional<AnswerNumber> fraction(const std::string& text) {
    static const std::regex form("(-?[0-9]{1,12}) ?/ ?(-?[0-9]{1,12})(?:,? ?(.*))?");
    std::smatch m;
    if (!std::regex_match(text, m, form)) return std::nullopt;
    const Rational above = signedValue(m[1]);
    const Rational below = signedValue(m[2]);
    if (below == 0) return std::nullopt;
    AnswerNumber number;
    number.form = NumberForm::Fraction;
    number.value = above / below;
    const Integer shared = exact::mp::gcd(exact::mp::numerator(above), exact::mp::numerator(below));
    number.lowest = shared == 1 && exact::mp::abs(exact::mp::numerator(below)) != 1;
    number.word = m[3];
    return number;
}

std::optional<AnswerNumber> scientific(const std::string& text) {
    static const std::regex form("(-?[0-9]*\\.?[0-9]+) ?[*x] ?10 ?\\^ ?\\(?(-?[0-9]{1,2})\\)?\\^?(?: (.*))?");
    std::smatch m;
    if (!std::regex_match(text, m, form)) return std::nullopt;
    const Rational base = signedValue(m[1]);
    AnswerNumber number;
    number.form = NumberForm::Scientific;
    number.value = base * exact::power(Rational(10), static_cast<int>(longOf(m[2].str())));
    const Rational size = exact::mp::abs(base);
    number.oneDigit = size >= 1 && size < 10;
    number.word = m[3];
    return number;
}

std::optional<AnswerNumber> decimal(const std::string& text) {
    static const std::regex form("(-?[0-9]*\\.?[0-9]+|-?[0-9]+\\.)(e[+-]?[0-9]{1,2})?\\.? ?([^0-9]*)");
    std::smatch m;
    if (!std::regex_match(text, m, form)) return std::nullopt;
    AnswerNumber number;
    number.value = signedValue(m[1]);
    if (m[2].length() > 0) number.value *= exact::power(Rational(10), static_cast<int>(longOf(m[2].str().substr(1))));
    number.word = m[3];
    return number;
}

struct UnitRow {
    const char* name;
    std::initializer_list<const char*> words;
};

// clang-format off
const UnitRow units[] = {
    {"oz", {"oz", "ounce", "ounces"}},          {"lb", {"lb", "lbs", "pound", "pounds"}},
    {"t", {"t", "ton", "tons"}},                {"mile", {"mile", "miles", "mile(s)", "mi"}},
    {"yard", {"yard", "yards", "yd", "yds"}},   {"foot", {"foot", "feet", "ft"}},
    {"inch", {"inch", "inches", "in"}},         {"%", {"%", "percent"}},
    {"f", {"f", "fahrenheit"}},                 {"c", {"c", "celsius"}},
    {"mm", {"mm", "millimeters"}}, {"cm", {"cm", "centimeters"}}, {"dm", {"dm", "decimeters"}},
    {"m", {"m", "meter", "meters"}}, {"dam", {"dam", "decameters"}}, {"hm", {"hm", "hectometers"}},
    {"km", {"km", "kilometer", "kilometers"}},
    {"mg", {"mg", "milligrams"}}, {"cg", {"cg", "centigrams"}}, {"dg", {"dg", "decigrams"}},
    {"g", {"g", "gram", "grams"}}, {"dag", {"dag", "decagrams"}}, {"hg", {"hg", "hectograms"}},
    {"kg", {"kg", "kilogram", "kilograms"}},
};
// clang-format on

}  // namespace

std::optional<AnswerNumber> readAnswerNumber(const std::string& text) {
    const std::string side = sideWithNumber(plain(text));
    using Reader = std::optional<AnswerNumber> (*)(const std::string&);
    for (const Reader read : {Reader(scientific), Reader(mixed), Reader(fraction), Reader(decimal)}) {
        if (auto number = read(side)) return number;
    }
    return std::nullopt;
}

std::optional<std::vector<Rational>> readAnswerList(const std::string& text) {
    std::string all = lowered(text);
    const std::size_t colon = all.rfind(':');
    if (colon != std::string::npos) all = all.substr(colon + 1);
    all = replaced(replaced(replaced(all, " and ", ","), ";", ","), " ", ",");
    static const std::regex number("-?([0-9]+\\.?[0-9]*|\\.[0-9]+)");
    std::vector<Rational> values;
    for (const std::string& piece : split(all, ',')) {
        if (piece.empty()) continue;
        if (!std::regex_match(piece, number)) return std::nullopt;
        values.push_back(signedValue(piece));
    }
    if (values.empty()) return std::nullopt;
    std::sort(values.begin(), values.end());
    return values;
}

std::vector<std::string> answerWords(const std::string& text) {
    std::string all = lowered(text);
    for (char& c : all) {
        const bool letter = (c >= 'a' && c <= 'z') || isDigit(c);
        if (!letter) c = ' ';
    }
    std::vector<std::string> words = split(all, ' ');
    std::erase(words, "");
    return words;
}

std::string unitOf(const std::string& word) {
    for (const UnitRow& unit : units) {
        if (std::find(unit.words.begin(), unit.words.end(), word) != unit.words.end()) return unit.name;
    }
    return "";
}

}  // namespace ordwise
