// ordwise-cli from outside: what a script or a worksheet server meets. The program is started as a
// process, so only what a process has is looked at here: exit status, both streams, memory.
#include "Process.hpp"
#include "Sanitized.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <sstream>

namespace ordwise::test {
namespace {

using nlohmann::json;
using nlohmann::ordered_json;

Outcome cli(std::vector<std::string> arguments, const std::string& input = "") {
    arguments.insert(arguments.begin(), ORDWISE_CLI);
    return run(arguments, input);
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

// One clear sentence on standard error, and nothing half done on standard output.
void expectRefusal(const Outcome& outcome, int status, const std::string& piece) {
    EXPECT_EQ(outcome.status, status) << outcome.err;
    EXPECT_EQ(linesOf(outcome.err).size(), 1U) << outcome.err;
    EXPECT_NE(outcome.err.find(piece), std::string::npos) << outcome.err;
}

TEST(CommandLine, PrintsASolutionForPeople) {
    const Outcome outcome = cli({"solve", "Arithmetic", "2+3*4-5"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.err, "");
    const std::size_t product = outcome.out.find("2+12-5");
    const std::size_t note = outcome.out.find("Multiply 3 by 4 using the order of operations.");
    EXPECT_NE(product, std::string::npos) << outcome.out;
    EXPECT_LT(product, note);
    EXPECT_LT(note, outcome.out.find("Subtract 5 from 14 to form the new term (9)."));
}

TEST(CommandLine, WritesJsonWithItsKeysInOrder) {
    const Outcome outcome = cli({"solve", "Arithmetic", "2+3", "--json"});
    EXPECT_EQ(outcome.status, 0);
    const ordered_json answer = ordered_json::parse(outcome.out);
    std::vector<std::string> keys;
    for (const auto& entry : answer.items()) keys.push_back(entry.key());
    const std::vector<std::string> wanted = {"topic", "type",   "typed", "markup",   "refused", "canSolve",
                                             "boxes", "combos", "steps", "messages", "prompts", "graph"};
    EXPECT_EQ(keys, wanted);
}

TEST(CommandLine, ChecksLinesAndSaysByItsStatusWhetherTheLastIsTheAnswer) {
    const Outcome done = cli({"check", "Solving Equations", "2x+3=7", "--line", "2x=4", "--line", "x=2"});
    EXPECT_EQ(done.status, 0) << done.err;
    EXPECT_NE(done.out.find("x=2                       right"), std::string::npos) << done.out;
    expectRefusal(cli({"check", "Solving Equations", "2x+3=7", "--line", "-2x=4"}), 1, "last line");
    expectRefusal(cli({"check", "Solving Equations", "2x+", "--line", "x=2"}), 1, "not complete");
    expectRefusal(cli({"check", "Evaluating Polynomials", "4x", "--line", "8"}), 1, "Enter a value for x");
    expectRefusal(cli({"check", "Plotting A Point", "(1,2)", "--line", "x"}), 2, "answered by a drawing");
    const Outcome asJson = cli({"check", "Arithmetic", "1/2+1/3", "--line", "#(3+2)/6#", "--line", "1", "--json"});
    const ordered_json answer = ordered_json::parse(asJson.out);
    EXPECT_EQ(answer["lines"][0]["verdict"], "right");
    EXPECT_EQ(answer["lines"][1]["evidence"], ordered_json::parse(R"({"at":{},"before":"5/6","line":"1"})"));
    EXPECT_EQ(answer["finished"], false);
}

TEST(CommandLine, TakesBoxesCombosAnswersAndSettings) {
    const Outcome boxes = cli({"solve", "Meter Conversions", "--box", "4=5", "--combo", "1=6", "--combo", "2=3"});
    EXPECT_EQ(boxes.status, 0) << boxes.err;
    EXPECT_NE(boxes.out.find("5 km = 5000 m"), std::string::npos) << boxes.out;
    const Outcome answers = cli({"solve", "Evaluating Polynomials", "x^2+1", "--answer", "3"});
    EXPECT_EQ(answers.status, 0) << answers.err;
    EXPECT_NE(answers.out.find("10"), std::string::npos) << answers.out;
    const Outcome places = cli({"solve", "Fraction To Decimal Notation", "2/3", "--set", "RoundVar=4"});
    EXPECT_NE(places.out.find("0.6667"), std::string::npos) << places.out;
}

TEST(CommandLine, NamesTheNearestTopics) {
    expectRefusal(cli({"solve", "Arithmatic", "2+3"}), 2, "\"Arithmetic\"");
    expectRefusal(cli({"keys", "arithmetic", "2+3"}), 2, "\"Arithmetic\"");
}

TEST(CommandLine, TellsARefusedKeyWithItsReasonAndSolvesNothing) {
    const Outcome outcome = cli({"solve", "Arithmetic", "2+q"});
    expectRefusal(outcome, 1, "Variables are not allowed in 'Arithmetic'.");
    EXPECT_EQ(outcome.out.find("> "), std::string::npos);
    EXPECT_EQ(cli({"solve", "Arithmetic", "2+q3", "--drop-refused"}).status, 0);
}

TEST(CommandLine, EndsWithOneWhereTheSolveEndsInAMessageBox) {
    expectRefusal(cli({"solve", "Arithmetic", "5/0"}), 1, "division by 0");
    expectRefusal(cli({"solve", "Arithmetic", "2+"}), 1, "");
}

TEST(CommandLine, NamesABoxThatThereIsNot) {
    expectRefusal(cli({"solve", "Area of a Circle", "--box", "7=3"}), 2, "Text7");
    expectRefusal(cli({"solve", "Area of a Circle", "--box", "5=3"}), 2, "Text5");
    expectRefusal(cli({"solve", "Area of a Circle", "--box", "2"}), 2, "--box");
    expectRefusal(cli({"solve", "Area of a Circle", "--box", "2=3x"}), 1, "x");
    expectRefusal(cli({"solve", "Meter Conversions", "--box", "4=1", "--combo", "1=7"}), 2, "Combo1");
    expectRefusal(cli({"solve", "Arithmetic", "1", "--set", "roundvar=2"}), 2, "roundvar");
}

TEST(CommandLine, StopsWhereAnswersAreUsedUp) {
    expectRefusal(cli({"solve", "Evaluating Polynomials", "x+y", "--answer", "2"}), 1, "Enter a value for y");
    expectRefusal(cli({"solve", "Graphing A Linear Equation", "a+b=3", "--answer", "q"}), 1,
                  "Which variable do you want to solve for?");
}

TEST(CommandLine, RefusesWhatItCannotRead) {
    EXPECT_EQ(cli({}).status, 2);
    EXPECT_EQ(cli({"slove"}).status, 2);
    EXPECT_EQ(cli({"solve"}).status, 2);
    EXPECT_EQ(cli({"solve", "Arithmetic", "1", "--jsn"}).status, 2);
    EXPECT_EQ(cli({"--help"}).status, 0);
}

TEST(CommandLine, TakesTextOfAnyLengthAndAnyBytes) {
    expectRefusal(cli({"solve", "Arithmetic", std::string(3000, '1')}), 1, "");
    std::string sum = "1";
    while (sum.size() < 3000) sum += "+1";
    EXPECT_EQ(cli({"solve", "Arithmetic", sum}).status, 1);
    expectRefusal(cli({"solve", "Arithmetic",
                       "2\xC3\x97"
                       "3"}),
                  1, "\xC3\x97");
    const Outcome bytes = cli({"solve", "Arithmetic",
                               "2\xFF"
                               "3",
                               "--json"});
    EXPECT_EQ(bytes.status, 1);
    EXPECT_TRUE(json::accept(bytes.out)) << bytes.out;
}

TEST(CommandLine, ListsEveryTopicOnce) {
    const Outcome outcome = cli({"topics", "--json"});
    const json topics = json::parse(outcome.out);
    EXPECT_GT(topics.size(), 90U);
    std::vector<std::string> names;
    for (const auto& topic : topics) names.push_back(topic["name"].get<std::string>());
    std::sort(names.begin(), names.end());
    EXPECT_EQ(std::adjacent_find(names.begin(), names.end()), names.end());
}

TEST(CommandLine, TellsAboutEveryKey) {
    const json answer = json::parse(cli({"keys", "Arithmetic", "3/4\b", "--json"}).out);
    ASSERT_EQ(answer["keys"].size(), 4U);
    EXPECT_EQ(answer["keys"][2]["markup"], "#3/4#");
    EXPECT_EQ(answer["keys"][3]["typed"], "3/");
    EXPECT_EQ(answer["keys"][3]["canSolve"], false);
}

// --- batch -------------------------------------------------------------------------------------

TEST(Batch, AnswersEveryLineInOrderAndGoesOnAfterABadOne) {
    const Outcome outcome = cli({"batch"},
                                "{\"op\":\"solve\",\"topic\":\"Arithmetic\",\"problem\":\"2+3\"}\n"
                                "{\"op\":\"solve\",\n"
                                "[1,2]\n"
                                "{\"op\":\"dance\",\"topic\":\"Arithmetic\"}\n"
                                "{\"op\":\"solve\",\"topic\":\"Arithmatic\",\"problem\":\"2+3\"}\n"
                                "{\"op\":\"solve\",\"topic\":\"Arithmetic\",\"boxes\":{\"1\":[]}}\n"
                                "{\"op\":\"keys\",\"topic\":\"Arithmetic\",\"text\":\"2+\"}\n");
    EXPECT_EQ(outcome.status, 0) << "an error is an answer";
    const auto answers = linesOf(outcome.out);
    ASSERT_EQ(answers.size(), 7U) << outcome.out;
    EXPECT_NE(answers.front().find("\"line\":\"5\""), std::string::npos) << answers.front();
    for (std::size_t i = 1; i < 6; ++i) EXPECT_TRUE(json::parse(answers[i]).contains("error")) << answers[i];
    EXPECT_EQ(json::parse(answers.back())["keys"].size(), 2U);
}

// Problems of all kinds, some of which leave much behind: a fault, a setting, a bar left open.
std::string mixedRequests(int rounds) {
    std::string requests;
    for (int i = 0; i < rounds; ++i) {
        requests +=
            "{\"op\":\"solve\",\"topic\":\"Arithmetic\",\"problem\":\"1/2+1/3+0.25\"}\n"
            "{\"op\":\"solve\",\"topic\":\"Arithmetic\",\"problem\":\"5/0\"}\n"
            "{\"op\":\"solve\",\"topic\":\"Arithmetic\",\"problem\":\"1/2+1/3\",\"settings\":{\"use_fraction\":0}}\n"
            "{\"op\":\"solve\",\"topic\":\"Fraction Arithmetic\",\"problem\":\"1/2/3/4\"}\n"
            "{\"op\":\"keys\",\"topic\":\"Absolute Values\",\"text\":\"|3+\"}\n"
            "{\"op\":\"solve\",\"topic\":\"Solving Equations\",\"problem\":\"5x-3=2x+9\"}\n"
            "{\"op\":\"solve\",\"topic\":\"Simplifying Polynomials\",\"problem\":\"3(x+2)-2(x-1)\"}\n"
            "{\"op\":\"solve\",\"topic\":\"Volume of a Sphere\",\"boxes\":{\"2\":\"3\"},\"settings\":{\"RoundVar\":4}}\n"
            "{\"op\":\"solve\",\"topic\":\"Evaluating Polynomials\",\"problem\":\"xy\",\"answers\":[\"2\"]}\n";
    }
    return requests;
}

TEST(Batch, GivesTheSameAnswersAtTheEndAsAtTheStart) {
    const auto answers = linesOf(cli({"batch"}, mixedRequests(200)).out);
    ASSERT_EQ(answers.size(), 9U * 200U);
    for (std::size_t i = 0; i < 9; ++i) EXPECT_EQ(answers[answers.size() - 9 + i], answers[i]);
}

TEST(Batch, NeedsNoMoreMemoryForManyRequestsThanForFew) {
    if (sanitized) GTEST_SKIP() << "The sanitizers keep freed memory for a while.";
    const Outcome few = cli({"batch"}, mixedRequests(5));
    const Outcome many = cli({"batch"}, mixedRequests(400));
    EXPECT_LT(many.residentKilobytes, few.residentKilobytes + 1024);
}

TEST(CommandLine, IsSmallAndQuickForOneProblem) {
    const Outcome outcome = cli({"solve", "Arithmetic", "2+3"});
    if (!sanitized) {
        EXPECT_LT(outcome.residentKilobytes, 12 * 1024);
    }
    EXPECT_LT(outcome.processorMilliseconds, 500);
}

}  // namespace
}  // namespace ordwise::test
