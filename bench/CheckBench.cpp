// What a line of the student's own costs: the verdict alone, and with what comes next.
#include "LineEquality.hpp"
#include "Requests.hpp"

#include <benchmark/benchmark.h>

namespace ordwise {
namespace {

constexpr exact::Rounding fractions{false, 2};
constexpr exact::Rounding decimals{true, 2};

void expressions(benchmark::State& state, const char* before, const char* line, const exact::Rounding& rounding) {
    const auto a = *exact::readExpression(before);
    const auto b = *exact::readExpression(line);
    for (auto _ : state) benchmark::DoNotOptimize(exact::compareExpressions(a, b, rounding));
}

void equations(benchmark::State& state, const char* before, const char* line) {
    const auto a = *exact::readEquation(before);
    const auto b = *exact::readEquation(line);
    for (auto _ : state) benchmark::DoNotOptimize(exact::compareEquations(a, b, fractions));
}

BENCHMARK_CAPTURE(expressions, Plain, "9(3x^2^+64)-#3/4#+4x", "27x^2^+4x+#2301/4#", fractions)
    ->Name("verdict/polynomial");
BENCHMARK_CAPTURE(expressions, Roots, "5~18~-~8~+#1/(~2~+~3~)#", "12~2~+~3~", fractions)->Name("verdict/roots");
BENCHMARK_CAPTURE(expressions, Rounded, "#1/3#+#1/7#*#2/3#-#5/9#+#1/6#", "0.05", decimals)->Name("verdict/rounded");
BENCHMARK_CAPTURE(expressions, TooLong, "(x+y+z)^60^(x-y)^60^", "x", fractions)->Name("verdict/given_up");
BENCHMARK_CAPTURE(equations, Linear, "2x+3=4x-7", "x=6")->Name("verdict/linear");
BENCHMARK_CAPTURE(equations, Degree24, "x^24^-3x^17^+2x^5^=7", "x^24^-3x^17^+2x^5^=8")->Name("verdict/degree_24");

void wholeLine(benchmark::State& state) {
    CheckRequest request;
    request.topic = "Solving Equations";
    request.problem = "2x+3=4x-7";
    request.lines = {"2x+3-4x=-7", "-2x=-10", "x=6", "x=5"};
    for (auto _ : state) benchmark::DoNotOptimize(checkAnswer(request));
}
BENCHMARK(wholeLine)->Name("check/four_lines_of_an_equation");

}  // namespace
}  // namespace ordwise
