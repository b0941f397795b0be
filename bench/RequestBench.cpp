// What a worksheet server pays: a solve by topic, keys, a batch of mixed requests, a cold start.
#include "Process.hpp"
#include "Requests.hpp"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace ordwise {
namespace {

struct Sample {
    const char* topic;
    const char* problem;
    std::vector<std::string> answers;
};

// One school problem of each topic that the engine solves.
const std::vector<Sample>& samples() {
    static const std::vector<Sample> all = {
        {"Arithmetic", "2+3*4-5", {}},
        {"Arithmetic", "1/2+3", {}},
        {"Fraction Arithmetic", "1/2+1/3", {}},
        {"Calculating With Exponents", "3^2+4^2", {}},
        {"Calculating Roots", "5~18-~8", {}},
        {"Exponential Notation", "35*9*4^3", {}},
        {"Solving Equations", "5x-3=2x+9", {}},
        {"Simplifying Polynomials", "3(x+2)-2(x-1)", {}},
        {"Evaluating Polynomials", "4xy+9x*6y+8z^2", {"2", "3", "4"}},
        {"Graphing A Linear Equation", "2x+3y=6", {}},
        {"Absolute Values", "|3-8|+2", {}},
        {"Complex Arithmetic Expressions", "(4-2)+3^2", {}},
        {"Negative Exponents", "9x^-2/6+8x^-2", {}},
        {"Least Common Multiples", "9973,9967", {}},
        {"Converting Inches To Miles", "9999", {}},
    };
    return all;
}

SolveRequest requestOf(const Sample& sample) {
    SolveRequest request;
    request.topic = sample.topic;
    request.problem = sample.problem;
    request.answers = sample.answers;
    return request;
}

void solve(benchmark::State& state) {
    const Sample& sample = samples()[static_cast<std::size_t>(state.range(0))];
    const SolveRequest request = requestOf(sample);
    for (auto _ : state) benchmark::DoNotOptimize(solveAnswer(request));
    state.SetLabel(std::string(sample.topic) + " " + sample.problem);
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(solve)->DenseRange(0, 14);

// The lines of a batch as they come in, written out again: what a second of the server is worth.
void batchOfExpressionTopics(benchmark::State& state) {
    std::vector<std::string> lines;
    for (const Sample& sample : samples()) {
        nlohmann::json line{{"op", "solve"}, {"topic", sample.topic}, {"problem", sample.problem}};
        for (const auto& answer : sample.answers) line["answers"].push_back(answer);
        lines.push_back(line.dump());
    }
    for (auto _ : state) {
        for (const auto& line : lines) benchmark::DoNotOptimize(answerTextOfLine(line));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(lines.size()));
}
BENCHMARK(batchOfExpressionTopics);

void keys(benchmark::State& state) {
    const std::string text = "9(3x^2+8^2)-3/4+4x";
    for (auto _ : state) benchmark::DoNotOptimize(keysAnswer({"Simplifying Polynomials", text}));
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(keys);

// A process of its own: start, one solve, end.
void coldStart(benchmark::State& state) {
    double processor = 0;
    long resident = 0;
    for (auto _ : state) {
        const auto outcome = test::run({ORDWISE_CLI, "solve", "Arithmetic", "2+3"});
        processor += outcome.processorMilliseconds;
        resident = outcome.residentKilobytes;
    }
    state.counters["processor ms"] = processor / static_cast<double>(state.iterations());
    state.counters["resident KB"] = static_cast<double>(resident);
}
BENCHMARK(coldStart)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace ordwise
