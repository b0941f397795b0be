// Where the time of a solve goes: commits by the length of the text, the growth of a solve with its
// terms and with the depth of its parentheses, number text, a drawn line.
#include "FreshProgram.hpp"
#include "NumberText.hpp"
#include "PlainPlatform.hpp"
#include "Requests.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"
#include "basFPrint.hpp"
#include "basFormattingEq.hpp"
#include "basReduceFunc.hpp"

#include <benchmark/benchmark.h>

#include <string>

namespace ordwise {
namespace {

// "+1x+2x+3x", `terms` terms long
std::string sumOf(std::int64_t terms) {
    std::string sum;
    for (std::int64_t i = 1; i <= terms; ++i) sum += "+" + std::to_string(i % 9 + 1) + "x";
    return sum;
}

void commit(benchmark::State& state) {
    const PlainPlatform outside;
    startFreshProgram();
    const std::string text = sumOf(state.range(0));
    for (auto _ : state) {
        ExplodeTokens(text);
        CommitStep({.silent = true});
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(commit)->RangeMultiplier(2)->Range(2, 64)->Complexity();

void parse(benchmark::State& state) {
    const PlainPlatform outside;
    startFreshProgram();
    const std::string text = sumOf(state.range(0));
    for (auto _ : state) {
        ExplodeTokens(text);
        MergeNumbers();
        ParseExpression();
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(parse)->RangeMultiplier(2)->Range(2, 64)->Complexity();

// One step a term, so the time of a step is this divided by the number of terms.
void solveSum(benchmark::State& state) {
    SolveRequest request;
    request.topic = "Arithmetic";
    for (std::int64_t i = 0; i < state.range(0); ++i) request.problem += (i > 0 ? "+" : "") + std::to_string(i % 9 + 1);
    for (auto _ : state) benchmark::DoNotOptimize(answerSolve(request));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(solveSum)->Arg(5)->Arg(10)->Arg(15)->Arg(20)->Arg(25)->Complexity();

void numberToText(benchmark::State& state) {
    const PlainPlatform outside;
    startFreshProgram();
    ws.UseFractions = true;
    // A simple fraction, and a value that none of a hundred million denominators makes whole.
    const float value = state.range(0) == 0 ? 2301.0F / 4 : 1.4142135F;
    for (auto _ : state) benchmark::DoNotOptimize(FractionText(value));
}
BENCHMARK(numberToText)->Arg(0)->Arg(1);

void textOfDouble(benchmark::State& state) {
    double x = 0.1;
    for (auto _ : state) benchmark::DoNotOptimize(textOf(x += 0.37));
}
BENCHMARK(textOfDouble);

void drawLine(benchmark::State& state) {
    const PlainPlatform outside;
    startFreshProgram();
    for (auto _ : state) {
        frmPaper.Paper[0].cls();
        frmPaper.Paper[0].CurrentY = sheetTopY;
        PrintMathLine("[#1/2#]*#3/3#+[#1/3#]*#2/2#-3x^2^+~12~", false);
    }
}
BENCHMARK(drawLine);

}  // namespace
}  // namespace ordwise
