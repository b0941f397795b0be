#include "PrintedPages.hpp"

#include "Fault.hpp"
#include "GraphPlot.hpp"
#include "GraphWindow.hpp"
#include "HalvernShapes.hpp"
#include "NumberText.hpp"
#include "PageBlocks.hpp"
#include "PlainForm.hpp"
#include "PrintedLines.hpp"
#include "Windows.hpp"
#include "basFPrint.hpp"

#include <algorithm>
#include <limits>
#include <string_view>

namespace ordwise {
namespace {

// In units down the page.
constexpr double aboveAnswers = 10;
constexpr double aboveSections = 22;
constexpr double aboveFoot = 12;
constexpr double aboveBorder = 1;

constexpr double cornerGap = 24;  // between the heading and what stands in the corner

using Kind = PlannedLine::Kind;

// ---- the heading

std::vector<std::string> cornerOf(const PrintSheet& sheet) {
    std::vector<std::string> corner;
    if (!sheet.Version.empty()) corner.push_back("Version " + sheet.Version);
    if (sheet.What == PrintSheet::Kind::Answers) corner.emplace_back("Answer Key");
    return corner;
}

double roomBelow(const PrintSheet& sheet, double lineHeight) {
    switch (sheet.What) {
        case PrintSheet::Kind::Test: return aboveSections;
        case PrintSheet::Kind::Answers: return aboveAnswers;
        case PrintSheet::Kind::Solution:
        case PrintSheet::Kind::Graph: break;
    }
    return lineHeight;
}

// Three lines of room, in which name and date find their place, and the heading. Returns where the
// first block may begin.
double addHeading(const PrintSheet& sheet, const PaperSize& paper, PagePlan& plan) {
    DrawingSurface page = pageSurface(paper);
    const double lineHeight = page.TextHeight();
    page.FontFace = Face::Heading;
    if (sheet.NameLine) plan.push_back({Kind::NameLine, "", 0, lineHeight / 2});
    double y = 3 * lineHeight;
    double right = pageUnitsAcross;
    double below = y;
    for (const std::string& words : cornerOf(sheet)) {
        const double width = page.TextWidth(words);
        plan.push_back({Kind::Words, words, pageUnitsAcross - width, below});
        right = std::min(right, pageUnitsAcross - width - cornerGap);
        below += lineHeight;
    }
    for (const std::string& words : sheet.Heading) {
        for (const std::string& line : wordsInLines(words, right, page)) {
            if (!line.empty()) plan.push_back({Kind::Words, line, 0, y});
            y += lineHeight;
        }
    }
    return std::max(y, below) + roomBelow(sheet, lineHeight);
}

// ---- the foot

std::string titleOf(const PrintSheet& sheet) {
    const std::array<std::string, 3>& heading = sheet.Heading;
    if (!heading[1].empty()) return heading[1];
    return heading[0].empty() ? heading[2] : heading[0];
}

// The title gives way where not everything has room.
std::string leftFoot(const PrintSheet& sheet, double width, const DrawingSurface& page) {
    std::string rest;
    for (const std::string& words : cornerOf(sheet)) rest += (rest.empty() ? "" : " - ") + words;
    std::string title = titleOf(sheet);
    const std::string between = rest.empty() || title.empty() ? "" : " - ";
    if (page.TextWidth(title + between + rest) <= width) return title + between + rest;
    const double left = width - page.TextWidth("..." + between + rest);
    title = wordsInLines(title, std::max(left, 0.0), page).front();
    return title + "..." + between + rest;
}

void addFoot(const PrintSheet& sheet, const std::string& number, const PaperSize& paper, PagePlan& plan) {
    DrawingSurface page = pageSurface(paper);
    page.FontFace = Face::Heading;
    page.FontSize = footPoints;
    const double y = pageUnitsDown - page.TextHeight() - aboveBorder;
    const double middle = (pageUnitsAcross - page.TextWidth(number)) / 2;
    const std::string left = leftFoot(sheet, middle - cornerGap, page);
    plan.push_back({Kind::Foot, left, 0, y});
    plan.push_back({Kind::Foot, number, middle, y});
    if (!sheet.Seed.empty())
        plan.push_back({Kind::Foot, "Seed " + sheet.Seed, pageUnitsAcross - page.TextWidth("Seed " + sheet.Seed), y});
}

double footTop(const PaperSize& paper) {
    DrawingSurface page = pageSurface(paper);
    page.FontSize = footPoints;
    return pageUnitsDown - aboveBorder - page.TextHeight() - aboveFoot;
}

// ---- a sheet

std::vector<FlowBlock> flowBlocks(const std::vector<PrintBlock>& blocks) {
    std::vector<FlowBlock> flow;
    flow.reserve(blocks.size());
    for (const PrintBlock& block : blocks) flow.push_back(block.flow);
    return flow;
}

void addBlock(const PrintBlock& block, const std::vector<FlowPlace>& places, std::vector<PagePlan>& pages) {
    for (std::size_t piece = 0; piece < places.size(); ++piece) {
        const FlowPlace& place = places[piece];
        if (place.page >= static_cast<int>(pages.size())) pages.resize(static_cast<std::size_t>(place.page) + 1);
        for (PlannedLine line : block.lines[piece]) {
            line.Y += place.y;
            pages[static_cast<std::size_t>(place.page)].push_back(std::move(line));
        }
    }
}

std::vector<PagePlan> planSheet(const PrintSheet& sheet, const PaperSize& paper) {
    std::vector<PagePlan> pages(1);
    const double top = addHeading(sheet, paper, pages[0]);
    const std::vector<PrintBlock> blocks = blocksOf(sheet, paper);
    const std::vector<std::vector<FlowPlace>> places = flowOf(flowBlocks(blocks), {top, 0, footTop(paper)});
    for (std::size_t i = 0; i < blocks.size(); ++i) addBlock(blocks[i], places[i], pages);
    if (sheet.What == PrintSheet::Kind::Graph) {
        const PlannedLine& last = pages.back().back();
        pages.back().push_back({Kind::Graph, "", 0, last.Y + roomOf(last, paper).down.bottom + aboveAnswers});
    }
    for (std::size_t i = 0; i < pages.size(); ++i) {
        const std::string number =
            "Page " + textOf(static_cast<int>(i) + 1) + " of " + textOf(static_cast<int>(pages.size()));
        addFoot(sheet, number, paper, pages[i]);
    }
    return pages;
}

// ---- drawing

// The window's picture drawn anew at the size of the page, so that it is as sharp as the paper.
void placeGraph(double y, const PaperSize& paper, DrawingSurface& page) {
    const double width = paper.width - 2 * paper.margin;
    const double perUnit = (paper.height - 2 * paper.margin) / pageUnitsDown;
    GraphWindow picture = frmGraph;
    picture.Width = std::min(width, (footTop(paper) - y) * perUnit);
    picture.Height = picture.Width;
    sizeGraph(picture);
    drawGraph(picture);
    page.place(picture.drawn(), (width - picture.Width) / 2, y * perUnit);
}

// A sign of ours between blanks, which readers of PDF do not see beside it. e.g. "when x = 4"
bool hasSpacedSign(std::string_view text) {
    for (std::size_t i = 1; i + 1 < text.size(); ++i) {
        const bool blanks = text[i - 1] == ' ' || text[i + 1] == ' ';
        if (blanks && shapeOf(Face::Halvern, text[i]) != nullptr) return true;
    }
    return false;
}

// The letters of a line that goes straight on are what it says.
bool readsAsDrawn(const PlannedLine& line) {
    if (line.What != Kind::Math && line.What != Kind::Note) return true;
    const bool broken = line.What == Kind::Math && (line.Continued || !line.Whole.empty());
    return line.Text.find_first_of("#^~") == std::string::npos && !broken && !hasSpacedSign(line.Text);
}

// What is copied out of it. The first row of a broken line says all of it; an explanation goes on as
// prose does.
std::string saidBy(const PlannedLine& line) {
    if (line.What == Kind::Note) return plainText(line.Text);
    return line.Continued ? "" : plainText(line.Whole.empty() ? line.Text : line.Whole);
}

struct Across {
    double left = std::numeric_limits<double>::infinity();
    double right = 0;

    void add(const DrawOperation& operation) {
        const auto* run = std::get_if<Glyphs>(&operation);
        if (run == nullptr) return;
        left = std::min(left, run->x);
        right = std::max(right, run->x + textWidth(run->face, run->text, run->size));
    }
};

void addText(const PlannedLine& line, std::size_t first, const PaperSize& paper, PrintedPage& page) {
    Across across;
    for (std::size_t i = first; i < page.drawing.size(); ++i) across.add(page.drawing[i]);
    if (across.left > across.right) return;
    const double perUnit = (paper.height - 2 * paper.margin) / pageUnitsDown;
    const double points = line.What == Kind::Note ? explanationPoints : printPoints;
    const double top = line.Y + printerOffsets.moveDown.at(points);
    page.texts.push_back(
        {saidBy(line), across.left, top * perUnit, across.right - across.left, first, page.drawing.size()});
}

PrintJob jobOf(const std::string& title, const std::vector<PrintSheet>& sheets) {
    PrintJob job{title, platform.printer->paper(), {}};
    for (const PagePlan& plan : planPages(sheets, job.paper)) job.pages.push_back(drawPage(plan, job.paper));
    return job;
}

}  // namespace

std::vector<PagePlan> planPages(const std::vector<PrintSheet>& sheets, const PaperSize& paper) {
    std::vector<PagePlan> pages;
    for (const PrintSheet& sheet : sheets) {
        for (PagePlan& page : planSheet(sheet, paper)) pages.push_back(std::move(page));
    }
    return pages;
}

PrintedPage drawPage(const PagePlan& plan, const PaperSize& paper) {
    PrintedPage page;
    for (const PlannedLine& line : plan) {
        DrawingSurface surface = pageSurface(paper);
        if (line.What == Kind::Graph) placeGraph(line.Y, paper, surface);
        drawLine(line, surface);
        const std::size_t first = page.drawing.size();
        page.drawing.insert(page.drawing.end(), surface.drawn().begin(), surface.drawn().end());
        if (!readsAsDrawn(line)) addText(line, first, paper, page);
    }
    return page;
}

bool printSheets(const std::string& title, const std::vector<PrintSheet>& sheets) {
    frmMain.StatusText.clear();
    try {
        const std::string refusal = platform.printer->print(jobOf(title, sheets));
        if (!refusal.empty()) frmMain.StatusText = refusal;
        return refusal.empty();
    } catch (const RunTimeFault&) {
        frmMain.StatusText = "Nothing was printed, because the pages could not be laid out.";
        return false;
    }
}

}  // namespace ordwise
