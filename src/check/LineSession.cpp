#include "LineSession.hpp"

#include "CanonicalRewrite.hpp"
#include "DeskKeeper.hpp"
#include "FinishedForm.hpp"
#include "Mistakes.hpp"
#include "TextTools.hpp"
#include "basBreakdownFunc.hpp"

#include <algorithm>

namespace ordwise {
namespace {

constexpr int complexArithmetic = 121;
constexpr int simplifyingFractions = 80;

// "[" and "]" are colour.
std::vector<ProblemKey> keysOfLine(const std::string& line) {
    std::vector<ProblemKey> keys = keysOf(line);
    std::erase_if(keys, [](const ProblemKey& key) { return key.key == "[" || key.key == "]"; });
    return keys;
}

// Types the line beside the desk.
void typeLine(const std::vector<ProblemKey>& keys, WorkedLine& line) {
    const DeskKeeper keeper;
    const int refused = typeWorkedLine(keys);
    line.typed = ImplodeInput();
    line.markup = ImplodeCanon();
    if (refused < 0) return;
    const ProblemKey& key = keys[static_cast<std::size_t>(refused)];
    line.refused.push_back({key.at, key.key, ws.ExplainOverrideText});
}

// A line given as it is drawn says where its fractions begin and end, which the keys alone may not.
void keepDrawnForm(const std::string& text, WorkedLine& line) {
    const std::string bare = exact::bareMarkup(text);
    if (!contains(bare, "#") || !line.refused.empty()) return;
    if (exact::readEquation(bare) || exact::readExpression(bare)) line.markup = bare;
}

Judgement refusedJudgement(const RefusedKey& key) {
    return {Verdict::Refused, key.reason.empty() ? "There is no room for more on this line." : key.reason, {}};
}

bool hasGroup(const exact::Tree& tree) {
    return tree.kind == exact::Kind::Group || std::any_of(tree.children.begin(), tree.children.end(), hasGroup);
}

// The line comes out of the solver as it went in, but for an order.
bool solverLeavesIt(const LineSession& session, const exact::Tree& line, const std::vector<ProblemKey>& keys) {
    if (hasGroup(line) || exact::lettersIn(line).size() > 3) return false;
    const SolverRun run = solveLine(keys, session.rules.given);
    if (!run.done || run.steps.empty()) return false;
    const auto last = exact::readExpression(run.steps.back().line);
    return last && areSameInAnyOrder(*last, line);
}

bool isFinishedSum(const LineSession& session, const exact::Tree& line, const std::vector<ProblemKey>& keys) {
    const bool decimals = session.rules.rounding.decimals;
    const EndForm form = session.topic.end;
    if (isFinishedExpression(line, form, decimals)) return true;
    if (hasUnreducedFraction(line)) return false;
    const bool withDecimals = form == EndForm::Number && isFinishedExpression(line, form, true);
    return (withDecimals || form == EndForm::Polynomial) && solverLeavesIt(session, line, keys);
}

// The letter that an equation is solved for; 0 where it has but one.
char letterAsked(const LineSession& session, const exact::SidesTree& line) {
    const std::string& letters = session.rules.letters;
    const char asked = letters == "xy" ? 'y' : session.rules.given.letter;
    const std::string held = exact::lettersIn(line.left) + exact::lettersIn(line.right);
    return held.find(asked) == std::string::npos ? '\0' : asked;
}

bool isFinishedSides(const LineSession& session, const exact::SidesTree& line, const std::vector<ProblemKey>& keys) {
    const bool decimals = session.rules.rounding.decimals;
    const char letter = letterAsked(session, line);
    if (isFinishedEquation(line, letter, decimals)) return true;
    // What is only not finished for its decimals is, where the solver leaves them.
    if (decimals || !isFinishedEquation(line, letter, true)) return false;
    const SolverRun run = solveLine(keys, session.rules.given);
    if (!run.done || run.steps.empty()) return false;
    const auto last = exact::readEquation(run.steps.back().line);
    return last && areSameInAnyOrder(last->left, line.left) && areSameInAnyOrder(last->right, line.right);
}

// --- what comes next

bool follows(const LineSession& session, const std::string& line) {
    return judgeMarkup(session.lastRight, line, session.rules).verdict == Verdict::Right;
}

std::optional<SolverStep> firstStep(const LineSession& session, const SolverRun& run) {
    for (const SolverStep& step : run.steps) {
        if (step.note.empty() || exact::bareMarkup(step.line) == session.lastRight) continue;
        if (follows(session, step.line)) return step;
        return std::nullopt;
    }
    return std::nullopt;
}

// A product of primes grows a factor at a time: the solver takes one number, so it gets the last one
// that is not yet a prime. e.g. 2*180 -> 2*2*90
std::optional<SolverStep> nextPrime(const LineSession& session) {
    std::vector<std::string> factors = split(session.lastRight, '*');
    for (auto factor = factors.rbegin(); factor != factors.rend(); ++factor) {
        const SolverRun run = solveLine(keysOfLine(*factor), session.rules.given);
        for (const SolverStep& step : run.steps) {
            if (!contains(step.line, "*") || contains(step.line, " ")) continue;
            *factor = step.line;
            SolverStep next{joined(factors, "*"), step.note};
            if (follows(session, next.line)) return next;
            return std::nullopt;
        }
    }
    return std::nullopt;
}

// The line stands in the solver's own solution, which goes on from there.
std::optional<SolverStep> stepBehind(const LineSession& session) {
    for (std::size_t i = 0; i + 1 < session.solution.size(); ++i) {
        const SolverStep& step = session.solution[i + 1];
        if (exact::bareMarkup(session.solution[i].line) == session.lastRight && follows(session, step.line))
            return step;
    }
    return std::nullopt;
}

// A fraction that the solver of the topic leaves as it is. e.g. #24/18#
std::optional<SolverStep> simplifiedFraction(const LineSession& session) {
    const SolverRun run = solveLineAs(simplifyingFractions, session.lastRightKeys, session.rules.given);
    if (!run.done || run.steps.empty() || !follows(session, run.steps.back().line)) return std::nullopt;
    return run.steps.back();
}

std::optional<SolverStep> nextStep(const LineSession& session) {
    if (session.topic.end == EndForm::Primes) return nextPrime(session);
    auto step = firstStep(session, solveLine(session.lastRightKeys, session.rules.given));
    if (!step) step = stepBehind(session);
    if (step || session.topic.end != EndForm::Number) return step;
    step = firstStep(session, solveLineAs(complexArithmetic, session.lastRightKeys, session.rules.given));
    return step ? step : simplifiedFraction(session);
}

}  // namespace

LineSession beginLines(const std::vector<std::string>& answers) {
    LineSession session;
    session.topic = checkTopicOf(ws.ProblemType);
    session.problem = ImplodeCanon();
    session.lastRight = exact::bareMarkup(session.problem);
    session.lastRightKeys = keysOfLine(session.problem);
    session.rules.kind = session.topic.kind;
    session.rules.letters = exact::lettersOf(session.problem);
    const bool alwaysFractions = ws.ProblemType == 76;
    session.rules.rounding = {!ws.UseFractions && !alwaysFractions, ws.RoundPlaces};
    const SolverRun run = solveDesk({answers.begin(), answers.end()}, session.rules.given);
    if (run.done) session.solution = run.steps;
    return session;
}

bool isFinishedLine(const LineSession& session, const std::string& markup, const std::vector<ProblemKey>& keys) {
    if (session.topic.kind == LineKind::Equation) {
        const auto sides = exact::readEquation(markup);
        return sides && isFinishedSides(session, *sides, keys);
    }
    const auto tree = exact::readExpression(markup);
    if (!tree || (session.topic.kind == LineKind::Evaluation && !exact::lettersIn(*tree).empty())) return false;
    return isFinishedSum(session, *tree, keys);
}

const WorkedLine& addLine(LineSession& session, const std::string& text) {
    WorkedLine line;
    const std::vector<ProblemKey> keys = keysOfLine(text);
    typeLine(keys, line);
    keepDrawnForm(text, line);
    line.judgement = line.refused.empty() ? judgeMarkup(session.lastRight, line.markup, session.rules)
                                          : refusedJudgement(line.refused.front());
    const Verdict verdict = line.judgement.verdict;
    if (verdict == Verdict::Right || verdict == Verdict::Same) {
        session.lastRight = exact::bareMarkup(line.markup);
        session.lastRightKeys = keys;
        line.finished = isFinishedLine(session, line.markup, keys);
        session.finished = line.finished;
        if (line.finished && verdict == Verdict::Right) {
            line.judgement.reason.back() = ',';
            line.judgement.reason += " and it is the answer.";
        }
    } else if (verdict == Verdict::Wrong || verdict == Verdict::Loses || verdict == Verdict::Gains) {
        line.slip = recognisedSlip(session.lastRight, line.markup, session.rules);
    }
    if (!session.finished) line.next = nextStep(session);
    session.lines.push_back(std::move(line));
    return session.lines.back();
}

}  // namespace ordwise
