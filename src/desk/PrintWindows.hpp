// frmPrintSetup and frmPrintPreview as plain data, and what they print.
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
    Control Command4;             // "Preview..."

    PrintSetupWindow();
};

// One text for the printer that begins on a page of its own.
struct PrintSheet {
    enum class Kind {
        Test,      // sections of numbered problems, with room to write between them
        Answers,   // the key of a test: an answer a line, or the numbered problems with their steps
        Solution,  // the steps of one problem
        Graph      // a problem, its solved line, and the picture of the open graph window
    };

    Kind What = Kind::Test;
    std::array<std::string, 3> Heading;
    std::vector<std::string> Lines;  // MathMarkup
    std::vector<std::string> Notes;  // explanations, one a line; none at all if they are not printed
    std::string Version;             // "A", "B", "C"; "" for the only one
    std::string Seed;                // "" for what has none
    bool NameLine = false;           // room for name, date and class above the heading
    int Space = 0;                   // lines to work in below each problem
    int Columns = 1;                 // two: side by side where all problems of a section are short
};

// A line at its place on a page; the pen of a page counts 800 across and 600 down.
struct PlannedLine {
    enum class Kind {
        Math,      // markup in HalvernFont
        Note,      // markup in the face of explanations
        Words,     // what somebody has typed, and no mathematics
        Foot,      // words in small print
        NameLine,  // words with a line to write on behind each
        Graph      // the picture of the graph window, from here to the foot
    };

    Kind What = Kind::Math;
    std::string Text;
    double X = 0;
    double Y = 0;
    // A line that is too long stands in several rows, and the first of them tells all of it.
    bool Continued = false;  // a further row
    std::string Whole = {};  // of the first row; "" for a line of one
};

// What stands on one page. It is drawn when somebody looks at it.
using PagePlan = std::vector<PlannedLine>;

struct PrintPreviewWindow {
    LoadedFlag Loaded;
    std::string Title;               // of the job; whoever opens the window sets it
    std::vector<PrintSheet> Sheets;  // what is shown and printed, set likewise
    std::vector<PagePlan> Pages;
    DrawingSurface Picture1;     // the page in view: the printable area in 96ths of an inch
    PaperSize Paper;             // what the pages are laid out for
    int FrontPage = 0;           // the page in view
    Control Label1;              // the printer's name
    Control Label3, Label4;      // the number of pages and of the page in view
    Control Command4, Command5;  // page back and forward
    Control Command1;            // "Print"
    Control Command3;            // "Print Setup..."
    Control Command2;            // "Exit"
    std::string Note;            // what became of the last job; stays until the next one

    PrintPreviewWindow();
};

extern PrintSetupWindow frmPrintSetup;
extern PrintPreviewWindow frmPrintPreview;

}  // namespace ordwise
