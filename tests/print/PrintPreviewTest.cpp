// The practice test on paper and in its preview.
#include "Drawn.hpp"
#include "HalvernShapes.hpp"
#include "PlainPlatform.hpp"
#include "PracticeTest.hpp"
#include "PracticeTestTopics.hpp"
#include "PrintPreview.hpp"
#include "PrintWindows.hpp"
#include "PrintedPages.hpp"
#include "RandomDraws.hpp"
#include "Sanitized.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace ordwise {
namespace {

using Kind = PlannedLine::Kind;

class PrintPreviewTest : public testing::Test {
protected:
    PrintPreviewTest() {
        ws = Workspace{};
        ResetWindows();
    }

    static PrintSheet sheetOf(int problems) {
        PrintSheet sheet;
        sheet.Heading = {"Halvern Ordwise", "Practice Test", "11/22/2026"};
        sheet.Lines = {"", "Solve the following equations:"};
        for (int i = 1; i <= problems; ++i) sheet.Lines.push_back(std::to_string(i) + ") x+#3/4#=12^2^");
        return sheet;
    }

    static void preview(std::vector<PrintSheet> sheets) {
        frmPrintPreview.Sheets = std::move(sheets);
        frmPrintPreview_Load();
        frmPrintPreview_Paint();
    }

    static std::vector<std::string> textsOf(const PagePlan& page, Kind kind) {
        std::vector<std::string> texts;
        for (const PlannedLine& line : page) {
            if (line.What == kind && !line.Continued) texts.push_back(line.Whole.empty() ? line.Text : line.Whole);
        }
        return texts;
    }

    PlainPlatform outside;
};

// ---- every test that can be outlined

// The number before ") ", 0 for a line without one.
int numberOf(const std::string& line) {
    const std::size_t end = line.find(") ");
    const bool numbered = end != std::string::npos && line.find_first_not_of("0123456789") == end;
    return numbered ? std::stoi(line) : 0;
}

TestPlan drawnPlan() {
    TestPlan plan;
    plan.heading = {"School",
                    drawBelow(3) == 0 ? std::string(40, 'M') +
                                            " a heading far longer than the paper is wide, "
                                            "of words and of more words still"
                                      : "Test",
                    "11/22/2026"};
    const auto topics = testTopicTable();
    for (int i = drawBelow(mostSections) + 1; i > 0; --i) {
        const auto topic = topics[static_cast<std::size_t>(drawBelow(static_cast<int>(topics.size())))].topic;
        plan.sections.push_back({std::string(topic), drawBelow(6) + 1, drawBelow(2) == 1});
    }
    plan.key = static_cast<AnswerKey>(drawBelow(3));
    plan.versions = drawBelow(2) + 1;
    plan.seed = static_cast<std::uint64_t>(drawBelow(100000));
    plan.nameLine = drawBelow(2) == 1;
    plan.space = std::vector{0, 2, 5, 10}[static_cast<std::size_t>(drawBelow(4))];
    plan.columns = drawBelow(2) + 1;
    return plan;
}

void expectWithinBorders(const PrintedPage& page, const PaperSize& paper) {
    const double bottom = paper.height - 2 * paper.margin;
    for (const Glyphs& run : runsOf(page.drawing)) {
        // Of a bar or a radical sign, the room of a letter says nothing: its base line does.
        const bool sign = run.text.find_first_not_of("_~&") == std::string::npos;
        if (sign) {
            EXPECT_TRUE(baselineOf(run) > 0 && baselineOf(run) <= bottom) << run.text;
            continue;
        }
        EXPECT_TRUE(run.x >= -1e-6 && run.y >= 0 && run.y + lineHeightOf(run.face, run.size) <= bottom + 1e-6)
            << run.text;
        EXPECT_LE(run.x + textWidth(run.face, run.text, run.size), paper.width - 2 * paper.margin + 1) << run.text;
    }
}

// A heading stands above its first problem, and of an answer with its steps at least two lines stand
// on each page.
void expectNothingTorn(const std::vector<std::vector<std::string>>& pages, bool isTest) {
    std::vector<std::map<int, int>> lines(pages.size());
    std::map<int, int> all;
    int owner = 0;
    for (std::size_t page = 0; page < pages.size(); ++page) {
        for (const std::string& line : pages[page]) {
            owner = std::max(owner, numberOf(line));
            ++lines[page][owner];
            ++all[owner];
        }
        EXPECT_TRUE(!isTest || pages[page].empty() || numberOf(pages[page].back()) > 0) << pages[page].back();
    }
    for (const std::map<int, int>& page : lines) {
        for (const auto& [number, count] : page)
            EXPECT_TRUE(isTest || count == all[number] || count >= 2) << "problem " << number;
    }
}

TEST_F(PrintPreviewTest, NothingIsLostTornOrOutsideThePaper) {
    const PaperSize papers[] = {PaperSize{}, {793.7, 1122.5, 48}, {559.4, 793.7, 48}};
    seedDraws(16);
    std::vector<TestPlan> plans(200);
    for (TestPlan& plan : plans) plan = drawnPlan();
    for (int round = 0; round < test::rounds(200); ++round) {
        const TestPlan& plan = plans[static_cast<std::size_t>(round)];
        SCOPED_TRACE(round);
        const PaperSize& paper = papers[round % 3];
        for (const PrintSheet& sheet : sheetsOf(plan, makeTests(plan))) {
            const std::vector<PagePlan> pages = planPages({sheet}, paper);
            std::vector<std::vector<std::string>> printed;
            std::vector<std::string> all;
            for (std::size_t i = 0; i < pages.size(); ++i) {
                expectWithinBorders(drawPage(pages[i], paper), paper);
                printed.push_back(textsOf(pages[i], Kind::Math));
                all.insert(all.end(), printed.back().begin(), printed.back().end());
                const std::vector<std::string> foot = textsOf(pages[i], Kind::Foot);
                ASSERT_EQ(foot.size(), 3U);
                EXPECT_EQ(foot[1], "Page " + std::to_string(i + 1) + " of " + std::to_string(pages.size()));
                EXPECT_EQ(contains(foot[0], "Answer Key"), sheet.What == PrintSheet::Kind::Answers);
                EXPECT_EQ(contains(foot[0], "Version " + sheet.Version), !sheet.Version.empty());
                EXPECT_EQ(foot[2], "Seed " + sheet.Seed);
            }
            std::vector<std::string> wanted = sheet.Lines;
            std::erase(wanted, "");
            EXPECT_EQ(all, wanted) << "every problem and every answer once, in order";
            expectNothingTorn(printed, sheet.What == PrintSheet::Kind::Test);
        }
    }
    EXPECT_TRUE(outside.dialogs.messages.empty());
}

// ---- the window

TEST_F(PrintPreviewTest, ShowsAllPagesThatThePaperGetsAndKeepsOneOfThem) {
    preview({sheetOf(300), sheetOf(3)});
    frmPrintPreview_Command1_Click();
    const PrintJob& job = outside.printer.jobs.back();
    ASSERT_GT(job.pages.size(), 21U);
    ASSERT_EQ(static_cast<int>(job.pages.size()), ws.PreviewPageCount + 1);
    for (int i = 0; i <= ws.PreviewPageCount; ++i) {
        showPreviewPage(i);
        EXPECT_EQ(frmPrintPreview.Picture1.drawn(), job.pages[static_cast<std::size_t>(i)].drawing);
    }
    EXPECT_TRUE(outside.dialogs.messages.empty());
    EXPECT_EQ(runsOf(job.pages.back().drawing).at(1).text, "Practice Test") << "the second sheet begins a page";
}

TEST_F(PrintPreviewTest, TurnsItsPagesAndStopsAtBothEnds) {
    preview({sheetOf(30)});
    const int last = ws.PreviewPageCount;
    ASSERT_GE(last, 2);
    EXPECT_EQ(frmPrintPreview.Label3.Text, std::to_string(last + 1));
    for (int i = 0; i < last + 3; ++i) frmPrintPreview_Command5_Click();
    EXPECT_EQ(ws.PreviewPage, last);
    EXPECT_EQ(frmPrintPreview.Label4.Text, std::to_string(last + 1));
    EXPECT_FALSE(frmPrintPreview.Command5.Enabled);
    frmPrintPreview_Command4_Click();
    EXPECT_EQ(frmPrintPreview.FrontPage, last - 1);
    preview({sheetOf(1)});
    EXPECT_FALSE(frmPrintPreview.Command4.Enabled);
    EXPECT_FALSE(frmPrintPreview.Command5.Enabled);
    frmPrintPreview_Command2_Click();
    EXPECT_EQ(outside.windows.requests, std::vector<std::string>{"-frmPrintPreview"});
    frmPrintPreview_Unload();
    EXPECT_EQ(ws.PreviewPageCount, 0);
}

TEST_F(PrintPreviewTest, WhatBecameOfAJobIsToldUntilTheNextOne) {
    preview({sheetOf(30)});
    outside.printer.refusal = "There is no printer.";
    frmPrintPreview_Command1_Click();
    frmMain.StatusText.clear();
    frmPrintPreview_Command5_Click();
    EXPECT_EQ(frmPrintPreview.Note, "There is no printer.");
    EXPECT_TRUE(frmPrintPreview.Loaded);
    outside.printer.refusal.clear();
    frmPrintPreview_Command1_Click();
    EXPECT_EQ(frmPrintPreview.Note, "");
}

TEST_F(PrintPreviewTest, ShortProblemsStandSideBySideAndRoomToWorkGoesWithThem) {
    PrintSheet sheet = sheetOf(5);
    const std::size_t narrow = planPages({sheet}, PaperSize{}).front().size();
    sheet.Columns = 2;
    const PagePlan page = planPages({sheet}, PaperSize{}).front();
    EXPECT_EQ(page.size(), narrow);
    std::map<double, int> columns;
    for (const PlannedLine& line : page) columns[line.X] += line.What == Kind::Math && numberOf(line.Text) > 0 ? 1 : 0;
    EXPECT_EQ(columns[0], 3);
    EXPECT_EQ(columns[400], 2);
    sheet.Lines.push_back("6) " + std::string(50, 'x'));
    const PagePlan single = planPages({sheet}, PaperSize{}).front();
    for (const PlannedLine& line : single) {
        EXPECT_TRUE(line.What != Kind::Math || line.X == 0) << "one of them is long";
    }
    sheet = sheetOf(9);
    sheet.Space = 10;
    for (const PagePlan& spaced : planPages({sheet}, PaperSize{}))
        EXPECT_LE(textsOf(spaced, Kind::Math).size(), 3U) << "two problems with their room, and a heading";
}

TEST_F(PrintPreviewTest, TheTextOfAPageIsThatOfItsLines) {
    PrintSheet sheet = sheetOf(0);
    sheet.Lines = {"", "Words", "1) #3/4#+x^2^", "2) 3y+5", "3) ~#1/2#~-`"};
    const PrintedPage page = drawPage(planPages({sheet}, PaperSize{}).front(), PaperSize{});
    ASSERT_EQ(page.texts.size(), 2U) << "of what does not read as it is drawn";
    EXPECT_EQ(page.texts[0].text, "1) 3/4+x^2");
    EXPECT_EQ(page.texts[1].text, "3) √(1/2)-π");
    EXPECT_EQ(runsOf({page.drawing.begin() + static_cast<std::ptrdiff_t>(page.texts[0].first),
                      page.drawing.begin() + static_cast<std::ptrdiff_t>(page.texts[0].last)})
                  .front()
                  .text,
              "1)");
}

}  // namespace
}  // namespace ordwise
