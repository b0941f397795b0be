// What is to be said of a line that a student has written below another one.
#pragma once

#include "CheckTopics.hpp"
#include "LineEquality.hpp"
#include "SolverRun.hpp"

#include <string>

namespace ordwise {

enum class Verdict { Right, Same, Wrong, Loses, Gains, Refused, Unfinished, Unknown };

// e.g. "right", "loses"
[[nodiscard]] std::string_view nameOf(Verdict verdict);

struct Judgement {
    Verdict verdict = Verdict::Unknown;
    std::string reason;  // one sentence to the student
    std::optional<exact::Evidence> evidence;
};

// What a line is judged by.
struct LineRules {
    LineKind kind = LineKind::Expression;
    exact::Rounding rounding;
    std::string letters;  // of the problem
    GivenAnswers given;
};

// Judges the markup of a line against that of the last line that was right. Expects no scripted topic.
[[nodiscard]] Judgement judgeMarkup(const std::string& before, const std::string& line, const LineRules& rules);

}  // namespace ordwise
