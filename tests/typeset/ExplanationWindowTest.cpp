#include "ExplanationWindow.hpp"

#include "ExplainWindow.hpp"
#include "PlainPlatform.hpp"
#include "Workspace.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace ordwise {
namespace {

class ExplanationWindow : public testing::Test {
protected:
    ExplanationWindow() {
        ws = Workspace{};
        ResetWindows();
        ws.ShownStep = 2;
        frmPaper.Paper[0].Left = 60;
        frmPaper.Paper[0].Top = 40;
        ws.LineEndX = 200;
        ws.LineEndY = 120;
    }

    static void explain(const std::string& note) {
        ws.StepNotes[ws.ShownStep] = note;
        LoadExplanation();
        ShowExplanation();
    }

    // The words as they stand, a line each; runs on one height belong together.
    static std::vector<std::string> lines() {
        std::vector<std::string> found;
        double y = -1;
        for (const DrawOperation& operation : frmExplain.drawn()) {
            const auto* run = std::get_if<Glyphs>(&operation);
            if (run == nullptr) continue;
            if (run->y != y) found.emplace_back();
            y = run->y;
            found.back() += run->text;
        }
        for (std::string& line : found) line.erase(line.find_last_not_of(' ') + 1);
        return found;
    }

    PlainPlatform outside;
};

TEST_F(ExplanationWindow, opens_beside_the_end_of_the_line_and_takes_the_offer_away) {
    frmPaper.clickMe.Enabled = true;
    frmPaper.Click.Visible = true;
    explain("Add.");
    EXPECT_DOUBLE_EQ(frmExplain.Left, 60 + 200 + 54);
    EXPECT_GT(frmExplain.Top, 40 + 120);
    EXPECT_FALSE(frmPaper.clickMe.Enabled);
    EXPECT_FALSE(frmPaper.Click.Visible);
    EXPECT_EQ(frmPaper.Paper[0].Order, frmPaper.FrontOrder);
}

TEST_F(ExplanationWindow, breaks_between_words_and_loses_none) {
    const std::string note =
        "Since the radius is needed and the diameter is known, divide the diameter by 2 before anything else is done.";
    explain(note);
    std::string whole;
    for (const std::string& line : lines()) {
        EXPECT_LE(textWidth(Face::Explanation, line, 12), frmExplain.Width) << line;
        if (!whole.empty()) whole += ' ';
        whole += line;
    }
    EXPECT_GT(lines().size(), 1U);
    EXPECT_EQ(whole, note);
}

TEST_F(ExplanationWindow, cuts_a_word_that_is_wider_than_the_window) {
    explain(std::string(100, 'w'));
    ASSERT_GT(lines().size(), 1U);
    std::string whole;
    for (const std::string& line : lines()) whole += line;
    EXPECT_EQ(whole, std::string(100, 'w'));
}

TEST_F(ExplanationWindow, never_breaks_inside_a_fraction) {
    explain(std::string(48, 'm').substr(0, 24) + " #amount of the base / base#");
    EXPECT_TRUE(outside.dialogs.messages.empty());
}

TEST_F(ExplanationWindow, grows_with_its_lines) {
    explain("One line.");
    const double one = frmExplain.Height;
    explain("#1/2# of it.");
    EXPECT_GT(frmExplain.Height, one) << "a fraction needs room above itself";
    explain("Many words that cannot stand on a single line of this window, so that there must be one more of them.");
    EXPECT_GT(frmExplain.Height, one + 12);
}

TEST_F(ExplanationWindow, gives_notes_at_the_highest_detail_only) {
    ws.HintText = "Enter a number.  Example: 7";
    ws.StepDetail = 2;
    explain("Add 3 to 4.");
    EXPECT_EQ(frmExplain.Spoken, "Select High step by step detail for explanations.");
    explain(ws.HintText);
    EXPECT_EQ(frmExplain.Spoken, "Enter a number. Example, 7");
    EXPECT_DOUBLE_EQ(frmExplain.Left, 60 + 70) << "the hint has its fixed place";
    EXPECT_DOUBLE_EQ(frmExplain.Top, 40 + 255);
}

TEST_F(ExplanationWindow, tells_the_reason_of_a_refusal_once_and_word_for_word) {
    ws.StepDetail = 3;
    ws.ExplainOverride = true;
    ws.ExplainOverrideText = "You can't type a '^' after a '/'.";
    explain("The note.");
    EXPECT_EQ(frmExplain.Spoken, ws.ExplainOverrideText);
    ASSERT_EQ(lines().size(), 1U);
    EXPECT_EQ(lines().front(), ws.ExplainOverrideText) << "marks in it are keys, not markup";
    ws.StepDetail = 1;
    explain("The note.");
    EXPECT_EQ(frmExplain.Spoken, "The note.");
}

TEST_F(ExplanationWindow, says_so_when_a_note_cannot_be_drawn) {
    explain("x^2");
    ASSERT_EQ(outside.dialogs.messages.size(), 1U);
    EXPECT_EQ(outside.dialogs.messages.front().text, "An error occurred while displaying information.");
}

}  // namespace
}  // namespace ordwise
