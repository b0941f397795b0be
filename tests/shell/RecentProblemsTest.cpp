// What the frame offers to open again, what it tells of itself, and where its web commands lead.
#include "AboutLogic.hpp"
#include "Catalogue.hpp"
#include "Examples.hpp"
#include "FrameCommands.hpp"
#include "FreshProgram.hpp"
#include "PlainPlatform.hpp"
#include "RecentProblems.hpp"
#include "SavedProblems.hpp"
#include "StartStop.hpp"
#include "StartWindows.hpp"
#include "WindowRoutines.hpp"
#include "Windows.hpp"
#include "WorksheetErase.hpp"
#include "Workspace.hpp"

#include <gtest/gtest.h>

namespace ordwise::test {
namespace {

const std::string ratio = "Ratios BB 3:4 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 78\r\n";

class RecentProblems : public testing::Test {
protected:
    RecentProblems() {
        startFreshProgram();
        platform.windows = &windows_;
        platform.folders.state = "/state";
    }

    void enter(std::string_view topic, std::string_view typed) {
        TreeViewSelect(topic);
        platform.windows->show("frmPaper");
        ExampleChop(std::string(typed), false);
    }

    PlainPlatform outside;

private:
    UnseenWindows windows_;
};

TEST_F(RecentProblems, AreTheFilesOpenedAndSavedTheLatestFirst) {
    for (const char* name : {"/a.hvx", "/b.hvx", "/c.hvx"}) outside.files.contents[name] = ratio;
    openProblemFile("/a.hvx");
    openProblemFile("/b.hvx");
    openProblemFile("/a.hvx");
    outside.fileDialogs.answers = {"/d.hvx"};
    mnuSave_Click();
    EXPECT_EQ(frmMain.RecentProblems, (std::vector<std::string>{"/d.hvx", "/a.hvx", "/b.hvx"}));

    startFreshProgram();
    startUp("");
    EXPECT_EQ(frmMain.RecentProblems, (std::vector<std::string>{"/d.hvx", "/a.hvx", "/b.hvx"}));
    for (int i = 0; i < 12; ++i) rememberProblemFile("/x" + std::string(1, static_cast<char>('a' + i)), ratio);
    EXPECT_EQ(frmMain.RecentProblems.size(), mostRecentProblems);
    EXPECT_EQ(frmMain.RecentProblems.front(), "/xl");
    mnuClearRecent_Click();
    readRecentProblems();
    EXPECT_TRUE(frmMain.RecentProblems.empty());
}

TEST_F(RecentProblems, ThatAreGoneAreNamedAndLeaveTheList) {
    outside.files.contents["/a.hvx"] = ratio;
    openProblemFile("/a.hvx");
    outside.files.contents.erase("/a.hvx");
    openProblemFile("/a.hvx");
    EXPECT_EQ(frmMain.StatusText, "There is no file \"/a.hvx\".");
    EXPECT_TRUE(frmMain.RecentProblems.empty());
    EXPECT_EQ(ws.TopicName, "Ratios") << "the desk stays as it was";

    outside.files.contents["/b.hvx"] = "a shopping list";
    openProblemFile("/b.hvx");
    EXPECT_EQ(frmMain.StatusText, "\"b.hvx\" holds no problem of Ordwise.");
    EXPECT_TRUE(frmMain.RecentProblems.empty());
}

TEST_F(RecentProblems, NameTheFileOnTheDeskUntilAnotherProblemStandsThere) {
    outside.files.contents["/a.hvx"] = ratio;
    openProblemFile("/a.hvx");
    EXPECT_EQ(problemFileOnDesk(), "/a.hvx");
    eraseWorksheet();
    EXPECT_EQ(problemFileOnDesk(), "");
    ExampleChop("3:4", false);
    EXPECT_EQ(problemFileOnDesk(), "/a.hvx");
    enter("Arithmetic", "2+3");
    EXPECT_EQ(problemFileOnDesk(), "");
}

TEST_F(RecentProblems, KeepWhatWasNotSaved) {
    EXPECT_EQ(lastProblemFile(), "");
    enter("Arithmetic", "");
    keepLastProblem();
    EXPECT_EQ(lastProblemFile(), "") << "an empty sheet is nothing to keep";
    enter("Arithmetic", "2+3*4");
    mnuErase_Click();
    EXPECT_EQ(problemOnDesk().typed, "");
    ASSERT_NE(lastProblemFile(), "");
    openProblemFile(lastProblemFile());
    EXPECT_EQ(problemOnDesk().typed, "2+3*4");
    EXPECT_EQ(problemFileOnDesk(), "") << "it is still in no file of its own";
    EXPECT_TRUE(frmMain.RecentProblems.empty());

    outside.files.contents["/a.hvx"] = ratio;
    openProblemFile("/a.hvx");
    shutDown();
    openProblemFile(lastProblemFile());
    EXPECT_EQ(problemOnDesk().typed, "2+3*4") << "a saved problem does not take its place";
    mnuClearRecent_Click();
    EXPECT_EQ(lastProblemFile(), "");
}

TEST_F(RecentProblems, KeepWhatWasTypedBeforeTheExamples) {
    enter("Ratios", "3:4");
    for (int i = 0; i < 3; ++i) mnuExample_Click();
    EXPECT_EQ(outside.files.contents["/state/last-problem.hvx"], ratio);
}

TEST_F(RecentProblems, AskForAFileAfterTheOneOfTheCommandLine) {
    outside.files.contents["/a.hvx"] = ratio;
    startUp("/a.hvx");
    EXPECT_FALSE(frmLogo.Loaded) << "the splash does not lie on a problem";
    mnuLoad_Click();
    EXPECT_EQ(outside.fileDialogs.questions.size(), 1U);
}

TEST_F(RecentProblems, AreDoneWithoutWhereNothingCanBeKept) {
    platform.folders.state.clear();
    enter("Arithmetic", "2+3");
    shutDown();
    outside.files.contents["/a.hvx"] = ratio;
    openProblemFile("/a.hvx");
    EXPECT_EQ(frmMain.RecentProblems.size(), 1U) << "for as long as the program runs";
    EXPECT_EQ(lastProblemFile(), "");
    EXPECT_EQ(outside.files.contents.count("/recent-problems"), 0U);
}

TEST_F(RecentProblems, WebCommandsOpenTheirPageOrNameIt) {
    mnuAlgSol_Click();
    mnuHomePage_Click();
    EXPECT_EQ(outside.browser.addresses,
              (std::vector<std::string>{"https://www.halvern.example/ordwise/", "https://www.halvern.example/"}));
    EXPECT_EQ(frmMain.StatusText, "");
    outside.browser.works = false;
    mnuOnlineSupport_Click();
    EXPECT_EQ(frmMain.StatusText,
              "No browser could be opened. The page is https://www.halvern.example/ordwise/support/");
}

TEST_F(RecentProblems, AboutTellsOfTheSystemOrSaysThatItCannot) {
    loadWindow("frmAbout");
    EXPECT_EQ(frmAbout.lblVersion.Text.substr(0, 8), "Version ");
    StartSysInfo();
    EXPECT_EQ(outside.dialogs.messages,
              (std::vector<ShownMessage>{{"Ordwise", "System Information Is Unavailable At This Time"}}));
    outside.systemReport.facts = "Qt: 6.4.2";
    StartSysInfo();
    EXPECT_EQ(frmAbout.SystemInformation, "Qt: 6.4.2");
    EXPECT_EQ(outside.dialogs.messages.size(), 1U);
    About_Command1_Click();
    EXPECT_FALSE(frmAbout.Loaded);
}

}  // namespace
}  // namespace ordwise::test
