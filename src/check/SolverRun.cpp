#include "SolverRun.hpp"

#include "DeskKeeper.hpp"
#include "GuidedInput.hpp"
#include "Platform.hpp"
#include "SolveDriver.hpp"
#include "TextTools.hpp"
#include "basBreakdownFunc.hpp"

#include <utility>

namespace ordwise {
namespace {

// Stands in for dialogs and windows: nothing is shown, and questions are answered from what is known.
class RunOutside : public Dialogs, public WindowOpener {
public:
    RunOutside(std::deque<std::string> answers, GivenAnswers& given)
        : before_(platform), answers_(std::move(answers)), given_(given) {
        platform.dialogs = this;
        platform.windows = this;
    }
    ~RunOutside() override { platform = before_; }
    RunOutside(const RunOutside&) = delete;
    RunOutside& operator=(const RunOutside&) = delete;

    bool told = false;  // a message box was opened

    MessageAnswer messageBox(std::string_view, std::string_view, MessageButtons) override {
        told = true;
        return MessageAnswer::Ok;
    }

    // "x = ?" asks for a value; any other box for the letter to solve for.
    std::string inputBox(std::string_view prompt, std::string_view caption) override {
        const bool value = caption.size() == 5 && caption.substr(1) == " = ?";
        const char letter = value ? caption.front() : '\0';
        std::string answer = value ? known(letter) : letterKnown();
        answered_ = answered_ || !value;
        if (answer.empty()) {
            if (answers_.empty()) throw UnansweredQuestion(std::string(prompt));
            answer = std::move(answers_.front());
            answers_.pop_front();
        }
        // An answer that is none is asked for again, and the next one counts.
        told = false;
        if (value) {
            asked_[letter] = answer;
        } else if (answer.size() == 1) {
            askedLetter_ = answer.front();
        }
        return answer;
    }

    void keepAnswers() {
        for (auto& [letter, answer] : asked_) given_.values[letter] = answer;
        if (askedLetter_ != 0) given_.letter = askedLetter_;
    }

    void show(std::string_view) override {}
    void unload(std::string_view) override {}

private:
    [[nodiscard]] std::string known(char letter) const {
        const auto value = given_.values.find(letter);
        return value == given_.values.end() ? "" : value->second;
    }
    [[nodiscard]] std::string letterKnown() const {
        return given_.letter == 0 || answered_ ? "" : std::string(1, given_.letter);
    }

    Platform before_;
    std::deque<std::string> answers_;
    GivenAnswers& given_;
    std::map<char, std::string> asked_;
    char askedLetter_ = 0;
    bool answered_ = false;
};

std::vector<SolverStep> stepsTaken() {
    std::vector<SolverStep> steps;
    for (int i = 1; i < ws.StepCount; ++i) steps.push_back({ws.StepLines[i], ws.StepNotes[i]});
    // A thinned solution of one step ends one short of its line.
    if (ws.StepCount <= lastStep && !ws.StepLines[ws.StepCount].empty())
        steps.push_back({ws.StepLines[ws.StepCount], ws.StepNotes[ws.StepCount]});
    return steps;
}

SolverRun runKept(std::deque<std::string> answers, GivenAnswers& given) {
    frmMain.mnuShowStep.Checked = false;
    RunOutside outside(std::move(answers), given);
    compute_Click();
    outside.keepAnswers();
    return {!outside.told, stepsTaken()};
}

}  // namespace

SolverRun solveDesk(std::deque<std::string> answers, GivenAnswers& given) {
    const DeskKeeper keeper;
    return runKept(std::move(answers), given);
}

SolverRun solveLine(const std::vector<ProblemKey>& keys, const GivenAnswers& given) {
    return solveLineAs(ws.ProblemType, keys, given);
}

SolverRun solveLineAs(int type, const std::vector<ProblemKey>& keys, const GivenAnswers& given) {
    const DeskKeeper keeper;
    if (typeWorkedLine(keys) >= 0) return {};
    ws.ProblemType = type;
    GivenAnswers known = given;
    try {
        return runKept({}, known);
    } catch (const UnansweredQuestion&) {
        return {};
    }
}

int typeWorkedLine(const std::vector<ProblemKey>& keys) {
    ResetEngine(true);
    clearExplain();
    ws.BarDepth = 0;
    ws.ParenSide = 0;
    ws.FractionDepth = 0;
    ws.InputOpen = true;
    ws.LineWorked = true;
    constexpr int mostKeys = 290;
    int i = 0;
    for (const ProblemKey& key : keys) {
        ws.ExplainOverrideText.clear();
        if (i >= mostKeys) return i;
        FormFilter(key.key, true);
        if (!ws.CharAccepted) return i;
        ++i;
    }
    ws.ProblemText = replaced(ImplodeInput(), " ", "");
    return -1;
}

}  // namespace ordwise
