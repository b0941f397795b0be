// frmPrintSetup and frmPrintPreview as plain data.
#pragma once

#include "LoadedFlag.hpp"
#include "Platform.hpp"
#include "Windows.hpp"

#include <array>
#include <string>
#include <vector>

namespace ordwise {

struct PrintSetupWindow {
    LoadedFlag Loaded;
    Control Text1, Text2, Text3;  // the print heading, written in HalvernFont
    Control Check1;               // "Graph"
    Control Check2;               // "Problem"
    Control Check3;               // "Explanation"
    Control Label1;               // the printer's name
    Control Command2;             // "OK"
    Control Command1;             // "Cancel"
    Control Command3;             // "Setup..."

    PrintSetupWindow();
};

// One text for the printer that begins on a page of its own: a practice test, or the answers to it.
struct TestSheet {
    std::array<std::string, 3> Heading;
    std::vector<std::string> Lines;  // MathMarkup
    std::string Foot;                // small print at the end of every page; may be empty
    bool Close = false;              // the lines follow one another; else there is room to write between them
};

struct PrintPreviewWindow {
    static constexpr int lastPage = 20;

    // A page in view. Picture is the printable area; a drawing unit is a 96th of an inch.
    struct Page {
        DrawingSurface Picture;
        bool Visible = false;
    };

    LoadedFlag Loaded;
    std::vector<TestSheet> Sheets;  // what is shown and printed; whoever opens the window sets it
    BoundedArray<Page, lastPage> Picture1;
    PaperSize Paper;             // what the pages are laid out for
    int FrontPage = 0;           // the page that lies in front
    Control Label1;              // the printer's name
    Control Label3, Label4;      // the number of pages and of the page in view
    Control Command4, Command5;  // page back and forward
    Control Command1;            // "Print"
    Control Command3;            // "Print Setup..."
    Control Command2;            // "Exit"

    PrintPreviewWindow();
};

extern PrintSetupWindow frmPrintSetup;
extern PrintPreviewWindow frmPrintPreview;

}  // namespace ordwise
