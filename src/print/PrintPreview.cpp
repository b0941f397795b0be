#include "PrintPreview.hpp"

#include "NumberText.hpp"
#include "Platform.hpp"
#include "PrintedPages.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace ordwise {
namespace {

// Only the page in view is drawn and kept.
void turnTo(int page) {
    ws.PreviewPage = page;
    frmPrintPreview.FrontPage = page;
    frmPrintPreview.Picture1.cls();
    const PagePlan& plan = frmPrintPreview.Pages[static_cast<std::size_t>(page)];
    frmPrintPreview.Picture1.place(drawPage(plan, frmPrintPreview.Paper).drawing, 0, 0);
    frmPrintPreview.Label4.Text = textOf(page + 1);
    frmPrintPreview.Command4.Enabled = page > 0;
    frmPrintPreview.Command5.Enabled = page < ws.PreviewPageCount;
}

void layOutPreview() {
    frmPrintPreview.Paper = platform.printer->paper();
    frmPrintPreview.Pages = planPages(frmPrintPreview.Sheets, frmPrintPreview.Paper);
    if (frmPrintPreview.Pages.empty()) frmPrintPreview.Pages.emplace_back();
    ws.PreviewPageCount = static_cast<int>(frmPrintPreview.Pages.size()) - 1;
}

std::vector<PrintSheet> sheetsThat(bool areGraphs) {
    std::vector<PrintSheet> sheets;
    std::copy_if(frmPrintPreview.Sheets.begin(), frmPrintPreview.Sheets.end(), std::back_inserter(sheets),
                 [areGraphs](const PrintSheet& sheet) { return (sheet.What == PrintSheet::Kind::Graph) == areGraphs; });
    return sheets;
}

}  // namespace

void frmPrintPreview_Load() {
    PrintPreviewWindow fresh;
    fresh.Title = std::move(frmPrintPreview.Title);
    fresh.Sheets = std::move(frmPrintPreview.Sheets);
    frmPrintPreview = std::move(fresh);
    frmPrintPreview.Loaded = true;
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
    const std::vector<PrintSheet> texts = sheetsThat(false);
    const std::vector<PrintSheet> graphs = sheetsThat(true);
    const bool printed = texts.empty() || printSheets(frmPrintPreview.Title, texts);
    if (printed && !graphs.empty()) printSheets(graphs.front().Heading[1] + " Graph", graphs);
    frmPrintPreview.Note = frmMain.StatusText;
}

void frmPrintPreview_Command2_Click() {
    platform.windows->unload("frmPrintPreview");
}

void frmPrintPreview_Command3_Click() {
    platform.printer->setup();
    frmPrintPreview.Note.clear();
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
