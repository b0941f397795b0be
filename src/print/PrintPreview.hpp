// Printing a practice test, and frmPrintPreview, which shows the very pages that the paper gets.
#pragma once

#include "PrintWindows.hpp"
#include "PrintingPages.hpp"

#include <vector>

namespace ordwise {

// The heading and the lines of each sheet, a blank line behind every line, each sheet beginning on a
// page of its own.
void layOutSheets(PageSurface& page, const std::vector<TestSheet>& sheets);
// The same as a job for the printer. False when nothing was printed.
bool printSheets(const std::vector<TestSheet>& sheets);

// Lays out frmPrintPreview.Sheets and shows the first page. What has no room on the 21 pages of the
// window ends in a message box; it is printed all the same.
void frmPrintPreview_Load();
void frmPrintPreview_Unload();
void frmPrintPreview_Paint();           // the printer's name and the page numbers
void frmPrintPreview_Command1_Click();  // Print
void frmPrintPreview_Command2_Click();  // Exit
void frmPrintPreview_Command3_Click();  // Print Setup...: another paper has other pages
void frmPrintPreview_Command4_Click();  // page back
void frmPrintPreview_Command5_Click();  // page forward

// Brings a page to the front, counted from 0; the first or the last for one that is not there.
void showPreviewPage(int page);

}  // namespace ordwise
