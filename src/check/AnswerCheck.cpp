// The answer of a scripted topic: where it stands in the solution, the form that the topic asks for, and
// what else is as right.
#include "AnswerCheck.hpp"

#include "AnswerText.hpp"
#include "ExactAnswers.hpp"
#include "NumberText.hpp"
#include "TextTools.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <algorithm>
#include <map>
#include <regex>
#include <set>

namespace ordwise {
namespace {

using exact::Rational;
using Lines = std::vector<std::string>;

Judgement right(const char* reason = "This is the answer.") {
    return {Verdict::Right, reason, std::nullopt};
}
Judgement wrong(const std::string& reason) {
    return {Verdict::Wrong, reason, std::nullopt};
}
Judgement unknown(const std::string& because) {
    return {Verdict::Unknown, "This answer can't be judged here, because " + because + ".", std::nullopt};
}
constexpr const char* notTheAnswer = "This is not the answer of the problem.";

// --- where the answer stands in the solution

const std::string& lastLine(const Lines& lines) {
    return lines.back();
}

// A proportion ends with its check.
const std::string& lineBeforeLast(const Lines& lines) {
    return lines[lines.size() < 2 ? 0 : lines.size() - 2];
}

// The solver works out more sides than the one that was asked for.
const std::string& sideAskedFor(const Lines& lines) {
    const std::string name = frmPaper.Text4.Text.empty() ? "a2" : frmPaper.Text6.Text.empty() ? "b2" : "c2";
    const auto found = std::find_if(lines.rbegin(), lines.rend(),
                                    [&](const std::string& line) { return line.starts_with(name + " = "); });
    return found == lines.rend() ? lines.back() : *found;
}

// The numbers of these solutions stand behind a word. e.g. "The range is 6."
std::string numberText(const std::string& line) {
    const std::size_t is = line.rfind(" is ");
    return is == std::string::npos ? line : line.substr(is + 4);
}

// --- numbers

enum class Wanted { Number, Lowest, Fraction, Decimal, Percent, Mixed, Scientific, OneDigit };

// The form that the topic asks for, and does not find in the answer; "" where it is kept.
std::string formComplaint(Wanted wanted, const AnswerNumber& number) {
    const std::string rightValue = "The value is right, but ";
    const bool whole = exact::mp::denominator(number.value) == 1;
    const bool plainWhole = whole && number.form == NumberForm::Decimal;
    const bool isFraction = number.form == NumberForm::Fraction;
    switch (wanted) {
        case Wanted::Lowest:
            if (!plainWhole && !isFraction) return rightValue + "the topic asks for a fraction.";
            return number.lowest || plainWhole ? "" : rightValue + "the fraction is not in lowest terms yet.";
        case Wanted::Fraction: return plainWhole || isFraction ? "" : rightValue + "the topic asks for a fraction.";
        case Wanted::Decimal:
        case Wanted::Percent:
            return number.form == NumberForm::Decimal ? "" : rightValue + "the topic asks for a decimal number.";
        case Wanted::Mixed:
            if (number.form == NumberForm::Mixed && number.proper) return "";
            return plainWhole ? "" : rightValue + "the topic asks for a mixed number.";
        case Wanted::Scientific:
        case Wanted::OneDigit:
            if (number.form != NumberForm::Scientific) return rightValue + "it is not in scientific notation.";
            return wanted == Wanted::Scientific || number.oneDigit
                       ? ""
                       : rightValue + "scientific notation has one digit before the decimal point.";
        default: return "";
    }
}

// Rounded half up, as it is mostly taught; the program rounds a half to the even digit.
Rational roundedUp(const Rational& r, int places) {
    const Rational scale = exact::power(Rational(10), places);
    const Rational shifted = exact::mp::abs(r) * scale + Rational(1, 2);
    const exact::Integer whole = exact::mp::numerator(shifted) / exact::mp::denominator(shifted);
    const Rational size = Rational(whole) / scale;
    return r < 0 ? Rational(-size) : size;
}

Rational cutOff(const Rational& r, int places) {
    const Rational scale = exact::power(Rational(10), places);
    const Rational shifted = exact::mp::abs(r) * scale;
    const Rational size = Rational(exact::mp::numerator(shifted) / exact::mp::denominator(shifted)) / scale;
    return r < 0 ? Rational(-size) : size;
}

// A decimal may be rounded, but not to nothing; a fraction says exactly what it says.
bool isValue(const AnswerNumber& number, const Rational& solvers, const std::vector<Rational>& exactValues) {
    const Rational& value = number.value;
    if (value == solvers) return true;
    const bool mayRound = number.form == NumberForm::Decimal && value != 0;
    // With pi there is no exact decimal, so that any that is rounded rightly will do.
    const int most = exactValues.size() > 1 ? 15 : static_cast<int>(ws.RoundPlaces);
    return std::any_of(exactValues.begin(), exactValues.end(), [&](const Rational& exactValue) {
        if (value == exactValue) return true;
        for (int places = ws.RoundPlaces; mayRound && places <= most; ++places) {
            if (value == exact::rounded(exactValue, places) || value == roundedUp(exactValue, places)) return true;
        }
        return false;
    });
}

// A base is rounded before its power of ten: 1.33*10^2 for 4/3 * 10^2.
bool isRoundedBase(const AnswerNumber& number, const std::vector<Rational>& exactValues) {
    if (number.form != NumberForm::Scientific || number.value == 0) return false;
    for (const Rational& exactValue : exactValues) {
        for (int exponent = -40; exponent <= 40; ++exponent) {
            const Rational ten = exact::power(Rational(10), exponent);
            const Rational base = exactValue / ten;
            if (exact::mp::abs(base) < 1 || exact::mp::abs(base) >= 10) continue;
            if (exact::rounded(base, ws.RoundPlaces) * ten == number.value) return true;
        }
    }
    return false;
}

std::string decimalsWanted() {
    if (ws.RoundPlaces == 0) return "a whole number.";
    return textOf(static_cast<int>(ws.RoundPlaces)) + (ws.RoundPlaces == 1 ? " decimal." : " decimals.");
}

std::string wrongNumber(const Rational& value, const std::vector<Rational>& exactValues) {
    constexpr int mostPlaces = 9;
    for (const Rational& exactValue : exactValues) {
        for (int places = 0; places <= mostPlaces; ++places) {
            if (value == roundedUp(exactValue, places)) return "The answer is wanted rounded to " + decimalsWanted();
            if (value == cutOff(exactValue, places))
                return "This answer is cut off, and it is wanted rounded to " + decimalsWanted();
        }
    }
    return notTheAnswer;
}

// What stands behind the number; "" where nothing is to be said. A word of the solution says nothing new.
std::string unitComplaint(Wanted wanted, const std::string& written, const std::string& solvers) {
    const std::vector<std::string> words = answerWords(written);
    const bool percent = contains(written, "%");
    if (percent && wanted != Wanted::Percent && !contains(solvers, "%")) return "There is no % in this answer.";
    if (words.empty()) return "";
    const std::string unit = unitOf(words.front());
    const std::vector<std::string> solversWords = answerWords(solvers);
    const std::string solversUnit = solversWords.empty() ? "" : unitOf(solversWords.front());
    if (!unit.empty() && !solversUnit.empty() && unit != solversUnit)
        return "The answer is wanted in another unit than " + words.front() + ".";
    return "";
}

template <Wanted wanted, const std::string& (*where)(const Lines&)>
Judgement judgeNumber(const std::string& text, const Lines& lines) {
    const std::string solversText = numberText(where(lines));
    auto solvers = readAnswerNumber(solversText);
    const std::vector<Rational> exactValues = exactAnswers();
    if (!solvers && exactValues.size() == 1 && contains(solversText, "lready simplified"))
        solvers.emplace().value = exactValues.front();
    if (!solvers) return unknown("the solution does not end in a number");
    if (contains(solversText, "lready simplified") && contains(lowered(text), "already simplified")) return right();
    const auto number = readAnswerNumber(numberText(text));
    if (!number) return unknown("there is no number in it that can be read");
    const bool value = isValue(*number, solvers->value, exactValues) ||
                       (number->form == NumberForm::Scientific && isRoundedBase(*number, exactValues));
    if (!value) return wrong(wrongNumber(number->value, exactValues));
    const std::string unit = unitComplaint(wanted, number->word, solvers->word);
    if (!unit.empty()) return wrong(unit);
    const std::string form = formComplaint(wanted, *number);
    return form.empty() ? right() : wrong(form);
}

template <Wanted wanted>
Judgement judgeLast(const std::string& text, const Lines& lines) {
    return judgeNumber<wanted, lastLine>(text, lines);
}

// --- lists

Judgement judgeLists(const std::string& text, const std::vector<Rational>& wanted) {
    const auto list = readAnswerList(text);
    if (!list) return unknown("it is no list of numbers");
    if (*list == wanted) return right();
    const std::set<Rational> all(wanted.begin(), wanted.end());
    const bool within = std::all_of(list->begin(), list->end(), [&](const Rational& r) { return all.contains(r); });
    return wrong(within ? "The list is not complete, or it has a number twice."
                        : "There is a number in the list that does not belong there.");
}

Judgement judgeList(const std::string& text, const Lines& lines) {
    const auto wanted = readAnswerList(lines.back());
    return wanted ? judgeLists(text, *wanted) : unknown("the solution does not end in a list");
}

Judgement judgeMode(const std::string& text, const Lines& lines) {
    const auto saysNone = [](const std::string& line) {
        const auto words = answerWords(line);
        return std::any_of(words.begin(), words.end(), [](const auto& w) { return w == "no" || w == "none"; });
    };
    if (saysNone(lines.back())) return saysNone(text) ? right() : wrong("No number occurs more often than the others.");
    return saysNone(text) ? wrong(notTheAnswer) : judgeList(text, lines);
}

// Ten products, one a line. e.g. "8 * 12 = 96"
Judgement judgeMultiples(const std::string& text, const Lines& lines) {
    std::vector<Rational> wanted;
    for (const std::string& line : lines) {
        const auto number = contains(line, " * ") ? readAnswerNumber(line) : std::nullopt;
        if (number) wanted.push_back(number->value);
    }
    std::sort(wanted.begin(), wanted.end());
    return judgeLists(text, wanted);
}

// --- words

bool hasWord(const std::vector<std::string>& words, std::string_view word) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

// One of a few words, of which the solution says one. e.g. "prime", "composite"
Judgement judgeWord(const std::string& text, const Lines& lines, std::initializer_list<std::string_view> choices) {
    const auto written = answerWords(text);
    const auto solvers = answerWords(lines.back());
    std::set<std::string_view> said;
    std::set<std::string_view> wanted;
    for (const std::string_view choice : choices) {
        if (hasWord(written, choice)) said.insert(choice);
        if (hasWord(solvers, choice)) wanted.insert(choice);
    }
    if (said.empty() || hasWord(written, "not")) return unknown("it is none of the words that the topic knows");
    return said == wanted ? right() : wrong(notTheAnswer);
}

Judgement judgePrime(const std::string& text, const Lines& lines) {
    // "neither prime nor composite" holds all three words; "neither" says as much.
    if (hasWord(answerWords(lines.back()), "neither"))
        return hasWord(answerWords(text), "neither") ? right() : judgeWord(text, lines, {"prime", "composite"});
    return judgeWord(text, {lines.back().substr(0, lines.back().find(" because "))}, {"prime", "composite", "neither"});
}

Judgement judgeAngle(const std::string& text, const Lines& lines) {
    return judgeWord(text, {lines.back().substr(0, lines.back().find(" because "))},
                     {"acute", "right", "obtuse", "straight"});
}

// The quadrants that are named. e.g. "axis between Quadrant I and II" -> 1, 2
std::set<int> quadrantsIn(const std::vector<std::string>& words) {
    static const std::map<std::string, int> names = {{"i", 1}, {"ii", 2}, {"iii", 3}, {"iv", 4},
                                                     {"1", 1}, {"2", 2},  {"3", 3},   {"4", 4}};
    std::set<int> all;
    for (const std::string& word : words) {
        const auto name = names.find(word);
        if (name != names.end()) all.insert(name->second);
    }
    return all;
}

Judgement judgeQuadrant(const std::string& text, const Lines& lines) {
    const auto written = answerWords(text);
    const auto solvers = answerWords(lines.back());
    const bool origin = hasWord(solvers, "origin");
    if (origin || hasWord(written, "origin"))
        return origin == hasWord(written, "origin") ? right() : wrong(notTheAnswer);
    const std::set<int> wanted = quadrantsIn(solvers);
    if (wanted.size() == 2 && hasWord(written, "axis")) {
        const bool onY = wanted == std::set<int>{1, 2} || wanted == std::set<int>{3, 4};
        if (hasWord(written, "x") || hasWord(written, "y"))
            return hasWord(written, onY ? "y" : "x") ? right() : wrong(notTheAnswer);
    }
    const std::set<int> said = quadrantsIn(written);
    if (said.empty()) return unknown("no quadrant is named in it");
    return said == wanted ? right() : wrong(notTheAnswer);
}

// "8 > 1", "1 < 8" or ">" alone
Judgement judgeComparison(const std::string& text, const Lines& lines) {
    const std::string wanted = replaced(lines.back(), " ", "");
    const std::string said = replaced(text, " ", "");
    const std::size_t sign = wanted.find_first_of("<>=");
    const std::size_t written = said.find_first_of("<>=");
    if (sign == std::string::npos || written == std::string::npos) return unknown("it has no <, > or = in it");
    if (said.size() == 1) return said[0] == wanted[sign] ? right() : wrong(notTheAnswer);
    const auto left = readAnswerNumber(said.substr(0, written));
    const auto behind = readAnswerNumber(said.substr(written + 1));
    if (!left || !behind) return unknown("a number is missing beside the sign");
    const auto first = readAnswerNumber(wanted.substr(0, sign));
    const auto second = readAnswerNumber(wanted.substr(sign + 1));
    if (!first || !second) return unknown("the solution does not compare two numbers");
    const char turned = wanted[sign] == '<' ? '>' : (wanted[sign] == '>' ? '<' : '=');
    const bool straight =
        left->value == first->value && behind->value == second->value && said[written] == wanted[sign];
    const bool mirrored = left->value == second->value && behind->value == first->value && said[written] == turned;
    return straight || mirrored ? right() : wrong(notTheAnswer);
}

// "1 hundred, 2 tens, 8 ones": the digits by the names of their places, those of 0 left out.
std::map<std::string, std::string> placesIn(const std::string& text) {
    std::map<std::string, std::string> places;
    std::string digit;
    std::string name;
    const auto finish = [&] {
        if (!digit.empty() && digit != "0" && !name.empty()) places[name] = digit;
        digit.clear();
        name.clear();
    };
    for (std::string word : answerWords(text)) {
        if (word[0] >= '0' && word[0] <= '9') {
            finish();
            digit = word;
        } else if (word != "and") {
            if (word.back() == 's') word.pop_back();
            name += word;
        }
    }
    finish();
    return places;
}

// A long number fills two lines, the first of which restates it.
Judgement judgePlaces(const std::string& text, const Lines& lines) {
    const std::string solvers = joined(Lines(lines.begin() + 1, lines.end()), " ");
    const auto said = placesIn(text);
    if (said.empty()) return unknown("it does not name the places of the digits, as in 2 tens, 8 ones");
    return said == placesIn(solvers) ? right() : wrong(notTheAnswer);
}

// --- the table

struct AnswerRow {
    std::initializer_list<int> types;
    Judgement (*judge)(const std::string& text, const Lines& lines);
};

// Topics that stand in no row end in a number, in any form.
// clang-format off
const AnswerRow rows[] = {
    {{11},         judgeNumber<Wanted::Number, sideAskedFor>},
    {{20},         judgeNumber<Wanted::Number, lineBeforeLast>},
    {{14},         judgeLast<Wanted::Number>},
    {{26, 27},     judgeLast<Wanted::Scientific>},
    {{65},         judgeLast<Wanted::OneDigit>},
    {{25, 69, 73, 98}, judgeLast<Wanted::Decimal>},
    {{70, 72},     judgeLast<Wanted::Percent>},
    {{68, 71, 74, 80}, judgeLast<Wanted::Lowest>},
    {{78, 79},     judgeLast<Wanted::Fraction>},
    {{75},         judgeLast<Wanted::Mixed>},
    {{86},         judgeList},
    {{60},         judgeMode},
    {{89},         judgeMultiples},
    {{85},         judgePrime},
    {{90},         judgeComparison},
    {{99},         judgePlaces},
    {{104},        judgeAngle},
    {{107},        judgeQuadrant},
};
// clang-format on

Judgement judgeAnswer(const std::string& text, const Lines& solution) {
    if (trimmed(text).empty()) return {Verdict::Unfinished, "Nothing has been typed on this line yet.", std::nullopt};
    if (solution.empty()) return unknown("the solver finds no answer to this problem");
    for (const AnswerRow& row : rows) {
        if (std::find(row.types.begin(), row.types.end(), ws.ProblemType) != row.types.end())
            return row.judge(text, solution);
    }
    return judgeLast<Wanted::Number>(text, solution);
}

}  // namespace

const WorkedLine& addAnswer(LineSession& session, const std::string& text) {
    WorkedLine line;
    line.typed = text;
    line.markup = text;
    Lines solution;
    for (const SolverStep& step : session.solution) solution.push_back(step.line);
    line.judgement = judgeAnswer(text, solution);
    line.finished = line.judgement.verdict == Verdict::Right;
    session.finished = session.finished || line.finished;
    if (!session.finished && session.solution.size() > 1) line.next = session.solution[1];
    session.lines.push_back(std::move(line));
    return session.lines.back();
}

}  // namespace ordwise
