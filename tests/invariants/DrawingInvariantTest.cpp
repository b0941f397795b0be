// Whatever is solved, its lines and notes are drawn whole and nothing is drawn over anything else.
#include "Catalogue.hpp"
#include "ExplainWindow.hpp"
#include "ExplanationWindow.hpp"
#include "FreshProgram.hpp"
#include "HalvernShapes.hpp"
#include "PlainPlatform.hpp"
#include "PrintedLines.hpp"
#include "Sanitized.hpp"
#include "Solving.hpp"
#include "Workspace.hpp"
#include "basFPrint.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

namespace ordwise::test {
namespace {

struct Ink {
    std::string character;
    double left = 1e9;
    double top = 1e9;
    double right = -1e9;
    double bottom = -1e9;
};

// Of a letter a little less than its box, so that letters may stand close.
Ink inkOf(const Glyphs& run, const PlacedGlyph& glyph) {
    const double em = emOf(run.face, run.size);
    const double base = baselineOf(run);
    Ink ink{glyph.character};
    if (glyph.shape == nullptr) {
        const bool descends = std::string_view("gjpqy,;()Q").find(glyph.character) != std::string_view::npos;
        const double width = textWidth(run.face, glyph.character, run.size);
        ink.left = glyph.x + 0.1 * width;
        ink.right = glyph.x + 0.9 * width;
        ink.top = base - 0.66 * em;
        ink.bottom = base + (descends ? 0.2 : 0) * em;
    } else {
        for (const auto& contour : *glyph.shape) {
            for (const ShapePoint& point : contour) {
                ink.left = std::min(ink.left, glyph.x + point.x * glyph.stretch * em / 1000);
                ink.right = std::max(ink.right, glyph.x + point.x * glyph.stretch * em / 1000);
                ink.top = std::min(ink.top, base + point.y * em / 1000);
                ink.bottom = std::max(ink.bottom, base + point.y * em / 1000);
            }
        }
    }
    return ink;
}

std::vector<Ink> inkOf(const DisplayList& list) {
    std::vector<Ink> all;
    for (const DrawOperation& operation : list) {
        const auto* run = std::get_if<Glyphs>(&operation);
        if (run == nullptr) continue;
        for (const PlacedGlyph& glyph : placedGlyphs(*run)) all.push_back(inkOf(*run, glyph));
    }
    return all;
}

// The sign of a radical embraces what stands in it.
bool embraces(const Ink& ink) {
    return ink.character == "~" || ink.character == "&";
}

std::string overlap(const std::vector<Ink>& all) {
    for (std::size_t i = 0; i < all.size(); ++i) {
        for (std::size_t k = i + 1; k < all.size(); ++k) {
            const Ink& a = all[i];
            const Ink& b = all[k];
            if (embraces(a) || embraces(b)) continue;
            if (a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom)
                return a.character + " and " + b.character;
        }
    }
    return "";
}

std::string outside(const std::vector<Ink>& all) {
    constexpr double headAndFrame = 40;  // of the window, which its height includes
    for (const Ink& ink : all) {
        const bool inside = ink.left >= 0 && ink.right <= frmExplain.Width && ink.top >= -2 &&
                            ink.bottom <= frmExplain.Height - headAndFrame;
        if (!inside) return ink.character;
    }
    return "";
}

class DrawingInvariant : public testing::Test {
protected:
    DrawingInvariant() { startFreshProgram(); }

    static void expectWhole(const std::string& note) {
        ws.ShownStep = 2;
        ws.StepNotes[2] = note;
        LoadExplanation();
        ShowExplanation();
        const std::vector<Ink> ink = inkOf(frmExplain.drawn());
        EXPECT_EQ(outside(ink), "") << note;
        EXPECT_EQ(overlap(ink), "") << note;
        expectClearOnPaper(note, PlannedLine::Kind::Note);
    }

    static void expectClear(const std::string& line) {
        Sheet& sheet = frmPaper.Paper[0];
        ws.CurrentSheet = 0;
        sheet.cls();
        PrintMathLine(line, false);
        EXPECT_EQ(overlap(inkOf(sheet.drawn())), "") << line;
        expectClearOnPaper(line, PlannedLine::Kind::Math);
    }

    static void expectClearOnPaper(const std::string& markup, PlannedLine::Kind kind) {
        const PaperSize paper;
        for (const PlannedLine& row : rowsOf({kind, markup, 12, 60}, paper)) {
            DrawingSurface page = pageSurface(paper);
            drawLine(row, page);
            EXPECT_EQ(overlap(inkOf(page.drawn())), "") << "printed: " << row.Text;
        }
    }

    PlainPlatform world;
};

TEST_F(DrawingInvariant, EveryHintNoteAndLineIsDrawnWholeAndClear) {
    constexpr int examplesEach = rounds(24);
    for (const std::string& topic : allTopics()) {
        TreeViewSelect(topic);
        const std::string hint = ws.HintText;
        std::vector<Step> steps;
        for (int i = 0; i < examplesEach; ++i) {
            Problem problem{topic, ""};
            for (Step& step : solveExample(problem, i % 2 == 0, i).steps) steps.push_back(std::move(step));
        }
        startFreshProgram();
        expectWhole(hint);
        for (const Step& step : steps) {
            if (!step.note.empty()) expectWhole(step.note);
            expectClear(step.line);
        }
        EXPECT_TRUE(world.dialogs.messages.empty()) << topic;
    }
}

}  // namespace
}  // namespace ordwise::test
