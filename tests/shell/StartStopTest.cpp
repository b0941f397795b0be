// Settings from the first start to the last exit, and the order of both.
#include "StartStop.hpp"

#include "FreshProgram.hpp"
#include "OptionsLogic.hpp"
#include "PlainPlatform.hpp"
#include "SettingsFile.hpp"
#include "SettingsTable.hpp"
#include "StartWindows.hpp"
#include "WindowRoutines.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <gtest/gtest.h>

namespace ordwise::test {
namespace {

constexpr const char* file = "/home/ann/.config/ordwise/settings.ini";

constexpr const char* defaults =
    "[Ordwise]\nwhichAssistant=1\nRoundVar=2\nComplexEx=0\nClickNotify=True\nExpDetail=3\nuse_fraction=True\n"
    "detail=1\nmnuPencil=True\nmnuShowStep=True\nmnuHideWiz=True\nmnuShowLight=True\n";

class StartStop : public testing::Test {
protected:
    PlainPlatform outside;
    UnseenWindows windows;

    void SetUp() override {
        platform.windows = &windows;
        platform.folders = {file, "/home/ann/Saved Problems"};
        startFreshProgram();
    }
};

TEST_F(StartStop, BeginsWithTheDefaultsAndWritesThemAtTheEnd) {
    startUp("");
    EXPECT_TRUE(frmLogo.Loaded);
    EXPECT_TRUE(frmLogo.logotime.Enabled);
    logotime_Timer();
    EXPECT_FALSE(frmLogo.Loaded);
    EXPECT_EQ(outside.files.directories.back(), "/home/ann/Saved Problems");
    shutDown();
    EXPECT_EQ(outside.files.contents.at(file), defaults);
}

TEST_F(StartStop, BringsBackWhatTheLastRunHad) {
    startUp("");
    ws.RoundPlaces = 4;
    ws.UseFractions = false;
    frmMain.mnuPencil.Checked = false;
    shutDown();
    startFreshProgram();
    startUp("");
    EXPECT_EQ(ws.RoundPlaces, 4);
    EXPECT_FALSE(frmMain.mnuPencil.Checked);
    EXPECT_TRUE(frmMain.mnuShowStep.Checked);
    EXPECT_EQ(frmMain.Toolbar1[MainWindow::buttonFracdec].Image, "fracdec2");
}

// Every line that makes no sense leaves that setting at its default.
TEST_F(StartStop, TakesFromABrokenFileWhatItCan) {
    const struct {
        const char* text;
        int places;
        bool pencil;
    } cases[] = {
        {"", 2, true},
        {"[Ordwise]\r\nRoundVar=3\r\nmnuPencil=False\r\n", 3, false},
        {"[Ordwise]\n RoundVar = 3 \nmnuPencil=0", 3, false},
        {"[Ordwise]\nRoundVar=many\nmnuPencil=perhaps\n", 2, true},
        {"[Ordwise]\nRoundVar=99999\nRoundVar\n=\n\xff\xfe\nmnuPencil=False", 2, false},
        {"RoundVar=3\n[Other]\nmnuPencil=False\n", 2, true},
        {"[Ordwise]\nRoundVar=3\n[Other]\nRoundVar=4\n", 3, true},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.text);
        outside.files.contents[file] = each.text;
        ws.RoundPlaces = 5;
        startUp("");
        EXPECT_EQ(ws.RoundPlaces, each.places);
        EXPECT_EQ(frmMain.mnuPencil.Checked, each.pencil);
    }
}

TEST_F(StartStop, GoesOnWhereNothingCanBeReadOrWritten) {
    platform.folders = {};
    startUp("");
    shutDown();
    EXPECT_NE(frmMain.StatusText, "");
    platform.folders = {file, ""};
    outside.files.refusal = "The file system is read-only.";
    shutDown();
    EXPECT_EQ(frmMain.StatusText, "The file system is read-only.");
}

TEST_F(StartStop, OpensTheProblemOfTheCommandLine) {
    outside.files.contents["/tmp/a.hvx"] = "Ratios BB 3:4 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 78\r\n";
    startUp("  \"/tmp/a.hvx\" ");
    EXPECT_EQ(ws.OpenedFilePath, "\"/tmp/a.hvx\"");
    EXPECT_EQ(ws.TopicName, "Ratios");
    EXPECT_TRUE(frmPaper.Loaded);
    startFreshProgram();
    startUp("/tmp/none.hvx");
    EXPECT_FALSE(frmPaper.Loaded);
    EXPECT_EQ(frmMain.StatusText, "There is no file \"/tmp/none.hvx\".");
}

TEST_F(StartStop, OptionsShowTheSettingsAndTakeThemOver) {
    takeSettings("[Ordwise]\nwhichAssistant=2\nRoundVar=5\nComplexEx=2\nClickNotify=False\nExpDetail=1\ndetail=3\n");
    loadWindow("frmOptions");
    EXPECT_TRUE(frmOptions.Wizard2.Checked);
    EXPECT_TRUE(frmOptions.Check3.Checked);
    EXPECT_FALSE(frmOptions.Check2.Checked);
    EXPECT_EQ(frmOptions.Combo2.ListIndex, 2);
    EXPECT_EQ(frmOptions.Combo1.ListIndex, 4);

    OptionsWizard_Click(3);
    frmOptions.Combo2.ListIndex = 1;
    frmOptions.Combo1.ListIndex = 0;
    frmOptions.Check3.Checked = false;
    Options_Command2_Click();
    EXPECT_EQ(ws.RoundPlaces, 5) << "Cancel takes nothing over";

    Options_Command1_Click();
    EXPECT_FALSE(frmOptions.Loaded);
    EXPECT_EQ(ws.AssistantKey, "wiz3");
    EXPECT_EQ(frmPaper.Wizard.Image, "wiz3");
    EXPECT_EQ(ws.ExpDetail, 2);
    EXPECT_EQ(ws.StepDetail, 2);
    EXPECT_EQ(ws.RoundPlaces, 1);
    EXPECT_EQ(ws.ComplexExamples, 0);

    startFreshProgram();
    EXPECT_FALSE(frmOptions.Wizard3.Checked) << "what was open starts afresh";
    EXPECT_EQ(frmOptions.Combo2.ListIndex, 0);
}

}  // namespace
}  // namespace ordwise::test
