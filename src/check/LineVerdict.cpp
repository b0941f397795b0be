// The verdicts and their sentences. What they rest on is decided in src/exact.
#include "LineVerdict.hpp"

#include "TextTools.hpp"

#include <algorithm>
#include <utility>

namespace ordwise {
namespace {

using exact::Comparison;
using exact::Evidence;
using exact::Relation;

constexpr std::string_view names[] = {"right", "same", "wrong", "loses", "gains", "refused", "unfinished", "unknown"};

// "x = 2" or "x = 2 and y = 3"
std::string valuesText(const Evidence& evidence) {
    std::string all;
    for (const auto& [letter, value] : evidence.at) {
        if (!all.empty()) all += " and ";
        all += std::string(1, letter) + " = " + value;
    }
    return all;
}

// --- lines that cannot be read

bool isOpen(const std::string& line, char open, char close) {
    return std::count(line.begin(), line.end(), open) > std::count(line.begin(), line.end(), close);
}

std::string unfinishedReason(const std::string& line) {
    if (line.empty()) return "Nothing has been typed on this line yet.";
    if (isOpen(line, '(', ')')) return "A parenthesis is still open on this line.";
    if (std::count(line.begin(), line.end(), '|') % 2 == 1) return "An absolute value bar is still open on this line.";
    if (line.back() == '=' || line.back() == '$') return "There is nothing yet on the right side of the line.";
    if (contains("+-*/", line.substr(line.size() - 1)))
        return "The line ends with a " + line.substr(line.size() - 1) + ", so something has to follow it.";
    return "The line can't be read as it stands: something in it is not complete yet.";
}

Judgement unfinished(const std::string& line) {
    return {Verdict::Unfinished, unfinishedReason(line), std::nullopt};
}

// --- expressions

constexpr const char* noValueReason =
    "This line has no value: it divides by 0 or takes the square root of a negative number.";

Judgement unknown(const Comparison& comparison) {
    return {Verdict::Unknown, "This line can't be judged here, because " + comparison.because + ".", std::nullopt};
}

std::string wrongExpression(const std::optional<Evidence>& evidence) {
    if (!evidence) return "This line is not equal to the line before.";
    const std::string worth = "the line before is " + evidence->before + ", yours is " + evidence->line + ".";
    if (evidence->at.empty()) return "T" + worth.substr(1);
    return "With " + valuesText(*evidence) + " " + worth;
}

Judgement ofExpression(const Comparison& comparison) {
    switch (comparison.relation) {
        case Relation::Same: return {Verdict::Right, "This line is equal to the line before.", std::nullopt};
        case Relation::Rounded:
            return {Verdict::Right, "This line is the line before with its numbers rounded.", std::nullopt};
        case Relation::NoValue: return {Verdict::Wrong, noValueReason, std::nullopt};
        case Relation::Unknown: return unknown(comparison);
        default: return {Verdict::Wrong, wrongExpression(comparison.evidence), comparison.evidence};
    }
}

// --- equations

std::string wrongEquation(const std::optional<Evidence>& evidence) {
    if (!evidence) return "This line does not have the same solutions as the line before.";
    const bool before = evidence->beforeHolds;
    if (evidence->at.empty()) {
        return before ? "The line before is true, and yours is not." : "Your line is true, and the line before is not.";
    }
    const bool several = evidence->at.size() > 1;
    const std::string solve = several ? " solve" : " solves";
    const std::string negated = several ? ", but they do not solve " : ", but it does not solve ";
    return valuesText(*evidence) + solve +
           (before ? " the line before" + negated + "yours." : " your line" + negated + "the line before.");
}

std::string lostReason(const std::optional<Evidence>& evidence) {
    const std::string lost = "A solution has been lost";
    if (!evidence || evidence->at.empty()) return lost + ": the line before has more of them than yours.";
    return lost + ": " + wrongEquation(evidence);
}

std::string gainedReason(const std::optional<Evidence>& evidence) {
    const std::string gained = "No solution is lost, but one has been added";
    if (!evidence || evidence->at.empty()) return gained + ": yours has more of them than the line before.";
    return gained + ": " + wrongEquation(evidence);
}

Judgement ofEquation(const Comparison& comparison) {
    switch (comparison.relation) {
        case Relation::Same: return {Verdict::Right, "This line has the same solutions as the line before.", {}};
        case Relation::Rounded: return {Verdict::Right, "This line is the line before with its numbers rounded.", {}};
        case Relation::Fewer: return {Verdict::Loses, lostReason(comparison.evidence), comparison.evidence};
        case Relation::More: return {Verdict::Gains, gainedReason(comparison.evidence), comparison.evidence};
        case Relation::NoValue: return {Verdict::Wrong, "What this line says is not so.", {}};
        case Relation::Unknown: return unknown(comparison);
        default: return {Verdict::Wrong, wrongEquation(comparison.evidence), comparison.evidence};
    }
}

// --- evaluation

std::map<char, exact::Rational> numbersOf(const GivenAnswers& given) {
    std::map<char, exact::Rational> numbers;
    for (const auto& [letter, text] : given.values) {
        const bool minus = text.starts_with("-");
        const auto value = exact::rationalOf(trimmed(minus ? text.substr(1) : text));
        if (value) numbers[letter] = minus ? exact::Rational(-*value) : *value;
    }
    return numbers;
}

// What is put in for the letters that the line has no longer.
std::map<char, exact::Rational> vanished(const std::map<char, exact::Rational>& values, const std::string& letters) {
    std::map<char, exact::Rational> gone;
    for (const auto& [letter, value] : values) {
        if (letters.find(letter) == std::string::npos) gone[letter] = value;
    }
    return gone;
}

Judgement ofEvaluation(const exact::Tree& before, const exact::Tree& line, const LineRules& rules) {
    const auto values = numbersOf(rules.given);
    const auto gone = vanished(values, exact::lettersIn(line));
    const Comparison step = exact::compareExpressions(exact::withValues(before, gone), line, rules.rounding);
    if (step.relation != Relation::Different) return ofExpression(step);
    Comparison all =
        exact::compareExpressions(exact::withValues(before, values), exact::withValues(line, values), rules.rounding);
    if (all.relation == Relation::Same || all.relation == Relation::Rounded) {
        all.relation = Relation::Unknown;
        all.because = "it is equal for the given values, but not for every value of the letters that are left";
        return unknown(all);
    }
    if (!all.evidence) return ofExpression(all);
    const std::string letters = exact::lettersIn(before) + exact::lettersIn(line);
    for (const auto& [letter, text] : rules.given.values) {
        if (letters.find(letter) != std::string::npos) all.evidence->at[letter] = text;
    }
    return ofExpression(all);
}

// A letter that came out of nowhere.
std::optional<Judgement> strangeLetter(const std::string& line, const LineRules& rules) {
    for (const char letter : exact::lettersOf(line)) {
        if (rules.letters.find(letter) != std::string::npos) continue;
        return Judgement{Verdict::Wrong, "There is no " + std::string(1, letter) + " in this problem.", std::nullopt};
    }
    return std::nullopt;
}

Judgement judgeEquation(const std::string& before, const std::string& line, const LineRules& rules) {
    if (line.find_first_of("=$") == std::string::npos) {
        if (!line.empty() && exact::readExpression(line))
            return {Verdict::Unfinished, "An equation has two sides, and there is no = on this line yet.", {}};
        return unfinished(line);
    }
    const auto now = exact::readEquation(line);
    if (!now) return unfinished(line);
    if (auto strange = strangeLetter(line, rules)) return *strange;
    const auto then = exact::readEquation(before);
    if (!then) return unknown({Relation::Unknown, "the line before can't be read", std::nullopt});
    return ofEquation(exact::compareEquations(*then, *now, rules.rounding));
}

}  // namespace

std::string_view nameOf(Verdict verdict) {
    return names[static_cast<std::size_t>(verdict)];
}

Judgement judgeMarkup(const std::string& before, const std::string& line, const LineRules& rules) {
    const std::string now = exact::bareMarkup(line);
    if (!now.empty() && now == exact::bareMarkup(before))
        return {Verdict::Same, "This is the line before once more.", std::nullopt};
    if (rules.kind == LineKind::Equation) return judgeEquation(before, now, rules);
    const auto tree = exact::readExpression(now);
    if (!tree) return unfinished(now);
    if (auto strange = strangeLetter(now, rules)) return *strange;
    const auto then = exact::readExpression(before);
    if (!then) return unknown({Relation::Unknown, "the line before can't be read", std::nullopt});
    if (rules.kind == LineKind::Evaluation) return ofEvaluation(*then, *tree, rules);
    return ofExpression(exact::compareExpressions(*then, *tree, rules.rounding));
}

}  // namespace ordwise
