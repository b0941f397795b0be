// The worksheet of the box topics: what its boxes take, when Solve is offered, what is shown where,
// and Erase.
#include "Catalogue.hpp"
#include "GuidedInput.hpp"
#include "PlainPlatform.hpp"
#include "SolveDriver.hpp"
#include "WorksheetBoxes.hpp"
#include "WorksheetErase.hpp"
#include "WorksheetLayout.hpp"
#include "Workspace.hpp"
#include "basFPrint.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace ordwise {
namespace {

class Worksheet : public testing::Test {
protected:
    PlainPlatform outside;

    Worksheet() { outside.clock.date = "11/22/2026"; }

    // A fresh program with this topic on the desk; false if the catalogue has no such topic.
    static bool open(int type) {
        for (const TopicRow& topic : topicTable()) {
            if (topic.code != type) continue;
            ws = Workspace{};
            ResetWindows();
            TreeViewSelect(topic.name);
            Form_Load();
            return true;
        }
        return false;
    }

    static bool solveEnabled() {
        EXPECT_EQ(frmMain.Toolbar1[MainWindow::buttonSolve].Enabled, frmMain.mnuSolve.Enabled);
        return frmMain.mnuSolve.Enabled;
    }

    static Control& label(int number) {
        Control* const labels[] = {&frmPaper.Label1, &frmPaper.Label2, &frmPaper.Label3,
                                   &frmPaper.Label4, &frmPaper.Label5, &frmPaper.Label8};
        return *labels[number];
    }
};

TEST_F(Worksheet, BoxesTakeNumbersOnly) {
    const struct {
        int type;
        int box;
        const char* keys;
        const char* held;  // what the box holds at the end
        bool taken;
    } cases[] = {
        {6, 1, "12.5", "12.5", true},
        {6, 1, "-.5", "-.5", true},
        {6, 1, "1234567890", "1234567890", true},
        {6, 1, "12345678901", "1234567890", false},
        {6, 1, "1.2.3", "1.2", false},
        {6, 1, "5-3", "5", false},
        {6, 1, "--3", "-", false},
        {6, 1, "1x2", "1", false},
        {6, 1, "1 2", "1", false},
        {6, 1, "#1#", "", false},
        {6, 1, "\xC3\xA9", "", false},
        {6, 1, "12\b3", "13", true},
        {6, 1, "\b\b7", "7", true},
        {6, 3, "1", "", false},  // a rectangle has no third box
        {25, 1, "2.5", "2.5", true},
        {25, 2, "-2.5", "-2", false},
        {26, 4, "1.", "1", false},
        {27, 3, "1.5", "1.5", true},
        {14, 2, "2.5", "2.5", true},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.keys);
        ASSERT_TRUE(open(each.type));
        EXPECT_EQ(typeIntoBox(each.box, each.keys), each.taken);
        EXPECT_EQ(frmPaper.box(each.box).Text, each.held);
        EXPECT_EQ(ws.ExplainOverrideText.empty(), each.taken);
    }
    EXPECT_THROW(typeIntoBox(7, "1"), RunTimeFault);
}

struct Readiness {
    std::vector<int> types;
    std::vector<int> wanted;
    std::vector<int> oneEmptyAmong;
};

const Readiness readiness[] = {
    {{11}, {1, 2, 3}, {4, 5, 6}},
    {{12, 14, 21, 22}, {}, {1, 2, 4}},
    {{2, 3, 6, 8, 9, 13}, {1, 2}, {}},
    {{5, 7, 15, 16, 17, 18}, {2}, {}},
    {{1, 4, 10, 19}, {1, 2, 3}, {}},
    {{20}, {}, {1, 2, 3, 4}},
    {{23, 24}, {4}, {}},
    {{25}, {1, 2}, {}},
    {{26, 27}, {1, 2, 3, 4}, {}},
};

TEST_F(Worksheet, SolveIsOfferedForACompleteProblemOnly) {
    std::set<int> seen;
    for (const Readiness& rule : readiness) {
        for (const int type : rule.types) {
            SCOPED_TRACE(type);
            seen.insert(type);
            ASSERT_TRUE(open(type));
            std::vector<int> boxes = rule.wanted;
            boxes.insert(boxes.end(), rule.oneEmptyAmong.begin(), rule.oneEmptyAmong.end());
            for (int box = 1; box <= 6; ++box) {
                const bool shown = std::find(boxes.begin(), boxes.end(), box) != boxes.end();
                EXPECT_EQ(frmPaper.box(box).Visible, shown) << "box " << box;
            }
            EXPECT_FALSE(solveEnabled());
            for (const int box : boxes) EXPECT_TRUE(typeIntoBox(box, "3"));
            EXPECT_EQ(solveEnabled(), rule.oneEmptyAmong.empty());
            for (const int unknown : rule.oneEmptyAmong) {
                setBoxText(unknown, "");
                EXPECT_TRUE(solveEnabled()) << "unknown " << unknown;
                for (const int other : boxes) {
                    if (other == unknown) continue;
                    setBoxText(other, "-");
                    EXPECT_FALSE(solveEnabled());
                    setBoxText(other, "");
                    EXPECT_FALSE(solveEnabled());
                    setBoxText(other, "3");
                }
                EXPECT_TRUE(solveEnabled());
                setBoxText(unknown, "3");
            }
            for (const int box : rule.wanted) {
                if (!rule.oneEmptyAmong.empty()) setBoxText(rule.oneEmptyAmong[0], "");
                for (const char* incomplete : {"", "-", "."}) {
                    setBoxText(box, incomplete);
                    EXPECT_FALSE(solveEnabled());
                }
                setBoxText(box, "3.");
                EXPECT_TRUE(solveEnabled());
            }
        }
    }
    for (const TopicRow& topic : topicTable())
        EXPECT_NE(seen.count(topic.code) == 1, isOnPaper(topic.code)) << topic.code;
}

// What stands before or behind a box is the name under which the solver gets its text: the first
// step restates "name = text" for each.
TEST_F(Worksheet, CaptionsNameTheValuesAsTheSolverDoes) {
    int captions = 0;
    for (const int type : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 15, 16, 17, 18, 19}) {
        SCOPED_TRACE(type);
        ASSERT_TRUE(open(type));
        for (int box = 1; box <= 6; ++box) {
            const bool leftOut = type == 11 ? box == 5 : type == 12 && box == 1;
            if (frmPaper.box(box).Visible && !leftOut) setBoxText(box, std::to_string(box + 10));
        }
        std::vector<std::string> expected;
        for (int i = 0; i < 6; ++i) {
            const Control& caption = label(i);
            if (!caption.Visible) continue;
            const bool before = caption.Text.back() == '=';
            for (int box = 1; box <= 6; ++box) {
                const Control& beside = frmPaper.box(box);
                const double gap = before ? beside.Left - caption.Left : caption.Left - beside.Left;
                if (!beside.Visible || beside.Text.empty() || beside.Top != caption.Top || gap <= 0 || gap > 72)
                    continue;
                const std::string name =
                    before ? caption.Text.substr(0, caption.Text.size() - 1) : caption.Text.substr(1);
                expected.push_back(name + " = " + beside.Text);
            }
        }
        EXPECT_FALSE(expected.empty());
        EXPECT_TRUE(solveEnabled()) << type;
        compute_Click();
        EXPECT_TRUE(outside.dialogs.messages.empty());
        for (const std::string& value : expected) {
            EXPECT_NE((ws.StepLines[1] + ",").find(value + ","), std::string::npos)
                << value << " is not in " << ws.StepLines[1];
            ++captions;
        }
    }
    EXPECT_EQ(captions, 37);
}

// Boxes as they are when a topic is opened; long numbers may grow over what stands behind them.
TEST_F(Worksheet, NothingOnThePictureOverlapsOrSticksOut) {
    for (const TopicRow& topic : topicTable()) {
        if (isOnPaper(topic.code)) continue;
        SCOPED_TRACE(topic.name);
        ASSERT_TRUE(open(topic.code));
        const Control& picture = frmPaper.Picture3;
        EXPECT_TRUE(picture.Visible);
        // The first line of a solution is drawn 43 below the pen.
        const bool figure = !picture.Image.empty();
        EXPECT_LE(picture.Top + picture.Height, (figure ? 335 : 243) + 43);
        EXPECT_LE(picture.Left + picture.Width, frmPaper.Paper[0].Width);

        std::vector<const Control*> shown;
        for (int box = 1; box <= 6; ++box) shown.push_back(&frmPaper.box(box));
        for (int combo = 1; combo <= 2; ++combo) shown.push_back(&frmPaper.combo(combo));
        for (int i = 0; i < 6; ++i) shown.push_back(&label(i));
        shown.erase(std::remove_if(shown.begin(), shown.end(), [](const Control* each) { return !each->Visible; }),
                    shown.end());
        for (const Control* one : shown) {
            EXPECT_GE(one->Left, 0) << one->Text;
            EXPECT_GE(one->Top, 0) << one->Text;
            EXPECT_LE(one->Left + one->Width, picture.Width) << one->Text;
            EXPECT_LE(one->Top + one->Height, picture.Height) << one->Text;
            for (const Control* other : shown) {
                if (one == other) continue;
                const bool apart = one->Left + one->Width <= other->Left || other->Left + other->Width <= one->Left ||
                                   one->Top + one->Height <= other->Top || other->Top + other->Height <= one->Top;
                EXPECT_TRUE(apart) << "'" << one->Text << "' at " << one->Left << " and '" << other->Text << "' at "
                                   << other->Left;
            }
        }
    }
}

TEST_F(Worksheet, ASolvedProblemTakesNoMoreKeys) {
    ASSERT_TRUE(open(21));
    EXPECT_TRUE(typeIntoBox(1, "12"));
    EXPECT_TRUE(typeIntoBox(2, "4"));
    compute_Click();
    EXPECT_EQ(ws.StepLines[ws.StepCount - 1], "3 = time");
    EXPECT_FALSE(solveEnabled());
    EXPECT_FALSE(Text_KeyPress(1, "5"));
    EXPECT_EQ(frmPaper.Text1.Text, "12");
    EXPECT_FALSE(solveEnabled());
}

TEST_F(Worksheet, ListsBelongToTheirTopics) {
    ASSERT_TRUE(open(23));
    EXPECT_EQ(frmPaper.Combo1.List.front(), "mm (0.001 meters)");
    EXPECT_EQ(frmPaper.Combo2.List.back(), "km (1000 meters)");
    EXPECT_TRUE(selectInCombo(1, 6));
    EXPECT_FALSE(selectInCombo(2, 7));
    EXPECT_FALSE(selectInCombo(2, -1));
    EXPECT_FALSE(selectInCombo(3, 0));
    EXPECT_TRUE(selectInCombo(2, 3));
    EXPECT_TRUE(typeIntoBox(4, "5"));
    compute_Click();
    EXPECT_EQ(ws.StepLines[ws.StepCount - 1], "5 km = 5000 m");

    ASSERT_TRUE(open(24));
    EXPECT_EQ(frmPaper.Combo1.ListIndex, 0);
    EXPECT_EQ(frmPaper.Combo1.List.size(), 7U);
    EXPECT_EQ(frmPaper.Combo2.List.back(), "kg (1000 grams)");

    ASSERT_TRUE(open(98));
    EXPECT_TRUE(frmPaper.Combo3.Visible);
    EXPECT_FALSE(frmPaper.Combo1.Visible);
    EXPECT_EQ(frmPaper.Combo3.List[3], "Rounded to the nearest whole number");
    ASSERT_TRUE(open(99));
    EXPECT_FALSE(frmPaper.Combo3.Visible);
}

TEST_F(Worksheet, OpensEmptyWithTheHintAndTheCommandsOfTheTopic) {
    const struct {
        int type;
        bool root, power, bar, times, divide, signs;
    } cases[] = {
        {21, false, false, false, false, false, false},  // its mask counts for the paper only
        {82, true, false, false, true, false, true},     // "00000100000111"
        {81, false, true, false, true, true, true},      // "00000000011111"
        {120, false, false, false, true, true, true},    // and its bars, below
        {54, false, false, false, false, false, true},   // decimals: its mask is above 1
        {99, false, false, false, false, false, false},  // digits only
        {101, false, false, false, false, false, true},  // "00000011000011"
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.type);
        ASSERT_TRUE(open(each.type));
        EXPECT_EQ(frmMain.Toolbar1[MainWindow::buttonRoot].Enabled, each.root);
        EXPECT_EQ(frmMain.mnuSquareRoot.Enabled, each.root);
        EXPECT_EQ(frmMain.Toolbar1[MainWindow::buttonPower].Enabled, each.power);
        EXPECT_EQ(frmMain.mnuExponet.Enabled, each.power);
        EXPECT_EQ(frmMain.mnuMultiplication.Enabled, each.times);
        EXPECT_EQ(frmMain.mnuDivision.Enabled, each.divide);
        EXPECT_EQ(frmMain.mnuAddition.Enabled, each.signs);
        EXPECT_EQ(frmMain.mnuSubtraction.Enabled, each.signs);
        EXPECT_EQ(frmPaper.Picture3.Visible, !isOnPaper(each.type));
        EXPECT_EQ(frmPaper.deskPencil.Visible, !isOnPaper(each.type));
        EXPECT_EQ(frmPaper.Pencil.Visible, isOnPaper(each.type));
        EXPECT_EQ(ws.StepNotes[ws.ShownStep], ws.HintText);
        EXPECT_FALSE(ws.HintText.empty());
        EXPECT_TRUE(ws.InputOpen);
        EXPECT_TRUE(frmMain.mnuErase.Enabled);
        EXPECT_FALSE(solveEnabled());
        EXPECT_EQ(frmPaper.Paper[0].Label6.Text, ws.TopicName);
        EXPECT_EQ(frmPaper.Paper[9].Label6.Text, ws.TopicName + " (Page 10)");
        EXPECT_EQ(frmPaper.Label7.Text, "11/22/2026");
    }
    ASSERT_TRUE(open(120));
    EXPECT_EQ(frmMain.mnuAbsValue.Enabled, (ws.InputMask & 512) != 0);
    EXPECT_TRUE(frmMain.mnuAbsValue.Enabled);

    Form_Unload();
    EXPECT_FALSE(frmPaper.Loaded);
    EXPECT_FALSE(frmMain.mnuErase.Enabled);
    EXPECT_FALSE(frmMain.mnuAbsValue.Enabled);
}

TEST_F(Worksheet, EraseAsksAndCancelLeavesAllAsItWas) {
    ASSERT_TRUE(open(6));
    EXPECT_TRUE(typeIntoBox(1, "1234"));
    EXPECT_TRUE(typeIntoBox(2, "2"));
    compute_Click();
    const std::string answer = ws.StepLines[ws.StepCount - 1];
    outside.dialogs.nextAnswer = MessageAnswer::Cancel;
    clear_Click();
    EXPECT_EQ(outside.dialogs.messages,
              (std::vector<ShownMessage>{{"Clear Problem", "This will erase your entire problem."}}));
    EXPECT_EQ(frmPaper.Text1.Text, "1234");
    EXPECT_EQ(ws.StepLines[ws.StepCount - 1], answer);
    EXPECT_FALSE(frmPaper.Paper[0].drawn().empty());
    EXPECT_FALSE(ws.InputOpen);
    EXPECT_TRUE(frmMain.mnuSave.Enabled);

    outside.dialogs.nextAnswer = MessageAnswer::Ok;
    clear_Click();
    EXPECT_EQ(frmPaper.Text1.Text, "");
    EXPECT_EQ(frmPaper.Text1.Width, 54);
    EXPECT_TRUE(frmPaper.Text1.Visible);
    EXPECT_EQ(ws.StepCount, 1);
    EXPECT_EQ(ws.StepLines[2], "");
    EXPECT_EQ(ws.StepNotes[ws.ShownStep], ws.HintText);
    EXPECT_TRUE(frmPaper.Paper[0].drawn().empty());
    EXPECT_TRUE(ws.InputOpen);
    EXPECT_FALSE(frmMain.mnuSave.Enabled);
    EXPECT_FALSE(frmMain.mnuPrint.Enabled);
    EXPECT_FALSE(frmMain.mnuGraph.Enabled);
    EXPECT_FALSE(solveEnabled());
    EXPECT_TRUE(typeIntoBox(1, "2"));
    EXPECT_TRUE(typeIntoBox(2, "2"));
    EXPECT_TRUE(solveEnabled());
}

TEST_F(Worksheet, EraseTakesAwayFurtherSheetsAndARedLight) {
    ASSERT_TRUE(open(101));
    Form_KeyPress("x");
    Form_KeyPress("q");
    EXPECT_EQ(frmPaper.Light.Image, "light3");
    for (int line = 0; line < 20; ++line) PrintMathLine("x=1", line == 19);
    ASSERT_GT(ws.CurrentSheet, 0);
    const double penAtStart = sheetTopY;
    eraseWorksheet();
    EXPECT_EQ(frmPaper.Light.Image, "light1");
    EXPECT_EQ(frmPaper.Light.ToolTip, "Click the red light for incorrect input details.");
    EXPECT_EQ(ws.ExplainOverrideText, "");
    EXPECT_EQ(ws.CurrentSheet, 0);
    EXPECT_EQ(ws.LineEndX, 0);
    EXPECT_EQ(ws.InputLast, 0);
    EXPECT_FALSE(frmPaper.Timer2.Enabled);
    for (int sheet = 0; sheet <= 9; ++sheet) {
        EXPECT_EQ(frmPaper.Paper[sheet].Visible, sheet == 0);
        EXPECT_FALSE(frmPaper.Paper[sheet].blinker.Visible);
        EXPECT_TRUE(frmPaper.Paper[sheet].drawn().empty());
    }
    EXPECT_EQ(frmPaper.Paper[0].CurrentY, penAtStart);
}

TEST_F(Worksheet, OnlyANewWorksheetForgetsAnOpenBar) {
    ASSERT_TRUE(open(120));
    Form_KeyPress("|");
    EXPECT_EQ(ws.BarDepth, 1);
    eraseWorksheet();
    EXPECT_EQ(ws.BarDepth, 1);
    Form_Unload();
    Form_Load();
    EXPECT_EQ(ws.BarDepth, 0);
}

}  // namespace
}  // namespace ordwise
