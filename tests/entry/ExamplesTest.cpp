// Examples of every topic: they can be typed, they are solved, and they differ.
#include "Examples.hpp"

#include "Catalogue.hpp"
#include "GuidedInput.hpp"
#include "KeyDesk.hpp"
#include "PlainPlatform.hpp"
#include "RandomDraws.hpp"
#include "StepDisplay.hpp"
#include "Windows.hpp"
#include "WorksheetLayout.hpp"
#include "Workspace.hpp"

#include <gtest/gtest.h>

#include <numeric>
#include <regex>
#include <set>

namespace ordwise::test {
namespace {

constexpr int plain = 0;

class Examples : public testing::Test {
protected:
    PlainPlatform outside;

    void SetUp() override { seedDraws(20261122); }
    void TearDown() override { unseedDraws(); }

    // Answers for the letters of a polynomial.
    void answerAll() { outside.dialogs.answers.assign(10, "3"); }

    Example exampleOf(std::string_view topic, int level) {
        if (ws.TopicName != topic) chooseFresh(topic);
        ws.ComplexExamples = level;
        answerAll();
        return example_Click();
    }

    std::vector<Example> examplesOf(std::string_view topic, int level, int count) {
        std::vector<Example> examples;
        ws.TopicName.clear();
        while (static_cast<int>(examples.size()) < count) examples.push_back(exampleOf(topic, level));
        return examples;
    }
};

// A topic of one box has nine plain problems, each other topic more than fifty.
TEST_F(Examples, DifferFromOneToTheNext) {
    for (const TopicRow& row : topicTable()) {
        for (const int level : {plain, complexLevel}) {
            std::set<std::string> different;
            std::string before;
            bool twiceInARow = false;
            for (const Example& example : examplesOf(row.name, level, 50)) {
                const std::string line = example.line + example.suffix;
                twiceInARow = twiceInARow || line == before;
                different.insert(line);
                before = line;
            }
            const std::set<int> ofOneBox = {5, 7, 15, 16, 17, 18};
            constexpr int simplifying = 80;  // of single digits few fractions can be simplified
            const std::size_t few = ofOneBox.count(row.code) > 0 ? 9 : row.code == simplifying ? 20 : 40;
            const std::size_t least = level == plain ? few : 40;
            EXPECT_GE(different.size(), least) << row.name << " at level " << level;
            EXPECT_FALSE(twiceInARow) << row.name << " at level " << level;
        }
    }
}

// The seeds 1 to 50 are as varied as fifty examples in a row.
TEST_F(Examples, FollowFromTheirSeed) {
    for (const char* topic : {"Ratios", "Reciprocals", "Area of a Triangle", "Arithmetic"}) {
        chooseFresh(topic);
        std::set<std::string> different;
        for (std::uint64_t seed = 1; seed <= 50; ++seed) {
            seedExample(ws.ProblemType, plain, seed);
            const std::string first = example_Click().line;
            seedExample(ws.ProblemType, plain, seed);
            EXPECT_EQ(first, example_Click().line);
            different.insert(first);
        }
        EXPECT_GE(different.size(), 40U) << topic;
    }
}

struct Form {
    const char* topic;
    const char* plainLine;
    const char* complexLine;
};

// clang-format off
const Form forms[] = {
    {"Volume of a Box/Cube",      "length = \\d, width = \\d, height = \\d", "length = \\d\\d, width = \\d\\d, height = \\d\\d"},
    {"Volume of a Cone",          "radius of base = \\d, height = \\d",      "radius of base = \\d\\d, height = \\d\\d"},
    {"Area of a Trapezoid",       "height = \\d, a = \\d, b = \\d",          "height = \\d\\d, a = \\d\\d, b = \\d\\d"},
    {"Perimeter of a Triangle",   "a = \\d, b = \\d, c = \\d",               "a = \\d\\d, b = \\d\\d, c = \\d\\d"},
    {"Meter Conversions",         "\\d \\w+ \\([\\d.]+ meters?\\) = \\? \\w+ \\([\\d.]+ meters?\\)", "\\d\\d \\w+ \\([\\d.]+ meters?\\) = \\? \\w+ \\([\\d.]+ meters?\\)"},
    {"Converting Scientific To Regular Notation", "\\d \\* 10\\^\\d\\^", "\\d\\d \\* 10\\^\\d\\d\\^"},
    {"Dividing Scientific Notation", "\\d\\*10\\^\\d\\^ \\{ \\d\\*10\\^\\d\\^", "\\d\\d\\*10\\^\\d\\d\\^ \\{ \\d\\d\\*10\\^\\d\\d\\^"},
    {"Ratios",                    "\\d:\\d",                                 "\\d\\d:\\d\\d"},
    {"Reciprocals",               "#\\d/\\d#",                               "#\\d\\d/\\d\\d#"},
    {"Fraction To Mixed Notation", "#\\d\\d/\\d#",                           "#\\d\\d\\d/\\d\\d#"},
    {"Mixed To Fraction Notation", "\\d\\+#\\d/\\d#",                        "\\d\\d\\+#\\d/\\d#"},
    {"Plotting A Point",          "\\(-?\\d,-?\\d\\)",                       "\\(-?\\d\\d,-?\\d\\d\\)"},
    {"Graphing A Line Using Two Points", "\\(-?\\d,-?\\d\\)-\\(-?\\d,-?\\d\\)", "\\(-?\\d\\d,-?\\d\\d\\)-\\(-?\\d\\d,-?\\d\\d\\)"},
    {"Straight/Obtuse/Right/Acute Angles", "[1-9][1-9]|1[0-7][1-9]",         "[1-9][1-9]|1[0-7][1-9]"},
    {"Negative Exponents",        "\\dx\\^-\\d\\^\\+\\dx\\^-\\d\\^",         "#\\dx\\^-\\d\\^/\\d#\\+\\dx\\^-\\d\\^-\\dx\\^-\\d\\^"},
    {"Absolute Values",           "\\|.*\\d#?",                              "\\|.*\\d#?"},
    {"Calculating Roots",         ".*~\\d+~.*",                              ".*~\\d+~.*"},
};
// clang-format on

TEST_F(Examples, HaveTheFormOfTheirTopic) {
    for (const Form& form : forms) {
        for (const int level : {plain, complexLevel}) {
            const std::regex wanted(level == plain ? form.plainLine : form.complexLine);
            for (const Example& example : examplesOf(form.topic, level, 60)) {
                EXPECT_TRUE(std::regex_match(example.line, wanted)) << form.topic << ": " << example.line;
            }
        }
    }
}

// What a test prints is what the solver says the problem is.
TEST_F(Examples, InBoxesAreRestatedByTheirSolver) {
    for (const char* topic : {"Volume of a Box/Cube", "Volume of a Pyramid", "Volume of a Sphere", "Volume of a Cone",
                              "Area of a Trapezoid", "Area of a Parallelogram", "Perimeter of a Triangle",
                              "Pythagorean Theorem", "Amount = N% of Base", "Work = Rate * Time",
                              "Distance = Speed * Time", "Calculating Radius Using Diameter"}) {
        for (const int level : {plain, complexLevel}) {
            ws.TopicName.clear();
            for (int i = 0; i < 30; ++i) {
                const Example example = exampleOf(topic, level);
                std::string restated = ws.StepLines[1];
                if (ws.ProblemType == 12) restated = std::regex_replace(restated, std::regex("= (?=,|$)"), "= ?");
                if (ws.ProblemType == 2 || ws.ProblemType == 3)
                    restated = std::regex_replace(restated, std::regex("^radius ="), "radius of base =");
                ASSERT_EQ(restated, example.line) << topic;
            }
        }
    }
}

TEST_F(Examples, AreWorthSolving) {
    int reducible = 0;
    int withMode = 0;
    constexpr int count = 200;
    for (const Example& example : examplesOf("Simplifying Fractions", complexLevel, count)) {
        const int top = std::stoi(example.keys);
        const int bottom = std::stoi(example.keys.substr(example.keys.find('/') + 1));
        reducible += std::gcd(top, bottom) > 1 ? 1 : 0;
    }
    EXPECT_EQ(reducible, count);
    for (const int level : {plain, complexLevel}) {
        ws.TopicName.clear();
        for (int i = 0; i < count; ++i) {
            (void)exampleOf("Simplifying Polynomials", level);
            EXPECT_NE(ws.StepLines[1], ws.StepLines[lastShownStep()]);
        }
    }
    ws.TopicName.clear();
    for (int i = 0; i < count; ++i) {
        (void)exampleOf("Modes", complexLevel);
        withMode += ws.StepLines[ws.StepCount - 1].find("Mode: ") == 0 ? 1 : 0;
    }
    EXPECT_GT(withMode, count / 2);
    EXPECT_LT(withMode, count);
    for (const Example& example : examplesOf("Greatest Common Factors", plain, 40)) {
        const int first = std::stoi(example.keys);
        const int second = std::stoi(example.keys.substr(example.keys.find(',') + 1));
        EXPECT_GT(std::gcd(first, second), 1) << example.keys;
    }
    ws.TopicName.clear();
    for (int i = 0; i < 100; ++i) {
        const Example example = exampleOf("Solving Equations", i % 2 == 0 ? plain : complexLevel);
        const std::string last = ws.StepLines[ws.StepCount - 1];
        EXPECT_TRUE(std::regex_match(last, std::regex("[a-z]=-?#?[\\d/.]+#?"))) << example.keys << " ends in " << last;
    }
}

// An open bar is not forgotten by Erase. An example begins without it all the same, since typing
// would otherwise go on for ever.
TEST_F(Examples, BeginWithoutTheOpenBarOfTheProblemBefore) {
    chooseFresh("Absolute Values");
    for (const char* key : {"|", "-", "5"}) Form_KeyPress(key);
    ASSERT_EQ(ws.BarDepth, 1);
    const Example example = example_Click();
    EXPECT_EQ(typedText(), example.keys);
    EXPECT_FALSE(ws.InputOpen);
}

// Bars may open again and again, until the paper takes no more keys: the first draws of these seeds.
TEST_F(Examples, FindRoomOnThePaper) {
    chooseFresh("Absolute Values");
    ws.ComplexExamples = complexLevel;
    for (const std::uint64_t seed : {1171U, 4116U}) {
        seedExample(ws.ProblemType, complexLevel, seed);
        for (int letter = 0; letter < ws.EquationMode; ++letter) (void)RandInt2to9();
        const Example example = example_Click();
        EXPECT_EQ(typedText(), example.keys);
        EXPECT_FALSE(ws.InputOpen) << "solved";
    }
}

TEST_F(Examples, ForATestAreNumberedLinesWithTheSuffixAndNothingElse) {
    chooseFresh("Rounding");
    ws.TestNumber = 3;
    const Example example = GenerateExample(ws.ProblemType, true, plain);
    EXPECT_EQ(ws.TestProblems[0], "4) " + example.line + example.suffix);
    EXPECT_TRUE(std::regex_match(example.suffix, std::regex(" Rounded to the nearest [a-z ]+")));
    EXPECT_EQ(ws.TestCount, 1);
    EXPECT_EQ(ws.TestNumber, 4);
    EXPECT_EQ(typedText(), "");
    EXPECT_TRUE(ws.InputOpen);
}

TEST_F(Examples, OfATemplateHaveTheSameDigitForTheSameLetter) {
    for (int i = 0; i < 20; ++i) {
        const std::string made = create_example("Ax+B=A");
        EXPECT_TRUE(std::regex_match(made, std::regex("([2-9])x\\+[2-9]=\\1"))) << made;
    }
}

// A text that the paper does not take whole would be another problem without the rest.
TEST_F(Examples, StopTypingAtARefusedKeyAndSolveNothing) {
    chooseFresh("Arithmetic");
    const std::vector<RefusedKey> refused = ExampleChop("2+3q4", false);
    ASSERT_EQ(refused.size(), 1U);
    EXPECT_EQ(refused[0].at, 3);
    EXPECT_EQ(refused[0].key, "q");
    EXPECT_FALSE(refused[0].reason.empty());
    EXPECT_EQ(typedText(), "2+3");
    EXPECT_TRUE(ws.InputOpen);

    chooseFresh("Arithmetic");
    EXPECT_EQ(ExampleChop("2+3\r4", false).size(), 1U) << "Enter is no key of a problem";
    EXPECT_TRUE(ws.InputOpen);
}

}  // namespace
}  // namespace ordwise::test
