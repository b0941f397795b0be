// Examples, saved problems and practice tests from outside.
#include "Process.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>

#include <unistd.h>

namespace ordwise::test {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

Outcome cli(std::vector<std::string> arguments, const std::string& input = "") {
    arguments.insert(arguments.begin(), ORDWISE_CLI);
    return run(arguments, input);
}

std::string temporary(const std::string& name) {
    return (fs::temp_directory_path() / ("ordwise-" + std::to_string(::getpid()) + "-" + name)).string();
}

TEST(ProblemFiles, LoadWhatSolveHasSaved) {
    const std::string file = temporary("a.hvx");
    const Outcome solved = cli({"solve", "Solving Equations", "x+3=12", "--save", file, "--json"});
    EXPECT_EQ(solved.status, 0) << solved.err;
    const Outcome loaded = cli({"load", file, "--json"});
    EXPECT_EQ(loaded.status, 0) << loaded.err;
    EXPECT_EQ(json::parse(loaded.out), json::parse(solved.out));
    const Outcome shown = cli({"load", file});
    EXPECT_NE(shown.out.find("x=9"), std::string::npos) << shown.out;
    fs::remove(file);
}

TEST(ProblemFiles, AreRefusedWithASentence) {
    const std::string file = temporary("b.hvx");
    EXPECT_EQ(cli({"load", file}).err, "ordwise-cli: \"" + file + "\" can't be read.\n");
    std::ofstream(file) << "no problem\n";
    EXPECT_EQ(cli({"load", file}).err, "ordwise-cli: \"" + file + "\" holds no problem of Ordwise.\n");
    EXPECT_EQ(cli({"load", file}).status, 2);
    std::ofstream(file) << "Arithmetic BB 2+q BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 91\r\n";
    const Outcome refused = cli({"load", file, "--json"});
    EXPECT_EQ(refused.status, 1);
    const json answer = json::parse(refused.out);
    EXPECT_EQ(answer.at("refused").at(0).at("at"), 2);
    EXPECT_EQ(answer.at("steps"), json::array());
    fs::remove(file);
    EXPECT_EQ(cli({"solve", "Arithmetic", "2+3", "--save", temporary("none/a.hvx")}).status, 2);
}

TEST(Examples, AreTheSameForTheSameSeedOnTheLineAndInABatch) {
    const Outcome first = cli({"example", "Solving Equations", "--complex", "--seed", "7", "--json"});
    EXPECT_EQ(first.status, 0) << first.err;
    const Outcome batch =
        cli({"batch"}, R"({"op": "example", "topic": "Solving Equations", "complex": true, "seed": 7})"
                       "\n");
    EXPECT_EQ(json::parse(first.out), json::parse(batch.out));
    const json answer = json::parse(first.out);
    EXPECT_GE(answer.at("typed").get<std::string>().size(), 13U);
    EXPECT_EQ(answer.at("steps").at(0).at("line"), answer.at("markup"));
    EXPECT_NE(cli({"example", "Solving Equations"}).out.find("makes up this problem again."), std::string::npos);
    EXPECT_EQ(cli({"batch"}, R"({"op": "example", "topic": "Ratios", "seed": -1})"
                             "\n")
                  .out,
              "{\"error\":\"\\\"seed\\\" must be a whole number from 0 on.\"}\n");
}

TEST(PracticeTests, ArePrintedAndMadeAgainByTheirSeed) {
    const Outcome shown = cli({"test", "--section", "Ratios:2", "--section", "Arithmetic:1:complex", "--heading",
                               "School", "--seed", "12", "--key", "answers", "--versions", "2"});
    EXPECT_EQ(shown.status, 0) << shown.err;
    EXPECT_EQ(shown.out.rfind("School\n", 0), 0U) << shown.out;
    for (const char* piece : {"Version B", "Write the following ratios as fractions:\n1) ", "Answer Key", "Seed 13"})
        EXPECT_NE(shown.out.find(piece), std::string::npos) << piece;
    const Outcome first = cli({"test", "--section", "Ratios:2", "--seed", "12", "--json"});
    const json test = json::parse(first.out);
    EXPECT_EQ(test.at("heading").size(), 3U);
    EXPECT_EQ(test.at("lines").size(), 4U);
    EXPECT_EQ(test.at("seed"), 12) << "also without a key and versions";
    EXPECT_EQ(test.at("date").get<std::string>().size(), std::string("2026-11-22").size());
    EXPECT_EQ(first.out, cli({"test", "--section", "Ratios:2", "--seed", "12", "--json"}).out);
}

TEST(PracticeTests, RefuseWhatCannotBeMade) {
    const struct {
        std::vector<std::string> arguments;
        const char* sentence;
    } cases[] = {
        {{"Ratios"}, "--section takes TOPIC:COUNT or TOPIC:COUNT:complex, not \"Ratios\"."},
        {{"Ratios:0"}, "--section takes TOPIC:COUNT or TOPIC:COUNT:complex, not \"Ratios:0\"."},
        {{"Ratios:2:hard"}, "--section takes TOPIC:COUNT or TOPIC:COUNT:complex, not \"Ratios:2:hard\"."},
        {{"Rations:2"}, "\"Ratios\""},
        {{"Ratios:250"}, "The test has more than 200 lines."},
        {{"Ratios:2", "--key", "all"}, "--key takes none, answers or steps, not \"all\"."},
        {{"Ratios:2", "--versions", "4"}, "--versions takes 1 to 3."},
        {{"Ratios:2", "--space", "21"}, "--space takes 0 to 20."},
    };
    for (const auto& each : cases) {
        std::vector<std::string> arguments = {"test", "--section"};
        arguments.insert(arguments.end(), each.arguments.begin(), each.arguments.end());
        const Outcome outcome = cli(arguments);
        EXPECT_EQ(outcome.status, 2) << each.sentence;
        EXPECT_EQ(outcome.out, "");
        EXPECT_NE(outcome.err.find(each.sentence), std::string::npos) << outcome.err;
    }
}

}  // namespace
}  // namespace ordwise::test
