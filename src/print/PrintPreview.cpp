#include "PrintPreview.hpp"

#include "NumberText.hpp"
#include "Platform.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <algorithm>
#include <string>

namespace ordwise {
namespace {

void turnTo(int page) {
    ws.PreviewPage = page;
    frmPrintPreview.FrontPage = page;
    frmPrintPreview.Label4.Text = textOf(page + 1);
    frmPrintPreview.Command4.Enabled = page > 0;
    frmPrintPreview.Command5.Enabled = page < ws.PreviewPageCount;
}

// Pages beyond the last surface of the window cannot be shown.
void showPages(const std::vector<DisplayList>& pages) {
    constexpr int room = PrintPreviewWindow::lastPage + 1;
    const int all = static_cast<int>(pages.size());
    const int count = std::min(all, room);
    for (int i = 0; i < room; ++i) {
        PrintPreviewWindow::Page& page = frmPrintPreview.Picture1[i];
        page = PrintPreviewWindow::Page{};
        if (i >= count) continue;
        page.Picture.place(pages[static_cast<std::size_t>(i)], 0, 0);
        page.Visible = true;
    }
    ws.PreviewPageCount = count - 1;
    if (all <= room) return;
    platform.dialogs->messageBox("An error occurred while displaying information.", "Ordwise", MessageButtons::Ok);
    frmMain.StatusText =
        "The preview has room for " + textOf(room) + " of the " + textOf(all) + " pages.  All of them are printed.";
}

void layOutPreview() {
    frmPrintPreview.Paper = platform.printer->paper();
    PageSurface surface(frmPrintPreview.Paper);
    layOutSheets(surface, frmPrintPreview.Sheets);
    showPages(surface.finished());
}

// A section begins with a blank line, which its heading and its first problem follow.
bool beginsSection(const std::vector<std::string>& lines, std::size_t at) {
    return lines[at].empty() && at + 2 < lines.size() && (at == 0 || !lines[at - 1].empty());
}

// A heading at the foot of a page would be one of nothing.
bool hasRoomForSection(const PageSurface& page) {
    constexpr double lastBase = 560;
    constexpr double gap = 12;  // above each line
    const double spacedLine = 2 * (gap + page.TextHeight());
    return page.CurrentY + 2 * spacedLine + gap <= lastBase;
}

void layOutSheet(PageSurface& page, const TestSheet& sheet) {
    printHeading(page, sheet.Heading);
    for (std::size_t i = 0; i < sheet.Lines.size(); ++i) {
        if (sheet.Close) {
            PrintCloseLine(sheet.Lines[i], page);
            continue;
        }
        if (beginsSection(sheet.Lines, i) && !hasRoomForSection(page)) {
            beginPage(page);  // without the blank line above the section
            continue;
        }
        PrintLine(sheet.Lines[i], page, false);
        PrintLine("", page, false);
    }
}

}  // namespace

void layOutSheets(PageSurface& page, const std::vector<TestSheet>& sheets) {
    for (const TestSheet& sheet : sheets) {
        if (&sheet != &sheets.front()) page.NewPage();
        page.Foot = sheet.Foot;
        layOutSheet(page, sheet);
    }
}

bool printSheets(const std::vector<TestSheet>& sheets) {
    return printPages("Practice Test", [&sheets](PageSurface& page) { layOutSheets(page, sheets); });
}

void frmPrintPreview_Load() {
    std::vector<TestSheet> sheets = std::move(frmPrintPreview.Sheets);
    frmPrintPreview = PrintPreviewWindow{};
    frmPrintPreview.Sheets = std::move(sheets);
    frmPrintPreview.Loaded = true;
    frmMain.StatusText.clear();
    layOutPreview();
    turnTo(0);
}

void frmPrintPreview_Unload() {
    frmPrintPreview = PrintPreviewWindow{};
    ws.PreviewPage = 0;
    ws.PreviewPageCount = 0;
}

void frmPrintPreview_Paint() {
    frmPrintPreview.Label1.Text = platform.printer->DeviceName();
    frmPrintPreview.Label3.Text = textOf(ws.PreviewPageCount + 1);
    frmPrintPreview.Label4.Text = textOf(ws.PreviewPage + 1);
}

void frmPrintPreview_Command1_Click() {
    printSheets(frmPrintPreview.Sheets);
}

void frmPrintPreview_Command2_Click() {
    platform.windows->unload("frmPrintPreview");
}

void frmPrintPreview_Command3_Click() {
    platform.printer->setup();
    if (platform.printer->paper() != frmPrintPreview.Paper) layOutPreview();
    showPreviewPage(ws.PreviewPage);
    frmPrintPreview_Paint();
}

void frmPrintPreview_Command4_Click() {
    showPreviewPage(ws.PreviewPage - 1);
}

void frmPrintPreview_Command5_Click() {
    showPreviewPage(ws.PreviewPage + 1);
}

void showPreviewPage(int page) {
    turnTo(std::clamp<int>(page, 0, ws.PreviewPageCount));
}

}  // namespace ordwise
