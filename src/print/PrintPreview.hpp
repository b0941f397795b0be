// frmPrintPreview, which shows the very pages that the paper gets, each when it is turned to.
#pragma once

#include "PrintWindows.hpp"

namespace ordwise {

// Lays out frmPrintPreview.Sheets and shows the first page.
void frmPrintPreview_Load();
void frmPrintPreview_Unload();
void frmPrintPreview_Paint();           // the printer's name and the page numbers
void frmPrintPreview_Command1_Click();  // Print: all pages, a graph as a job of its own
void frmPrintPreview_Command2_Click();  // Exit
void frmPrintPreview_Command3_Click();  // Print Setup...: another paper has other pages
void frmPrintPreview_Command4_Click();  // page back
void frmPrintPreview_Command5_Click();  // page forward

// Turns to a page, counted from 0; to the first or the last for one that is not there.
void showPreviewPage(int page);

}  // namespace ordwise
