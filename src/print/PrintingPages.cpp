#include "PrintingPages.hpp"

#include "Fault.hpp"
#include "TextTools.hpp"
#include "Windows.hpp"
#include "basFPrint.hpp"

#include <utility>

namespace ordwise {
namespace {

constexpr double nextPageX = 12;
constexpr double nextPageY = 24;
constexpr double footPoints = 8;

}  // namespace

PageSurface::PageSurface(const PaperSize& paper) {
    FontSize = 12;
    Scale(0, 0, pageUnitsAcross, pageUnitsDown,
          {0, 0, paper.width - 2 * paper.margin, paper.height - 2 * paper.margin});
}

void PageSurface::NewPage() {
    finishPage();
    CurrentX = 0;
    CurrentY = 0;
}

std::vector<DisplayList> PageSurface::finished() {
    finishPage();
    return std::move(pages_);
}

void PageSurface::finishPage() {
    const Face face = std::exchange(FontFace, Face::Halvern);
    const double size = std::exchange(FontSize, footPoints);
    const Colour colour = std::exchange(ForeColor, black);
    CurrentX = pageUnitsAcross - TextWidth(Foot);
    CurrentY = pageUnitsDown - TextHeight();
    print(Foot);
    FontFace = face;
    FontSize = size;
    ForeColor = colour;
    pages_.push_back(std::exchange(drawn_, {}));
}

void PrintLine(std::string_view line, DrawingSurface& surface, bool inBlue) {
    MathLineRenderer renderer(surface, printerOffsets, inBlue ? blue : black, [&surface](bool) -> DrawingSurface& {
        surface.NewPage();
        surface.CurrentX = nextPageX;
        surface.CurrentY = nextPageY;
        return surface;
    });
    try {
        renderer.line(line);
    } catch (const RunTimeFault&) {
        renderer.newLine();
        platform.dialogs->messageBox("An error occurred while displaying information.", "Ordwise", MessageButtons::Ok);
    }
}

void PrintCloseLine(std::string_view line, PageSurface& page) {
    constexpr double fractionRoom = 4;
    constexpr double radicalRoom = 6;  // of a sign that reaches over a fraction
    if (contains(line, "#")) page.CurrentY += fractionRoom;
    if (contains(line, "~#")) page.CurrentY += radicalRoom;
    PrintLine(line, page, false);
}

void printHeading(PageSurface& page, const std::array<std::string, 3>& heading) {
    for (int i = 0; i < 3; ++i) page.printLine("");
    const Face face = std::exchange(page.FontFace, Face::Heading);
    for (const std::string& line : heading) page.printLine(line);
    page.FontFace = face;
}

void beginPage(PageSurface& page) {
    constexpr double firstTop = 12;
    page.NewPage();
    page.CurrentY = firstTop;
}

bool printPages(const std::string& title, const std::function<void(PageSurface&)>& layOut) {
    frmMain.StatusText.clear();
    try {
        PrintJob job{title, platform.printer->paper(), {}};
        PageSurface surface(job.paper);
        layOut(surface);
        job.pages = surface.finished();
        const std::string refusal = platform.printer->print(job);
        if (!refusal.empty()) frmMain.StatusText = refusal;
        return refusal.empty();
    } catch (const RunTimeFault&) {
        frmMain.StatusText = "Nothing was printed, because the pages could not be laid out.";
        return false;
    }
}

}  // namespace ordwise
