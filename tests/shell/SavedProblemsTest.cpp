// Saved problems: what is written, what is read, and what any other bytes do to the desk: nothing.
#include "SavedProblems.hpp"

#include "Catalogue.hpp"
#include "Draws.hpp"
#include "FreshProgram.hpp"
#include "PlainPlatform.hpp"
#include "RandomDraws.hpp"
#include "WindowRoutines.hpp"
#include "Windows.hpp"
#include "WorksheetBoxes.hpp"
#include "Workspace.hpp"

#include <gtest/gtest.h>

namespace ordwise::test {
namespace {

class SavedProblems : public testing::Test {
protected:
    PlainPlatform outside;
    UnseenWindows windows;

    void SetUp() override {
        platform.windows = &windows;
        outside.clock.fileDate = "03-14-02";
        platform.folders.savedProblems = "/home/ann/Saved Problems";
        startFreshProgram();
    }

    void open(std::string_view topic) {
        startFreshProgram();
        TreeViewSelect(topic);
        loadWindow("frmPaper");
    }

    void answerAll() { outside.dialogs.answers.assign(10, "3"); }

    // The Load command on a file of these bytes.
    void load(const std::string& bytes) {
        outside.files.contents["/home/ann/a.hvx"] = bytes;
        outside.fileDialogs.answers = {"/home/ann/a.hvx"};
        answerAll();
        mnuLoad_Click();
    }

    static std::vector<std::string> solution() {
        std::vector<std::string> steps;
        for (int i = 1; i < ws.StepCount; ++i) steps.push_back(ws.StepLines[i] + " | " + ws.StepNotes[i]);
        return steps;
    }
};

TEST_F(SavedProblems, AreOneLineOfTwelveFields) {
    open("Solving Equations");
    ExampleChop("x+3=12", false);
    EXPECT_EQ(textOfProblem(problemOnDesk()),
              "Solving Equations BB x+3=12 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 101\r\n");
    open("Meter Conversions");
    setBoxText(4, "7.5");
    frmPaper.Combo2.ListIndex = 6;
    EXPECT_EQ(textOfProblem(problemOnDesk()),
              "Meter Conversions BB  BB  BB  BB  BB 7.5 BB  BB  BB 0 BB 6 BB 0 BB 23\r\n");
}

TEST_F(SavedProblems, OfferANameWithoutSignsThatFilesCannotHave) {
    EXPECT_EQ(proposedFileName("Area of a Square/Rectangle", "03-14-02"), "Area of a Square-Rectangle 03-14-02.hvx");
    EXPECT_EQ(proposedFileName("Work = Rate * Time", "03-14-02"), "Work = Rate x Time 03-14-02.hvx");
}

TEST_F(SavedProblems, OfEveryTopicGiveTheSameSolutionAgain) {
    seedDraws(9);
    for (const TopicRow& row : topicTable()) {
        for (const int level : {0, complexLevel}) {
            open(row.name);
            seedDraws(static_cast<std::uint64_t>(row.code));
            ws.ComplexExamples = level;
            answerAll();
            example_Click();
            const SavedProblem problem = problemOnDesk();
            const std::vector<std::string> before = solution();
            outside.fileDialogs.answers = {"/home/ann/b.hvx"};
            mnuSave_Click();

            open("Arithmetic");
            load(outside.files.contents.at("/home/ann/b.hvx"));
            EXPECT_EQ(ws.TopicName, row.name);
            EXPECT_EQ(problemOnDesk(), problem) << row.name;
            EXPECT_EQ(solution(), before) << row.name;
            EXPECT_FALSE(ws.InputOpen) << row.name;
        }
    }
}

TEST_F(SavedProblems, AskWithTheDialogsOfTheCommands) {
    open("Area of a Square/Rectangle");
    outside.fileDialogs.answers = {};
    mnuSave_Click();
    mnuLoad_Click();
    ASSERT_EQ(outside.fileDialogs.questions.size(), 2U);
    const FileQuestion& save = outside.fileDialogs.questions[0];
    EXPECT_EQ(save.title, "Save Problem As");
    EXPECT_EQ(save.filter, "Ordwise files (.hvx)|*.hvx");
    EXPECT_EQ(save.defaultExtension, "hvx");
    EXPECT_EQ(save.directory, "/home/ann/Saved Problems");
    EXPECT_EQ(save.proposedName, "Area of a Square-Rectangle 03-14-02.hvx");
    EXPECT_EQ(outside.fileDialogs.questions[1].title, "Load Problem");
    EXPECT_TRUE(outside.files.contents.empty());
    EXPECT_EQ(frmMain.StatusText, "");
}

TEST_F(SavedProblems, ThatCannotBeWrittenAreToldInTheStatusBar) {
    open("Arithmetic");
    outside.files.refusal = "The disk is full.";
    outside.fileDialogs.answers = {"/home/ann/b.hvx"};
    mnuSave_Click();
    EXPECT_EQ(frmMain.StatusText, "The disk is full.");
}

TEST_F(SavedProblems, ComeFromTheCommandLineWithoutADialog) {
    outside.files.contents["/home/ann/a b.hvx"] = "Ratios BB 3:4 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 78\r\n";
    ws.OpenedFilePath = "\"/home/ann/a b.hvx\"";
    mnuLoad_Click();
    EXPECT_EQ(ws.TopicName, "Ratios");
    EXPECT_FALSE(ws.InputOpen);
    EXPECT_TRUE(outside.fileDialogs.questions.empty());
    EXPECT_EQ(ws.OpenedFilePath, "\"/home/ann/a b.hvx\"");
}

constexpr const char* notOurs[] = {
    "",
    "\r\n",
    "Arithmetic",
    "Arithmetic BB 2+3 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0",
    "Arithmetic BB 2+3 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB",
    "Arithmetic BB 2+3 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 91 BB ",
    "Arithmetics BB 2+3 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 91",
    "Lengths BB 2+3 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 0",
    "Arithmetic BB 2+3 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 101",
    "Arithmetic BB 2+3 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 99999999999999999999",
    "Arithmetic BB 2+3 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 7 BB 91",
    "Arithmetic BB 2+3 BB  BB  BB  BB  BB  BB  BB -1 BB 5 BB 0 BB 91",
    "Arithmetic BB 2+q BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 91",
    "Arithmetic BB 2+3\b4 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 91",
    "Area of a Circle BB  BB  BB x BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 7",
    "Area of a Circle BB  BB  BB 12345678901 BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 7",
    "Meter Conversions BB  BB  BB  BB  BB 7 BB  BB  BB -1 BB 0 BB 0 BB 23",
    "Meter Conversions BB  BB  BB  BB  BB 7 BB  BB  BB 0 BB 7 BB 0 BB 23",
};

TEST_F(SavedProblems, LeaveTheDeskAloneWhenTheFileHoldsNone) {
    for (const char* bytes : notOurs) {
        SCOPED_TRACE(bytes);
        open("Ratios");
        ExampleChop("3:4", false);
        const SavedProblem before = problemOnDesk();
        const std::vector<std::string> solved = solution();
        load(bytes);
        EXPECT_EQ(problemOnDesk(), before);
        EXPECT_EQ(solution(), solved);
        EXPECT_EQ(frmMain.StatusText, "\"a.hvx\" holds no problem of Ordwise.");
        EXPECT_EQ(frmMain.MousePointer, ws.NormalPointer);
    }
    EXPECT_TRUE(outside.dialogs.messages.empty());
}

TEST_F(SavedProblems, OfOlderProgramsMayHoldMarksAndOtherLineEnds) {
    load("Converting Scientific To Regular Notation BB  BB #3# BB #4# BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 25\n");
    EXPECT_EQ(frmPaper.Text1.Text, "3");
    EXPECT_FALSE(ws.InputOpen);
}

// What can be opened is written again as it was read.
TEST_F(SavedProblems, SurviveAnyBytes) {
    Draws draws(20261122);
    std::vector<std::string> seeds;
    for (const TopicRow& row : topicTable()) {
        open(row.name);
        seedDraws(static_cast<std::uint64_t>(row.code));
        answerAll();
        example_Click();
        seeds.push_back(textOfProblem(problemOnDesk()));
    }
    const std::string pieces[] = {" BB ", "BB", "\r\n", "99999", "-1", "#", "\xff\xfe", std::string(1, '\0'), "^", "("};
    int opened = 0;
    for (int i = 0; i < 50000; ++i) {
        std::string bytes = seeds[static_cast<std::size_t>(draws.below(static_cast<int>(seeds.size())))];
        for (int change = draws.between(1, 3); change > 0; --change) {
            const auto at = static_cast<std::size_t>(draws.below(static_cast<int>(bytes.size()) + 1));
            switch (draws.below(4)) {
                case 0: bytes.resize(at); break;
                case 1: bytes.insert(at, pieces[draws.below(10)]); break;
                case 2: bytes.erase(at, static_cast<std::size_t>(draws.between(1, 6))); break;
                default:
                    if (at < bytes.size()) bytes[at] = static_cast<char>(draws.below(256));
                    break;
            }
        }
        try {
            load(bytes);
        } catch (const NoAnswerLeft&) {
            continue;  // which of two letters a line is to be solved for is asked until a letter is answered
        }
        outside.dialogs.messages.clear();
        ASSERT_EQ(frmMain.MousePointer, ws.NormalPointer);
        if (const auto problem = problemOfText(bytes); problem && !refusedKeyOf(*problem)) {
            ++opened;
            EXPECT_EQ(problemOfText(textOfProblem(problemOnDesk())), problemOnDesk());
        }
    }
    EXPECT_GT(opened, 50);
}

}  // namespace
}  // namespace ordwise::test
