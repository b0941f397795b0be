// How the time of a solve grows with the problem: with its terms, and with the depth of its
// parentheses. A paper holds some fifty characters, so the longer sums are laid on it unchecked.
//
//     ordwise_bench --benchmark_filter=growth --benchmark_out=growth.json
//     bench/growth.py growth.json docs/growth.svg
#include "CanonicalRewrite.hpp"
#include "FreshProgram.hpp"
#include "PlainPlatform.hpp"
#include "SolveDriver.hpp"
#include "Windows.hpp"
#include "WorksheetLayout.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"

#include <benchmark/benchmark.h>

#include <string>

namespace ordwise {
namespace {

void putOnPaper(const std::string& topic, const std::string& text) {
    startFreshProgram();
    frmMain.mnuShowStep.Checked = false;
    TreeViewSelect(topic);
    Form_Load();
    int slot = 0;
    for (const char c : text) ws.InputTokens.slot(slot++) = std::string(1, c);
    ws.InputLast = slot;
    CollectVariables();
    GroupInput();
    (void)RewriteAll();
}

// The solve alone; `steps` is told so that the time of a step can be worked out.
void solveText(benchmark::State& state, const std::string& topic, const std::string& text) {
    const PlainPlatform outside;
    for (auto _ : state) {
        state.PauseTiming();
        putOnPaper(topic, text);
        state.ResumeTiming();
        compute_Click();
    }
    state.counters["steps"] = ws.StepCount - 2;
    if (!outside.dialogs.messages.empty()) state.SkipWithError("the solve ended in a message");
}

// 1+2+3, one step a sign
void growthOfArithmetic(benchmark::State& state) {
    std::string sum = "1";
    for (std::int64_t i = 2; i <= state.range(0); ++i) sum += "+" + std::to_string((i - 1) % 9 + 1);
    solveText(state, "Arithmetic", sum);
}
BENCHMARK(growthOfArithmetic)->DenseRange(5, 50, 5);

// 1x+2x+3x, one step a sign
void growthOfLikeTerms(benchmark::State& state) {
    std::string sum = "1x";
    for (std::int64_t i = 2; i <= state.range(0); ++i) sum += "+" + std::to_string((i - 1) % 9 + 1) + "x";
    solveText(state, "Simplifying Polynomials", sum);
}
BENCHMARK(growthOfLikeTerms)->DenseRange(5, 50, 5);

// (((1+2)+3)+4), two steps a level: the sum, the parenthesis
void growthOfDepth(benchmark::State& state) {
    std::string text(static_cast<std::size_t>(state.range(0)), '(');
    text += "1";
    for (std::int64_t i = 1; i <= state.range(0); ++i) text += "+" + std::to_string(i % 9 + 1) + ")";
    solveText(state, "Complex Arithmetic Expressions", text + "+1");
}
BENCHMARK(growthOfDepth)->DenseRange(1, 10, 1);

}  // namespace
}  // namespace ordwise
