// Where the time of a solve goes: commits by the length of the text, number text, a drawn line.
#include "FreshProgram.hpp"
#include "NumberText.hpp"
#include "PlainPlatform.hpp"
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

// A text that is new to the store each time: two that take turns.
void commitNewText(benchmark::State& state) {
    const PlainPlatform outside;
    startFreshProgram();
    const std::string texts[] = {sumOf(state.range(0)), "-" + sumOf(state.range(0)).substr(1)};
    int turn = 0;
    for (auto _ : state) {
        ExplodeTokens(texts[turn ^= 1]);
        CommitStep({.silent = true});
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(commitNewText)->RangeMultiplier(2)->Range(2, 64)->Complexity();

// The text that the store was made from, as two commits of three bring it.
void commitKnownText(benchmark::State& state) {
    const PlainPlatform outside;
    startFreshProgram();
    const std::string text = sumOf(state.range(0));
    for (auto _ : state) {
        ExplodeTokens(text);
        CommitStep({.silent = true});
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(commitKnownText)->RangeMultiplier(2)->Range(2, 64)->Complexity();

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

const char* const lines[] = {"2+3*4-5", "3x^2^+4x-7=2x+9", "5~18~-~8~", "#1/2#+#1/3#",
                             "[#1/2#]*#3/3#+[#1/3#]*#2/2#-3x^2^+~12~"};

void drawLine(benchmark::State& state) {
    const PlainPlatform outside;
    startFreshProgram();
    const char* const line = lines[state.range(0)];
    for (auto _ : state) {
        frmPaper.Paper[0].cls();
        frmPaper.Paper[0].CurrentY = sheetTopY;
        PrintMathLine(line, false);
    }
    state.SetLabel(line);
}
BENCHMARK(drawLine)->DenseRange(0, 4);

}  // namespace
}  // namespace ordwise
