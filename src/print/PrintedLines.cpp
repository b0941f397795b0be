#include "PrintedLines.hpp"

#include "Fault.hpp"
#include "HalvernShapes.hpp"
#include "TextTools.hpp"
#include "basFPrint.hpp"

#include <algorithm>
#include <limits>
#include <utility>

namespace ordwise {
namespace {

constexpr double nameLineGap = 8;  // between a word and its line, in units across

// Whoever prints has chosen page and rows before.
const SurfaceOffsets& wholeLineOffsets() {
    static const SurfaceOffsets offsets = [] {
        SurfaceOffsets whole = printerOffsets;
        whole.pageFull = std::numeric_limits<double>::infinity();
        whole.breakAt = whole.pageFull;
        return whole;
    }();
    return offsets;
}

// A word and a line to write on, three times over the width of the page.
void drawNameLine(DrawingSurface& page) {
    const double y = page.CurrentY + page.TextHeight();
    constexpr std::pair<const char*, double> fields[] = {{"Name", 400}, {"Date", 600}, {"Class", pageUnitsAcross}};
    for (const auto& [word, end] : fields) {
        page.print(word);
        page.line(page.CurrentX + nameLineGap, y, end - nameLineGap, y);
        page.CurrentX = end + nameLineGap;
    }
}

void drawWords(std::string_view text, DrawingSurface& page, double points) {
    page.FontFace = Face::Heading;
    page.FontSize = points;
    page.print(text);
}

// What has been inked, in units of the drawing.
struct Inked {
    double top = std::numeric_limits<double>::infinity();
    double bottom = -std::numeric_limits<double>::infinity();
    double right = 0;

    void add(double y1, double y2, double x) {
        top = std::min(top, y1);
        bottom = std::max(bottom, y2);
        right = std::max(right, x);
    }

    void operator()(const Glyphs& run) {
        constexpr double letterTop = 0.74;
        constexpr double letterFoot = 0.22;
        const double em = emOf(run.face, run.size);
        const double base = baselineOf(run);
        for (const PlacedGlyph& glyph : placedGlyphs(run)) {
            if (glyph.shape == nullptr) {
                add(base - letterTop * em, base + letterFoot * em, 0);
                continue;
            }
            for (const auto& contour : *glyph.shape) {
                for (const ShapePoint& point : contour) {
                    const double y = base + point.y * em / 1000;
                    add(y, y, 0);
                }
            }
        }
        right = std::max(right, run.x + textWidth(run.face, run.text, run.size));
    }
    void operator()(const Stroke& stroke) {
        add(std::min(stroke.y1, stroke.y2), std::max(stroke.y1, stroke.y2), std::max(stroke.x1, stroke.x2));
    }
    void operator()(const Circle& circle) {
        add(circle.y - circle.radius, circle.y + circle.radius, circle.x + circle.radius);
    }
    void operator()(const Picture& picture) { add(picture.y, picture.y + picture.height, picture.x + picture.width); }
};

// As many bytes of a text as have room, but at least one character.
std::size_t bytesWithin(const std::string& text, double width, const DrawingSurface& page) {
    std::size_t taken = 0;
    for (const std::string& character : characters(text)) {
        if (taken > 0 && page.TextWidth(text.substr(0, taken) + character) > width) break;
        taken += character.size();
    }
    return taken;
}

}  // namespace

DrawingSurface pageSurface(const PaperSize& paper) {
    DrawingSurface page;
    page.FontSize = printPoints;
    page.Scale(0, 0, pageUnitsAcross, pageUnitsDown,
               {0, 0, paper.width - 2 * paper.margin, paper.height - 2 * paper.margin});
    return page;
}

bool PrintLine(std::string_view line, DrawingSurface& page, bool inBlue) {
    MathLineRenderer renderer(page, wholeLineOffsets(), inBlue ? blue : black,
                              [&page](bool) -> DrawingSurface& { return page; });
    try {
        renderer.line(line);
        return true;
    } catch (const RunTimeFault&) {
        renderer.newLine();
        return false;
    }
}

bool drawLine(const PlannedLine& line, DrawingSurface& page) {
    page.CurrentX = line.X;
    page.CurrentY = line.Y;
    page.ForeColor = black;
    page.FontFace = line.What == PlannedLine::Kind::Note ? Face::Note : Face::Halvern;
    page.FontSize = line.What == PlannedLine::Kind::Note ? explanationPoints : printPoints;
    switch (line.What) {
        case PlannedLine::Kind::Math:
        case PlannedLine::Kind::Note: return PrintLine(line.Text, page, line.What == PlannedLine::Kind::Note);
        case PlannedLine::Kind::Words: drawWords(line.Text, page, printPoints); break;
        case PlannedLine::Kind::Foot: drawWords(line.Text, page, footPoints); break;
        case PlannedLine::Kind::NameLine:
            page.FontFace = Face::Heading;
            drawNameLine(page);
            break;
        case PlannedLine::Kind::Graph: break;  // laid over the finished page
    }
    return true;
}

LineRoom roomOf(const PlannedLine& line, const PaperSize& paper) {
    DrawingSurface page = pageSurface(paper);
    const bool drawable = drawLine(line, page);
    Inked inked;
    for (const DrawOperation& operation : page.drawn()) std::visit(inked, operation);
    const double across = (paper.width - 2 * paper.margin) / pageUnitsAcross;
    const double down = (paper.height - 2 * paper.margin) / pageUnitsDown;
    const double pen = page.CurrentY - line.Y;
    const bool empty = inked.top > inked.bottom;
    return {{empty ? 0 : inked.top / down - line.Y, empty ? pen : inked.bottom / down - line.Y, pen},
            inked.right / across,
            drawable};
}

std::vector<std::string> wordsInLines(const std::string& text, double width, const DrawingSurface& page) {
    std::vector<std::string> lines;
    std::string rest = text;
    while (page.TextWidth(rest) > width) {
        std::size_t end = bytesWithin(rest, width, page);
        const std::size_t blank = rest.rfind(' ', end);
        const bool betweenWords = blank != std::string::npos && blank > 0;
        if (betweenWords) end = blank;
        lines.push_back(rest.substr(0, end));
        rest.erase(0, betweenWords ? end + 1 : end);
    }
    lines.push_back(rest);
    return lines;
}

}  // namespace ordwise
