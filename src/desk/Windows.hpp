// The windows as plain data: fields and first values, no behaviour. The routines that read and
// write them live in the layers to the right; the desktop makes one widget of each control and
// shows what changed after each event, the terminal reads the same fields.
//
// A window and its controls carry the names by which the routines know them. Places are in points
// of the sheet (frmPaper) or of the window; what stands on a sheet or on Picture3 counts from its
// corner. A control that no routine moves keeps its first place.
#pragma once

#include "BoundedArray.hpp"
#include "DrawingSurface.hpp"
#include "Int16.hpp"

#include <string>
#include <vector>

namespace ordwise {

struct Control {
    std::string Text;   // what a box holds, a caption says or a list shows
    std::string Image;  // image key of a picture or button, e.g. "light1"
    std::string ToolTip;
    double Left = 0;
    double Top = 0;
    double Width = 0;
    double Height = 0;
    bool Visible = true;
    bool Enabled = true;
    bool Checked = false;
    bool AlignRight = false;  // a caption that stands before its box ends at the box
};

struct ComboControl : Control {
    std::vector<std::string> List;
    int ListIndex = 0;
};

struct ListControl : Control {
    std::vector<std::string> List;
};

struct TimerControl {
    bool Enabled = false;
    int Interval = 0;  // milliseconds
};

// A key that the student pressed and that was not taken: it would stand behind the first `At` keys of
// the paper, or of a box.
struct DroppedKey {
    std::string Key;
    std::string Reason;
    int Box = 0;  // 0 the paper
    int At = 0;
};

// One sheet of paper: a picture surface with its Next Step button and its title.
struct Sheet : DrawingSurface {
    double Left = 0;
    double Top = 0;
    double Width = 800;
    double Height = 657;
    bool Visible = false;
    int Order = 0;  // sheets with a higher number lie in front
    Control blinker;
    Control Label6;  // the title of the sheet
    // Shown with the drawing and no part of it: the places of dropped keys, the chosen line. Neither
    // printed nor exported.
    DisplayList Marks;
};

// A line of the solution as it stands on a sheet, with the note that explains it. A step may have a
// note only; it then has the place of the line before.
struct ShownLine {
    std::string Line;
    std::string Note;
    int Sheet = 0;
    double Top = 0;
    double Bottom = 0;
    bool Written = true;  // false for a note without a line
    double Closer = 0;    // by so much it stands nearer to the line before it
    bool Turns = false;   // it begins a sheet, so that the last line is not alone there
    double EndX = 0;      // where the line ends, as LineEndX and LineEndY tell
    double EndY = 0;
};

// A note beside its line: a slip of paper on the desk, its text drawn from its own corner.
struct NoteSlip : DrawingSurface {
    double Left = 0;  // on the desk, in points of the sheets
    double Top = 0;
    double Width = 0;
    double Height = 0;
    int Line = 0;  // index of the shown line that it explains
};

// Where the notes of a shown solution stand without being asked for.
enum class NotesPlace { Nowhere, BesideLines, UnderLines };

struct PaperWindow {
    static constexpr int lastSheet = 9;

    bool Loaded = false;
    BoundedArray<Sheet, lastSheet> Paper;
    int FrontOrder = 0;     // the highest Order given so far
    double PileShift = 0;   // how far the pile has pushed the assistant and the light to the right
    bool PileFull = false;  // the last line found no room on the tenth sheet, and a message has said so
    Control Label7;         // the date, on the first sheet
    Control Light;
    Control Pencil;
    Control deskPencil;
    Control Wizard;
    Control Click;  // the signal beside the assistant
    Control Picture3;
    Control Text1, Text2, Text3, Text4, Text5, Text6;
    Control Label1, Label2, Label3, Label4, Label5, Label8;
    ComboControl Combo1, Combo2, Combo3;
    TimerControl Timer1{false, 10};    // the pencil
    TimerControl Timer2{false, 400};   // the blink of Next Step
    TimerControl clickMe{false, 800};  // the blink of the assistant's signal
    TimerControl wizIn{false, 10};
    TimerControl WizOut{false, 10};

    // Of the assistant: its full size, the divisor of its size while it grows and shrinks, where in
    // the picture the mouse took hold of it, and where it stood then.
    static constexpr double fullWizardWidth = 110;
    static constexpr double fullWizardHeight = 150;
    double WizardScale = 1;
    Int16 GrabX, GrabY;
    Int16 PressLeft, PressTop;
    Int16 PencilCount;  // strokes of the pencil since the last key

    // Keys that were not taken and that the student has not gone back over, in the order in which they
    // were pressed; and the marks at those of the boxes, on Picture3.
    std::vector<DroppedKey> DroppedKeys;
    DisplayList BoxMarks;
    int KeyboardBox = 0;  // the box that a command wants to have the keyboard, 0 once it has it

    // The lines of the solution that are to be seen, and the one that is chosen to be explained, -1 for
    // none. FirstSheet keeps the sheet on which they begin as it was before the first of them.
    std::vector<ShownLine> Lines;
    int ChosenLine = -1;
    Sheet FirstSheet;
    NotesPlace Notes = NotesPlace::Nowhere;
    double NotesLeft = 0;   // where on the desk there is room for notes beside the sheets,
    double NotesWidth = 0;  // and how much
    std::vector<NoteSlip> Slips;
    int SlipsSheet = 0;  // the sheet whose lines they explain

    // Text1 to Text6 and Combo1 to Combo3 by number; fault 9 for a number outside.
    [[nodiscard]] Control& box(int number);
    [[nodiscard]] ComboControl& combo(int number);
};

struct ToolbarButton {
    std::string Key;
    std::string ToolTip;
    std::string Image;
    bool Enabled = true;
    std::string Caption = {};  // the word that stands under the picture
};

struct MainWindow {
    std::string Caption = "Ordwise";
    int MousePointer = 0;
    std::string StatusText;

    // Indices of the toolbar's buttons; the numbers between them are separators and are free.
    enum Button {
        buttonNew = 1,
        buttonSave = 3,
        buttonOpen = 4,
        buttonPrint = 5,
        buttonPractice = 7,
        buttonGraph = 8,
        buttonSolve = 10,
        buttonExample = 11,
        buttonClear = 12,
        buttonRoot = 14,
        buttonPower = 15,
        buttonFracdec = 18,
        buttonWeb = 20
    };
    BoundedArray<ToolbarButton, 20> Toolbar1;

    // Saved problems that were opened or saved lately, by their paths, the latest first.
    std::vector<std::string> RecentProblems;
    // The saved problem that was put on the desk or saved from it last: its path and its text.
    std::string ProblemFile;
    std::string ProblemFileText;
    std::string DrawnExample;        // what Example wrote last, as it would be saved
    bool CommandLineOpened = false;  // its file was opened; from now on Load Problem asks for one

    Control mnuFile, mnuNew, mnuPrint, mnuPrintSetup, mnuSave, mnuLoad, mnuRecent, mnuClose, mnuExit;
    Control mnuEdit, mnuUndo, mnuRedo;
    Control mnuCreate, mnuSolve, mnuExample, mnuErase, mnuGraph, mnuPracticeTest, mnuExp;
    Control mnuSpecial, mnuSquareRoot, mnuExponet, mnuAbsValue, mnuAddition, mnuSubtraction, mnuMultiplication,
        mnuDivision, mnuConvertDF;
    Control mnuOptions, mnuPencil, mnuShowStep, mnuHideWiz, mnuShowLight, mnuChange;
    Control mnuHelp, mnuHelpTopics, mnuShortcuts, mnuWeb, mnuAlgSol, mnuHomePage, mnuOnlineSupport, mnuAbout;
    // The pop-up menus of the desk: of the assistant, of the pencil, of the light.
    Control mnuHidden, mnuHide, mnuHideOptions;
    Control mnuHidden2, mnuUsePencil;
    Control mnuHidden3, mnuHideLight;

    // As the program starts: captions, keys, tool tips, and nothing to solve or print yet.
    MainWindow();
};

extern MainWindow frmMain;
extern PaperWindow frmPaper;

// Solve can be asked for or not: the toolbar button and the menu command go together.
void setSolveEnabled(bool enabled);

// Windows as a freshly started program has them.
void ResetWindows();

}  // namespace ordwise
