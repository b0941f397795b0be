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
    const int count = std::min(static_cast<int>(pages.size()), room);
    for (int i = 0; i < count; ++i) {
        PrintPreviewWindow::Page& page = frmPrintPreview.Picture1[i];
        page.Picture.place(pages[static_cast<std::size_t>(i)], 0, 0);
        page.Visible = true;
    }
    ws.PreviewPageCount = count - 1;
    if (static_cast<int>(pages.size()) > room) {
        platform.dialogs->messageBox("An error occurred while displaying information.", "Ordwise", MessageButtons::Ok);
    }
}

}  // namespace

void layOutSheets(PageSurface& page, const std::vector<TestSheet>& sheets) {
    for (const TestSheet& sheet : sheets) {
        if (&sheet != &sheets.front()) page.NewPage();
        page.Foot = sheet.Foot;
        for (int i = 0; i < 3; ++i) page.printLine("");
        for (const std::string& line : sheet.Heading) page.printLine(line);
        for (const std::string& line : sheet.Lines) {
            PrintLine(line, page, false);
            PrintLine("", page, false);
        }
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
    ws.PreviewPageCount = 0;
    PageSurface surface(platform.printer->paper());
    layOutSheets(surface, frmPrintPreview.Sheets);
    showPages(surface.finished());
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
    frmPrintPreview_Paint();
}

void frmPrintPreview_Command4_Click() {
    if (ws.PreviewPage > 0) turnTo(ws.PreviewPage - 1);
}

void frmPrintPreview_Command5_Click() {
    if (ws.PreviewPage < ws.PreviewPageCount) turnTo(ws.PreviewPage + 1);
}

}  // namespace ordwise
