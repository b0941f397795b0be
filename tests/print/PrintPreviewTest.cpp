// The practice test on paper and in its preview.
#include "Drawn.hpp"
#include "PlainPlatform.hpp"
#include "PrintPreview.hpp"
#include "PrintWindows.hpp"
#include "Workspace.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace ordwise {
namespace {

class PrintPreviewTest : public testing::Test {
protected:
    PrintPreviewTest() {
        ws = Workspace{};
        ResetWindows();
    }

    static TestSheet sheetOf(int problems) {
        TestSheet sheet{{"Halvern Ordwise", "Practice Test", "11/22/2026"}, {"", "Solve the following equations:"}, ""};
        for (int i = 0; i < problems; ++i) {
            sheet.Lines.push_back(i % 2 ? "~#1/2#~ and a line of words that is so long that it breaks, for it is "
                                          "longer than the page is wide and has a power x^2^ in it"
                                        : "x+#3/4#=12^2^");
        }
        return sheet;
    }

    static void preview(std::vector<TestSheet> sheets) {
        frmPrintPreview.Sheets = std::move(sheets);
        frmPrintPreview_Load();
        frmPrintPreview_Paint();
    }

    PlainPlatform outside;
};

TEST_F(PrintPreviewTest, ShowsThePagesThatThePaperGets) {
    const PaperSize a4{793.7, 1122.5, 48};
    for (const PaperSize& paper : {PaperSize{}, a4}) {
        outside.printer.size = paper;
        preview({sheetOf(60), sheetOf(3)});
        frmPrintPreview_Command1_Click();
        const PrintJob& job = outside.printer.jobs.back();
        ASSERT_GT(job.pages.size(), 4U);
        ASSERT_EQ(static_cast<int>(job.pages.size()), ws.PreviewPageCount + 1);
        for (int i = 0; i <= ws.PreviewPageCount; ++i) {
            EXPECT_EQ(frmPrintPreview.Picture1[i].Picture.drawn(), job.pages[static_cast<std::size_t>(i)]);
            EXPECT_TRUE(frmPrintPreview.Picture1[i].Visible);
            for (const Glyphs& run : runsOf(job.pages[static_cast<std::size_t>(i)])) {
                EXPECT_LE(run.y + lineHeightOf(run.face, run.size), paper.height - 2 * paper.margin) << run.text;
            }
        }
        EXPECT_FALSE(frmPrintPreview.Picture1[ws.PreviewPageCount + 1].Visible);
    }
}

TEST_F(PrintPreviewTest, ATestOfOneProblemIsOnePage) {
    TestSheet sheet = sheetOf(0);
    sheet.Lines.emplace_back("1) x+3=12");
    preview({sheet});
    const std::vector<Glyphs> runs = runsOf(frmPrintPreview.Picture1[0].Picture.drawn());
    ASSERT_EQ(runs.size(), 5U) << "the heading and two lines";
    EXPECT_EQ(runs[1].text, "Practice Test");
    EXPECT_EQ(runs[4].text, "1) x+3=12");
    EXPECT_EQ(frmPrintPreview.Label3.Text, "1");
    EXPECT_FALSE(frmPrintPreview.Command4.Enabled);
    EXPECT_FALSE(frmPrintPreview.Command5.Enabled);
    frmPrintPreview_Command5_Click();
    frmPrintPreview_Command4_Click();
    EXPECT_EQ(ws.PreviewPage, 0);
}

TEST_F(PrintPreviewTest, ASectionKeepsItsFirstProblemAndAKeyIsClose) {
    TestSheet sheet = sheetOf(0);
    for (int i = 0; i < 40; ++i) {
        sheet.Lines.emplace_back("p");
        if (i % 5 == 4) sheet.Lines.insert(sheet.Lines.end(), {"", "Section", "p"});
    }
    preview({sheet});
    const int spaced = ws.PreviewPageCount;
    int sections = 0;
    for (int i = 0; i <= spaced; ++i) {
        const std::vector<Glyphs> runs = runsOf(frmPrintPreview.Picture1[i].Picture.drawn());
        EXPECT_NE(runs.back().text, "Section") << "page " << i;
        sections += static_cast<int>(
            std::count_if(runs.begin(), runs.end(), [](const Glyphs& run) { return run.text == "Section"; }));
    }
    EXPECT_EQ(sections, 8);
    sheet.Close = true;
    preview({sheet});
    EXPECT_LT(ws.PreviewPageCount, spaced);
}

TEST_F(PrintPreviewTest, TurnsItsPagesAndStopsAtBothEnds) {
    preview({sheetOf(30)});
    const int last = ws.PreviewPageCount;
    ASSERT_GE(last, 2);
    EXPECT_EQ(frmPrintPreview.Label3.Text, std::to_string(last + 1));
    for (int i = 0; i < last + 3; ++i) frmPrintPreview_Command5_Click();
    EXPECT_EQ(ws.PreviewPage, last);
    EXPECT_EQ(frmPrintPreview.FrontPage, last);
    EXPECT_EQ(frmPrintPreview.Label4.Text, std::to_string(last + 1));
    EXPECT_FALSE(frmPrintPreview.Command5.Enabled);
    frmPrintPreview_Command4_Click();
    EXPECT_EQ(frmPrintPreview.FrontPage, last - 1);
    frmPrintPreview_Unload();
    EXPECT_EQ(ws.PreviewPage, 0);
    EXPECT_EQ(ws.PreviewPageCount, 0);
}

TEST_F(PrintPreviewTest, EverySheetBeginsAPageAndEveryPageHasTheFootOfItsSheet) {
    TestSheet test = sheetOf(20);
    TestSheet answers = sheetOf(1);
    test.Foot = "Seed 4711";
    answers.Heading[1] = "Answers";
    preview({test, answers});
    ASSERT_GE(ws.PreviewPageCount, 2);
    for (int i = 0; i <= ws.PreviewPageCount; ++i) {
        const std::vector<Glyphs> runs = runsOf(frmPrintPreview.Picture1[i].Picture.drawn());
        EXPECT_EQ(runs.back().text == "Seed 4711", i < ws.PreviewPageCount) << i;
        EXPECT_EQ(runs.at(1).text == "Answers", i == ws.PreviewPageCount) << i;
    }
}

TEST_F(PrintPreviewTest, WhatHasNoRoomInThePreviewIsToldOnceAndPrinted) {
    preview({sheetOf(300)});
    EXPECT_EQ(ws.PreviewPageCount, PrintPreviewWindow::lastPage);
    ASSERT_EQ(outside.dialogs.messages.size(), 1U);
    EXPECT_EQ(outside.dialogs.messages[0].text, "An error occurred while displaying information.");
    frmPrintPreview_Command1_Click();
    EXPECT_GT(outside.printer.jobs.back().pages.size(), 21U);
}

TEST_F(PrintPreviewTest, APrinterThatRefusesLeavesThePreviewOpen) {
    preview({sheetOf(2)});
    outside.printer.refusal = "There is no printer.";
    frmPrintPreview_Command1_Click();
    EXPECT_EQ(frmMain.StatusText, "There is no printer.");
    EXPECT_TRUE(frmPrintPreview.Loaded);
    EXPECT_TRUE(outside.windows.requests.empty());
    frmPrintPreview_Command2_Click();
    EXPECT_EQ(outside.windows.requests, std::vector<std::string>{"-frmPrintPreview"});
}

}  // namespace
}  // namespace ordwise
