// Practice tests: what the window does, what is on the sheets, and that keys agree with the lessons.
#include "PracticeTest.hpp"

#include "Catalogue.hpp"
#include "Examples.hpp"
#include "FaultOf.hpp"
#include "GuidedInput.hpp"
#include "PlainPlatform.hpp"
#include "PracticeTestLogic.hpp"
#include "PracticeTestTopics.hpp"
#include "PracticeWindow.hpp"
#include "TextTools.hpp"
#include "WorksheetLayout.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <set>

namespace ordwise {
namespace {

class PracticeTests : public testing::Test {
protected:
    PlainPlatform outside;

    PracticeTests() {
        ws = Workspace{};
        ResetWindows();
        outside.clock.date = "11/22/2026";
        PracticeTest_Load();
    }

    static int indexOf(std::string_view topic) {
        const auto& items = frmPracticeTest.IndexList;
        return static_cast<int>(
            std::find_if(items.begin(), items.end(), [&](const auto& item) { return item.Text == topic; }) -
            items.begin());
    }
    static void check(std::string_view topic) { PracticeIndexList_ItemCheck(indexOf(topic)); }

    static std::vector<std::string> outline() {
        std::vector<std::string> topics;
        for (const Control& slot : frmPracticeTest.Text4) topics.push_back(slot.Text);
        return topics;
    }
};

TEST_F(PracticeTests, BeginWithAnEmptyOutlineAndTheUsualHeading) {
    EXPECT_EQ(outline(), std::vector<std::string>(10));
    EXPECT_EQ(frmPracticeTest.Combo1[9].ListIndex, 2);
    EXPECT_EQ(frmPracticeTest.Text1.Text, "Halvern Ordwise");
    EXPECT_EQ(frmPracticeTest.Text2.Text, "Practice Test");
    EXPECT_EQ(frmPracticeTest.Text3.Text, "11/22/2026");
    EXPECT_EQ(frmPracticeTest.IndexList.size(), testTopicTable().size());
    EXPECT_EQ(frmPracticeTest.IndexList.front().Text, "Absolute Values");
}

TEST_F(PracticeTests, TakeATopicOfTheListAndGiveItBack) {
    check("Ratios");
    check("Modes");
    EXPECT_EQ(outline()[1], "Modes");
    EXPECT_TRUE(frmPracticeTest.IndexList[static_cast<std::size_t>(indexOf("Modes"))].Checked);
    check("Ratios");
    EXPECT_EQ(outline()[0], "");
    check("Medians");
    EXPECT_EQ(outline()[0], "Medians") << "the first free slot is taken";
    PracticeCommand4_Click(1);
    EXPECT_EQ(outline()[1], "");
    EXPECT_FALSE(frmPracticeTest.IndexList[static_cast<std::size_t>(indexOf("Modes"))].Checked);
}

TEST_F(PracticeTests, TakeATopicOfTheTreeOnceAndNoHeading) {
    PracticeTree_NodeClick("Lengths");
    EXPECT_EQ(outline()[0], "");
    PracticeTree_NodeClick("Ratios");
    PracticeTree_NodeClick("Ratios");
    EXPECT_EQ(outline()[0], "Ratios");
    EXPECT_EQ(outline()[1], "");
    PracticeTree_KeyDown(40, "Modes");
    PracticeTree_NodeClick("Modes");
    EXPECT_EQ(outline()[1], "") << "the arrow keys only walk";
    PracticeTree_KeyDown(13, "Modes");
    EXPECT_EQ(outline()[1], "Modes");
}

TEST_F(PracticeTests, TakeTheBestMatchOfTheSearchOrNothing) {
    const auto taken = [](std::string_view typed) {
        PracticeSearch_Change(typed);
        PracticeSearch_Enter();
        const std::string topic = frmPracticeTest.Text4[0].Text;
        PracticeCommand4_Click(0);
        return topic;
    };
    EXPECT_EQ(taken("meter conv"), "Meter Conversions");
    EXPECT_EQ(taken("inches meters"), "Converting Inches To Meters");
    EXPECT_EQ(taken(" "), "");
    EXPECT_EQ(frmPracticeTest.Label1.Text, "");
    EXPECT_EQ(taken("Square Roots"), "");
    EXPECT_EQ(frmPracticeTest.Label1.Text, "No topic has \"Square Roots\" in its name.");
}

TEST_F(PracticeTests, HaveRoomForTenSections) {
    for (int i = 0; i < 12; ++i) PracticeIndexList_ItemCheck(i);
    EXPECT_EQ(outline()[9], frmPracticeTest.IndexList[9].Text);
    EXPECT_FALSE(frmPracticeTest.IndexList[10].Checked);
}

TEST_F(PracticeTests, AreLaidOutInSectionsNumberedThroughout) {
    check("Ratios");
    check("Meter Conversions");
    check("Converting Inches To Feet");
    PracticeCommand4_Click(1);
    check("Gram Conversions");
    frmPracticeTest.Combo1[0].ListIndex = 1;
    frmPracticeTest.Combo1[1].ListIndex = 0;
    frmPracticeTest.Check1[2].Checked = true;
    frmPracticeTest.Seed.Text = "42";
    PracticeCommand2_Click();
    ASSERT_EQ(frmPrintPreview.Sheets.size(), 1U);
    const PrintSheet& sheet = frmPrintPreview.Sheets[0];
    EXPECT_EQ(sheet.Heading[1], "Practice Test");
    EXPECT_EQ(sheet.Seed, "42");
    const char* wanted[] = {"",
                            "Write the following ratios as fractions:",
                            "1\\) \\d:\\d",
                            "2\\) \\d:\\d",
                            "",
                            "",
                            "3\\) \\d \\w+ \\(.*\\) = \\? \\w+ \\(.*\\)",
                            "",
                            "Converting Inches To Feet",
                            "4\\) [\\d.]+ inches = \\? feet",
                            "5\\) [\\d.]+ inches = \\? feet",
                            "6\\) [\\d.]+ inches = \\? feet"};
    ASSERT_EQ(sheet.Lines.size(), std::size(wanted));
    for (std::size_t i = 0; i < sheet.Lines.size(); ++i) {
        EXPECT_TRUE(std::regex_match(sheet.Lines[i], std::regex(wanted[i]))) << sheet.Lines[i];
        EXPECT_EQ(ws.TestProblems[static_cast<int>(i)], sheet.Lines[i]);
    }
    EXPECT_EQ(ws.TestCount, 12);
    EXPECT_EQ(outside.windows.requests.back(), "+frmPrintPreview");
}

TEST_F(PracticeTests, WithoutASectionAreAHeadingOnly) {
    PracticeCommand2_Click();
    ASSERT_EQ(frmPrintPreview.Sheets.size(), 1U);
    EXPECT_TRUE(frmPrintPreview.Sheets[0].Lines.empty());
    EXPECT_TRUE(std::regex_match(frmPrintPreview.Sheets[0].Seed, std::regex("\\d+")));
}

TEST_F(PracticeTests, NameEveryTopicByItsOwnCode) {
    std::set<std::string_view> names;
    for (const TestTopicRowData& row : testTopicTable()) {
        ASSERT_NE(findTopic(row.topic), nullptr) << row.topic;
        EXPECT_EQ(row.testType, findTopic(row.topic)->code) << row.topic;
        names.insert(row.topic);
    }
    EXPECT_EQ(names.size(), topicNames().size());
    for (const std::string_view name : topicNames()) EXPECT_TRUE(names.count(name) > 0) << name;
    EXPECT_EQ(findTestTopic("Averages")->topic, "Means (Averages)");
    EXPECT_EQ(findTestTopic("Lengths"), nullptr);
}

TestPlan planOf(const std::string& topic, int count, bool complex, std::uint64_t seed) {
    TestPlan plan;
    plan.sections = {{topic, count, complex}};
    plan.seed = seed;
    return plan;
}

// The answer is what the worksheet comes to when the problem of the test is typed there by hand.
TEST_F(PracticeTests, HaveTheAnswersOfTheWorksheet) {
    for (const char* topic : {"Solving Equations", "Arithmetic", "Fraction Arithmetic", "Medians", "Reciprocals",
                              "Simplifying Polynomials", "Negative Exponents", "Calculating Roots"}) {
        TestPlan plan = planOf(topic, 10, true, 5);
        plan.key = AnswerKey::Answers;
        const MadeTest test = makeTests(plan).front();
        ASSERT_EQ(test.key.size(), 10U);
        for (std::size_t i = 0; i < test.key.size(); ++i) {
            const std::string problem = test.lines[i + 2].substr(test.lines[i + 2].find(' ') + 1);
            ws = Workspace{};
            ResetWindows();
            TreeViewSelect(topic);
            Form_Load();
            // What is drawn and cannot be typed: closing marks and the sign between two fractions.
            std::string keys = std::regex_replace(problem, std::regex("\\^(-?\\d)\\^"), "^$1");
            keys = std::regex_replace(keys, std::regex("~(\\d+)~"), "~$1");
            keys = replaced(replaced(keys, "#", ""), "{", "/");
            frmMain.mnuShowStep.Checked = false;
            ASSERT_TRUE(ExampleChop(keys, false).empty()) << problem;
            const std::string answer = test.key[i].substr(test.key[i].find(' ') + 1);
            EXPECT_EQ(answer, answerOnDesk()) << problem;
        }
    }
}

TEST_F(PracticeTests, AnswerEveryTopicInOneLineAndInSteps) {
    for (const TestTopicRowData& row : testTopicTable()) {
        TestPlan plan = planOf(std::string(row.topic), 3, false, 8);
        plan.key = AnswerKey::Answers;
        const MadeTest answers = makeTests(plan).front();
        ASSERT_EQ(answers.key.size(), 3U) << row.topic;
        for (const std::string& line : answers.key) {
            EXPECT_TRUE(std::regex_match(line, std::regex("[123]\\) .+"))) << row.topic << ": " << line;
            EXPECT_EQ(line.find("not solved"), std::string::npos) << row.topic;
        }
        plan.key = AnswerKey::Steps;
        const MadeTest steps = makeTests(plan).front();
        EXPECT_EQ(steps.lines, answers.lines) << "a key changes no problem";
        EXPECT_GE(steps.key.size(), answers.key.size()) << row.topic;
    }
    EXPECT_TRUE(outside.dialogs.messages.empty());
    EXPECT_TRUE(outside.dialogs.prompts.empty());
}

TEST_F(PracticeTests, SayWhichValuesAPolynomialHasAndUseThemInTheKey) {
    TestPlan plan = planOf("Evaluating Polynomials", 10, true, 3);
    plan.key = AnswerKey::Steps;
    const MadeTest test = makeTests(plan).front();
    const std::regex values(R"(\d+\) .*[xyz].*, when ([xyz] = \d, )?([xyz] = \d and )?[xyz] = \d)");
    std::size_t at = 0;
    for (std::size_t i = 2; i < test.lines.size(); ++i) {
        EXPECT_TRUE(std::regex_match(test.lines[i], values)) << test.lines[i];
        at = static_cast<std::size_t>(std::find(test.key.begin(), test.key.end(), test.lines[i]) - test.key.begin());
        ASSERT_LT(at + 1, test.key.size()) << "the key begins with " << test.lines[i];
        const std::string name = test.lines[i].substr(test.lines[i].find(", when ") + 7, 1);
        const std::string value = test.lines[i].substr(test.lines[i].find(", when ") + 11, 1);
        const auto end = std::find(test.key.begin() + static_cast<std::ptrdiff_t>(at), test.key.end(), "");
        EXPECT_TRUE(std::any_of(test.key.begin() + static_cast<std::ptrdiff_t>(at), end, [&](const std::string& step) {
            return contains(step, "(" + value + ")");
        })) << test.lines[i];
    }
}

TEST_F(PracticeTests, ComeInVersionsWithTheirSeedsAndKeys) {
    TestPlan plan = planOf("Solving Equations", 5, false, 100);
    plan.heading = {"School", "Test", ""};
    plan.key = AnswerKey::Answers;
    plan.versions = 3;
    const std::vector<MadeTest> tests = makeTests(plan);
    const std::vector<PrintSheet> sheets = sheetsOf(plan, tests);
    ASSERT_EQ(sheets.size(), 6U);
    EXPECT_EQ(sheets[0].Heading[1], "Test");
    EXPECT_EQ(sheets[3].Version, "B");
    EXPECT_EQ(sheets[3].What, PrintSheet::Kind::Answers);
    EXPECT_FALSE(sheets[3].NameLine) << "a key is not handed in";
    EXPECT_EQ(sheets[4].Seed, "102");
    EXPECT_NE(tests[0].lines, tests[1].lines);
    const std::vector<MadeTest> again = makeTests(planOf("Solving Equations", 5, false, 101));
    EXPECT_EQ(again.front().lines, tests[1].lines) << "the seed at the foot makes version B again";
}

TEST_F(PracticeTests, LeaveTheOpenProblemAsItWas) {
    TreeViewSelect("Solving Equations");
    Form_Load();
    for (const char* key : {"x", "+", "3", "="}) Form_KeyPress(key);
    const std::string typed = ImplodeInput();
    check("Arithmetic");
    check("Area of a Circle");
    frmPracticeTest.AnswerKey.ListIndex = 2;
    PracticeCommand2_Click();
    EXPECT_EQ(ImplodeInput(), typed);
    EXPECT_EQ(ws.TopicName, "Solving Equations");
    EXPECT_EQ(ws.EquationMode, 1);
    EXPECT_TRUE(ws.InputOpen);
    EXPECT_FALSE(frmMain.mnuSolve.Enabled);
    EXPECT_EQ(Form_KeyPress("7"), KeyOutcome::Accepted);
    EXPECT_TRUE(frmMain.mnuSolve.Enabled);
    EXPECT_EQ(ImplodeInput(), "x+3=7");
}

TEST_F(PracticeTests, OfMoreThanTwoHundredLinesAreAFault) {
    EXPECT_EQ(faultOf([] { (void)makeTests(planOf("Ratios", 200, false, 1)); }), 9);
    EXPECT_EQ(makeTests(planOf("Ratios", 199, false, 1)).front().lines.size(), 201U);
}

}  // namespace
}  // namespace ordwise
