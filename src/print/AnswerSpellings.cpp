#include "AnswerSpellings.hpp"

#include "NumberText.hpp"
#include "PlainForm.hpp"
#include "TextTools.hpp"

#include <algorithm>
#include <array>
#include <numeric>
#include <optional>

namespace ordwise {
namespace {

using Texts = std::vector<std::string>;

// --- where the answer stands in its line

std::string behind(const std::string& text, std::string_view mark) {
    const std::size_t at = text.rfind(mark);
    return at == std::string::npos ? text : text.substr(at + mark.size());
}

// The leading number of a text, without the unit behind it. e.g. "3.82 feet" -> "3.82"
std::string leadingNumber(const std::string& text) {
    return text.substr(0, text.find_first_not_of("0123456789.-"));
}

// The word in capitals. e.g. "915 is COMPOSITE because ..." -> "composite"
std::string capitals(const DocumentProblem& problem) {
    for (const std::string& word : split(problem.answer, ' ')) {
        const bool all = std::all_of(word.begin(), word.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
        if (word.size() > 1 && all) return lowered(word);
    }
    return problem.answer;
}

// What stands in the answer where the problem asks. e.g. "#48/?# = #73/75#" -> "49.32"
std::string inPlaceOfQuestion(const DocumentProblem& problem) {
    const std::size_t question = problem.text.find('?');
    if (question == std::string::npos || question > problem.answer.size()) return problem.answer;
    return leadingNumber(problem.answer.substr(question));
}

std::string sign(const DocumentProblem& problem) {
    const std::size_t at = problem.answer.find_first_of("<>=");
    return at == std::string::npos ? problem.answer : problem.answer.substr(at, 1);
}

std::string listBehindColon(const DocumentProblem& problem) {
    return behind(problem.answer, ": ");
}

std::string numberBehindIs(const DocumentProblem& problem) {
    return leadingNumber(behind(problem.answer, " is "));
}

std::string whole(const DocumentProblem& problem) {
    return problem.answer;
}

// "Volume = 72", "9.6 g = 0.02 lb", "0.75 = time", "x=9"
std::string valueOfEquation(const DocumentProblem& problem) {
    const std::size_t equals = problem.answer.rfind('=');
    if (equals == std::string::npos) return problem.answer;
    const std::string left = trimmed(problem.answer.substr(0, equals));
    const std::string right = trimmed(problem.answer.substr(equals + 1));
    return !IsNumeric(leadingNumber(right)) && IsNumeric(left) ? left : right;
}

enum class Way { Any, Asked };  // the way of writing counts: a decimal is no fraction, 2*2 is no 4

struct AnswerRow {
    int type;
    std::string (*value)(const DocumentProblem& problem);
    Way way;
};

constexpr AnswerRow rows[] = {
    {11, valueOfEquation, Way::Any}, {20, inPlaceOfQuestion, Way::Any},
    {25, whole, Way::Asked},         {26, whole, Way::Asked},
    {27, whole, Way::Asked},         {59, numberBehindIs, Way::Any},
    {60, listBehindColon, Way::Any}, {61, numberBehindIs, Way::Any},
    {65, whole, Way::Asked},         {68, whole, Way::Asked},
    {69, whole, Way::Asked},         {70, whole, Way::Asked},
    {71, whole, Way::Asked},         {72, whole, Way::Asked},
    {73, whole, Way::Asked},         {74, whole, Way::Asked},
    {75, whole, Way::Asked},         {78, whole, Way::Asked},
    {79, whole, Way::Asked},         {80, whole, Way::Asked},
    {83, whole, Way::Asked},         {84, whole, Way::Asked},
    {85, capitals, Way::Asked},      {86, listBehindColon, Way::Asked},
    {89, whole, Way::Asked},         {90, sign, Way::Asked},
    {98, whole, Way::Asked},         {99, whole, Way::Asked},
    {104, capitals, Way::Asked},     {107, whole, Way::Asked},
};

// --- how it may be spelled

void add(Texts& texts, const std::string& text) {
    if (!text.empty() && std::find(texts.begin(), texts.end(), text) == texts.end()) texts.push_back(text);
}

std::string withoutBlanks(const std::string& text) {
    return replaced(text, " ", "");
}

// Blanks around signs between values. e.g. "3x^2-4" -> "3x^2 - 4"
std::string spaced(const std::string& text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool sign = std::string_view("+-*=<>").find(text[i]) != std::string_view::npos;
        const bool binary = i > 0 && std::string_view("+-*/=(^<>").find(text[i - 1]) == std::string_view::npos;
        out += sign && binary ? std::string(" ") + text[i] + " " : std::string(1, text[i]);
    }
    return out;
}

bool isWhole(std::string_view text) {
    return !text.empty() && text.size() < 10 && text.find_first_not_of("0123456789") == std::string_view::npos;
}

// The decimal of a fraction of whole numbers that ends. e.g. "-3/4" -> "-0.75"
std::optional<std::string> endingDecimal(std::string_view plain) {
    const bool negative = plain.starts_with('-');
    if (negative) plain.remove_prefix(1);
    const std::size_t slash = plain.find('/');
    if (slash == std::string_view::npos || !isWhole(plain.substr(0, slash)) || !isWhole(plain.substr(slash + 1)))
        return std::nullopt;
    const auto above = static_cast<long>(valueOf(plain.substr(0, slash)));
    const auto below = static_cast<long>(valueOf(plain.substr(slash + 1)));
    if (below == 0) return std::nullopt;
    long rest = below / std::gcd(above, below);
    for (const long prime : {2L, 5L}) {
        while (rest % prime == 0) rest /= prime;
    }
    if (rest != 1) return std::nullopt;
    return (negative ? "-" : "") + textOf(static_cast<double>(above) / static_cast<double>(below));
}

void addSpellings(Texts& texts, const std::string& markup, Way way) {
    const std::string plain = plainText(markup);
    add(texts, plain);
    add(texts, withoutBlanks(plain));
    add(texts, spaced(withoutBlanks(plain)));
    if (const auto decimal = endingDecimal(withoutBlanks(plain)); decimal && way == Way::Any) add(texts, *decimal);
    add(texts, markup);
    add(texts, withoutBlanks(markup));
    if (plain.ends_with('%')) add(texts, plain.substr(0, plain.size() - 1));
    if (plain.find(", ") != std::string::npos) add(texts, replaced(plain, ", ", ","));
}

// Half of the last decimal place. e.g. "84.82" -> "0.005"
std::string toleranceOf(const std::string& number) {
    const std::size_t point = number.find('.');
    if (point == std::string::npos) return "0";
    return "0." + std::string(number.size() - point - 1, '0') + "5";
}

// In front of the value of an equation. e.g. "x=#3/4#" -> "x"
std::string letterOf(const std::string& answer) {
    const bool letter = answer.size() > 2 && answer[1] == '=' && answer[0] >= 'a' && answer[0] <= 'z';
    return letter ? answer.substr(0, 1) : "";
}

void addWithLetter(Texts& texts, const std::string& letter) {
    const Texts values = texts;
    for (const std::string& value : values) {
        add(texts, letter + "=" + value);
        add(texts, letter + " = " + value);
    }
}

// A line whose words are the answer can be said in fewer.
void addShorter(Texts& texts, const std::string& answer) {
    if (answer == "There is no mode.") {
        for (const char* words : {"There is no mode", "no mode", "none"}) add(texts, words);
    }
    const std::string quadrant = behind(answer, "Quadrant ");
    if (quadrant == answer) return;
    static constexpr std::array<std::pair<std::string_view, std::string_view>, 4> numerals{
        {{"I", "1"}, {"II", "2"}, {"III", "3"}, {"IV", "4"}}};
    for (const auto& [roman, number] : numerals) {
        if (quadrant != roman) continue;
        texts = {"Quadrant " + quadrant, quadrant, std::string(number), "Quadrant " + std::string(number), answer};
    }
}

}  // namespace

AnswerSpellings spellingsOf(const DocumentProblem& problem) {
    AnswerSpellings result;
    if (problem.type == 106 || problem.type == 108) {
        result.kind = BankAnswer::Essay;
        return result;
    }
    const auto row = std::find_if(std::begin(rows), std::end(rows),
                                  [&](const AnswerRow& each) { return each.type == problem.type; });
    const Way way = row == std::end(rows) ? Way::Any : row->way;
    const std::string value = row == std::end(rows) ? valueOfEquation(problem) : row->value(problem);
    const std::string letter = letterOf(problem.answer);
    const std::string number = leadingNumber(value);
    const bool unit = value.size() > number.size() &&
                      (value[number.size()] == ' ' || value[number.size()] == '^' || value[number.size()] == '%');
    if (way == Way::Any && letter.empty() && IsNumeric(number) && (number == value || unit) &&
        value.find(',') == std::string::npos) {
        result.kind = BankAnswer::Number;
        result.spellings = {number};
        result.tolerance = toleranceOf(number);
        return result;
    }
    addSpellings(result.spellings, value, way);
    if (!letter.empty()) addWithLetter(result.spellings, letter);
    addShorter(result.spellings, problem.answer);
    if (problem.type == 90) addSpellings(result.spellings, problem.answer, way);
    return result;
}

}  // namespace ordwise
