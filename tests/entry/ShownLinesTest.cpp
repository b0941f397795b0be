// A solution with its notes under the lines or beside them, over an example of every topic.
#include "Catalogue.hpp"
#include "Examples.hpp"
#include "KeyDesk.hpp"
#include "PlainPlatform.hpp"
#include "ShownLines.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace ordwise::test {
namespace {

std::vector<DisplayList> sheets() {
    std::vector<DisplayList> drawn;
    for (int i = 0; i <= PaperWindow::lastSheet; ++i) {
        if (frmPaper.Paper[i].Visible) drawn.push_back(frmPaper.Paper[i].drawn());
    }
    return drawn;
}

bool isCheck(const DrawOperation& operation) {
    const auto* picture = std::get_if<Picture>(&operation);
    return picture != nullptr && picture->key == "check";
}

void expectRoomForEachLine() {
    for (std::size_t i = 0; i < frmPaper.Lines.size(); ++i) {
        const ShownLine& line = frmPaper.Lines[i];
        EXPECT_LT(line.Bottom, frmPaper.Paper[0].Height + 24) << line.Line;
        if (i == 0 || !line.Written || line.Line.empty()) continue;
        const ShownLine& before = frmPaper.Lines[i - 1];
        if (before.Sheet != line.Sheet) continue;
        EXPECT_GE(line.Top + 6, before.Bottom) << line.Line << " below " << before.Note;
    }
}

void expectSlipsApart() {
    double free = 0;
    for (const NoteSlip& slip : frmPaper.Slips) {
        EXPECT_GE(slip.Top, free);
        free = slip.Top + slip.Height;
        EXPECT_EQ(frmPaper.Lines[static_cast<std::size_t>(slip.Line)].Sheet, sheetInFront());
    }
}

TEST(ShownLines, CarryTheirNotesUnderThemOrBesideThemAndComeBackAsTheyWere) {
    PlainPlatform platform;
    for (const TopicRow& topic : topicTable()) {
        SCOPED_TRACE(std::string(topic.name));
        platform.dialogs.answers.assign(20, "2");
        chooseFresh(topic.name);
        frmMain.mnuShowStep.Checked = false;
        example_Click();
        const std::vector<DisplayList> plain = sheets();
        const std::size_t lines = frmPaper.Lines.size();
        if (lines == 0) continue;

        placeNotes(true, 0, 0);
        EXPECT_EQ(frmPaper.Lines.size(), lines);
        expectRoomForEachLine();
        const DisplayList last = frmPaper.Paper[ws.CurrentSheet].drawn();
        EXPECT_EQ(std::count_if(last.begin(), last.end(), isCheck), 1);

        placeNotes(true, 1030, 400);
        EXPECT_EQ(sheets(), plain) << "beside the lines the sheets are as without";
        expectSlipsApart();
        const auto explained = std::count_if(frmPaper.Lines.begin(), frmPaper.Lines.end(), [](const ShownLine& line) {
            return line.Sheet == sheetInFront() && !line.Note.empty();
        });
        EXPECT_EQ(static_cast<long>(frmPaper.Slips.size()), explained);

        placeNotes(false, 0, 0);
        EXPECT_EQ(sheets(), plain);
        EXPECT_TRUE(frmPaper.Slips.empty());
    }
    EXPECT_TRUE(platform.dialogs.messages.empty());
}

}  // namespace
}  // namespace ordwise::test
