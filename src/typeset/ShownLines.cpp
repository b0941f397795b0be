#include "ShownLines.hpp"

#include "ExplanationWindow.hpp"
#include "Platform.hpp"
#include "StepDisplay.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"
#include "basFPrint.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ordwise {
namespace {

constexpr double notePoints = 12;
constexpr double underLeft = 84;    // where notes under their lines begin, a little behind the lines
constexpr double underWidth = 640;  // and how far they go
constexpr double underGap = 4;
constexpr double footY = 672;         // the last place on a sheet for a note
constexpr double widthPerPoint = 35;  // of slips: wider ones have larger letters
constexpr double mostPoints = 17;
constexpr double slipMargin = 8;
constexpr double slipGap = 6;
constexpr Colour chosenBand{222, 235, 252};
constexpr Colour chosenBar{31, 95, 192};

Sheet& currentSheet() {
    return frmPaper.Paper[ws.CurrentSheet];
}

bool isBlank(const std::string& text) {
    return text.find_first_not_of(' ') == std::string::npos;
}

struct Rows {
    double top = std::numeric_limits<double>::max();
    double bottom = 0;
    [[nodiscard]] bool any() const { return bottom > 0; }
};

// How high the letters of a drawing reach and how low, from that operation on.
Rows rowsOf(const DisplayList& drawn, std::size_t from) {
    Rows rows;
    for (std::size_t i = from; i < drawn.size(); ++i) {
        const auto* run = std::get_if<Glyphs>(&drawn[i]);
        if (run == nullptr || isBlank(run->text)) continue;
        rows.top = std::min(rows.top, run->y);
        rows.bottom = std::max(rows.bottom, run->y + lineHeightOf(run->face, run->size));
    }
    return rows;
}

// How far below the pen the line would reach on a sheet without an end.
double depthOf(const std::string& line) {
    Sheet endless;
    try {
        MathLineRenderer(endless, worksheetOffsets, black, [&endless](bool) -> DrawingSurface& {
            return endless;
        }).line(line);
    } catch (const RunTimeFault&) {
        // PrintMathLine will tell; as much of it as could be drawn counts.
    }
    return std::max(rowsOf(endless.drawn(), 0).bottom, endless.CurrentY);
}

// Explanations are given at the highest detail only.
bool noteIsShown(const ShownLine& line, NotesPlace place) {
    return frmPaper.Notes == place && ws.StepDetail == 1 && !line.Note.empty();
}

// The note in the regular weight: whoever reads all of them is not to be shouted at.
DrawingSurface noteDrawing(const std::string& note, double width, double points = notePoints) {
    DrawingSurface surface;
    surface.FontFace = Face::Note;
    surface.FontSize = points;
    try {
        drawNote(surface, note, width);
    } catch (const RunTimeFault&) {
        // What can be drawn of it is seen; the assistant tells that there is more.
    }
    return surface;
}

// The next line begins the next sheet, if there is one.
void turnSheet() {
    Sheet& sheet = currentSheet();
    if (sheet.CurrentY > sheetTopY && ws.CurrentSheet < PaperWindow::lastSheet)
        sheet.CurrentY = worksheetOffsets.pageFull + 1;
}

// A note never parts from its line: where both have no room the line begins the next sheet.
void turnForNote(const ShownLine& line, double noteHeight) {
    const Sheet& sheet = currentSheet();
    const double depth = line.Written ? depthOf(line.Line) : 0;
    if (sheet.CurrentY + depth + underGap + noteHeight > footY) turnSheet();
}

void putNoteUnder(ShownLine& line, const DrawingSurface& note) {
    Sheet& sheet = currentSheet();
    const double top = std::max(sheet.CurrentY, line.Bottom) + underGap;
    sheet.place(note.drawn(), underLeft, top);
    sheet.CurrentX = 0;
    sheet.CurrentY = top + note.CurrentY - notePoints;
    line.Bottom = top + note.CurrentY;
}

void rememberPlace(ShownLine& line, int sheetBefore, std::size_t drawnBefore) {
    const bool turned = ws.CurrentSheet != sheetBefore;
    const Rows rows = rowsOf(currentSheet().drawn(), turned ? 0 : drawnBefore);
    line.Sheet = ws.CurrentSheet;
    line.EndX = ws.LineEndX;
    line.EndY = ws.LineEndY;
    if (rows.any()) {
        line.Top = rows.top;
        line.Bottom = rows.bottom;
    } else if (!frmPaper.Lines.empty()) {
        line.Sheet = frmPaper.Lines.back().Sheet;
        line.Top = frmPaper.Lines.back().Top;
        line.Bottom = frmPaper.Lines.back().Bottom;
    }
}

void drawLine(ShownLine& line, bool placeButton) {
    const bool under = noteIsShown(line, NotesPlace::UnderLines);
    DrawingSurface note;
    if (under) {
        note = noteDrawing(line.Note, underWidth);
        turnForNote(line, note.CurrentY);
    }
    const bool apart = frmPaper.Notes == NotesPlace::UnderLines;
    if (line.Turns && !apart) turnSheet();
    const int sheetBefore = ws.CurrentSheet;
    const std::size_t drawnBefore = currentSheet().drawn().size();
    if (line.Written) PrintMathLine(line.Line, placeButton, apart ? 0 : line.Closer);
    rememberPlace(line, sheetBefore, drawnBefore);
    if (under) putNoteUnder(line, note);
}

// The sheets as they were before the first line, where the student has moved them to.
void clearLines() {
    for (int i = 1; i <= PaperWindow::lastSheet; ++i) {
        Sheet& sheet = frmPaper.Paper[i];
        sheet.cls();
        sheet.Visible = false;
        sheet.blinker.Visible = false;
        sheet.Marks.clear();
    }
    Sheet first = frmPaper.FirstSheet;
    first.Left = frmPaper.Paper[0].Left;
    first.Top = frmPaper.Paper[0].Top;
    first.Order = frmPaper.Paper[0].Order;
    first.blinker.Visible = false;
    frmPaper.Paper[0] = std::move(first);
    ws.CurrentSheet = 0;
    pushBesidePile(-frmPaper.PileShift);
}

bool isCheckedOff() {
    const DisplayList& drawn = currentSheet().drawn();
    return std::any_of(drawn.begin(), drawn.end(), [](const DrawOperation& operation) {
        const auto* picture = std::get_if<Picture>(&operation);
        return picture != nullptr && picture->key == "check";
    });
}

void layOutAgain() {
    if (frmPaper.Lines.empty()) return;
    const bool checkedOff = isCheckedOff();
    const bool waits = currentSheet().blinker.Visible;
    const int chosen = frmPaper.ChosenLine;
    std::vector<ShownLine> lines;
    lines.swap(frmPaper.Lines);
    clearLines();
    for (ShownLine& line : lines) {
        const bool last = &line == &lines.back();
        drawLine(line, last && waits && line.Written);
        frmPaper.Lines.push_back(std::move(line));
    }
    if (checkedOff) PlaceCheckMark();
    chooseLine(chosen);
}

// A band behind the line and a bar before it, so that it stands out without colour, too.
void markChosenLine() {
    for (int i = 0; i <= PaperWindow::lastSheet; ++i) frmPaper.Paper[i].Marks.clear();
    if (frmPaper.ChosenLine < 0) return;
    const ShownLine& line = frmPaper.Lines[static_cast<std::size_t>(frmPaper.ChosenLine)];
    Sheet& sheet = frmPaper.Paper[line.Sheet];
    const double half = (line.Bottom - line.Top) / 2 + 3;
    const double middle = (line.Top + line.Bottom) / 2;
    sheet.Marks.push_back(Stroke{54 + half, middle, sheet.Width - 14 - half, middle, 2 * half, chosenBand});
    sheet.Marks.push_back(Stroke{54, middle - half + 2, 54, middle + half - 2, 4, chosenBar});
}

NoteSlip slipOf(int index, double width) {
    const ShownLine& line = frmPaper.Lines[static_cast<std::size_t>(index)];
    NoteSlip slip;
    static_cast<DrawingSurface&>(slip) =
        noteDrawing(line.Note, width - 2 * slipMargin, std::clamp(width / widthPerPoint, notePoints, mostPoints));
    slip.Line = index;
    slip.Width = width;
    slip.Height = slip.CurrentY + slipMargin;
    return slip;
}

void makeSlips(int sheet, double width) {
    frmPaper.Slips.clear();
    frmPaper.SlipsSheet = sheet;
    for (int i = 0; i < static_cast<int>(frmPaper.Lines.size()); ++i) {
        const ShownLine& line = frmPaper.Lines[static_cast<std::size_t>(i)];
        if (line.Sheet == sheet && noteIsShown(line, NotesPlace::BesideLines))
            frmPaper.Slips.push_back(slipOf(i, width));
    }
}

// Whether the slips are those of these lines; the last line of the sheet says so, as lines only come.
bool slipsAreOf(int sheet, double width) {
    int last = -1;
    for (int i = 0; i < static_cast<int>(frmPaper.Lines.size()); ++i) {
        const ShownLine& line = frmPaper.Lines[static_cast<std::size_t>(i)];
        if (line.Sheet == sheet && noteIsShown(line, NotesPlace::BesideLines)) last = i;
    }
    if (frmPaper.Slips.empty()) return last < 0;
    const NoteSlip& slip = frmPaper.Slips.back();
    return frmPaper.SlipsSheet == sheet && slip.Line == last && slip.Width == width;
}

}  // namespace

void showLine(int step, bool placeButton, const LinePlan& plan) {
    if (frmPaper.ChosenLine >= 0) chooseLine(-1);
    // Behind the last step stands the note of what was there before.
    if (!plan.written && (step > lastShownStep() || ws.StepNotes[step].empty())) return;
    if (frmPaper.Lines.empty()) frmPaper.FirstSheet = frmPaper.Paper[0];
    ShownLine line;
    line.Line = ws.StepLines[step];
    line.Note = ws.StepNotes[step];
    line.Written = plan.written;
    line.Closer = plan.closer;
    line.Turns = plan.turns;
    drawLine(line, placeButton);
    frmPaper.Lines.push_back(std::move(line));
}

void forgetLines() {
    frmPaper.Lines.clear();
    frmPaper.Slips.clear();
    frmPaper.ChosenLine = -1;
}

const std::string& noteInView() {
    if (frmPaper.ChosenLine >= 0) return frmPaper.Lines[static_cast<std::size_t>(frmPaper.ChosenLine)].Note;
    return ws.StepNotes[ws.ShownStep];
}

int sheetInFront() {
    int front = 0;
    for (int i = 1; i <= PaperWindow::lastSheet; ++i) {
        if (frmPaper.Paper[i].Visible && frmPaper.Paper[i].Order >= frmPaper.Paper[front].Order) front = i;
    }
    return front;
}

int lineAt(int sheet, double y) {
    constexpr double slack = 8;
    for (int i = static_cast<int>(frmPaper.Lines.size()) - 1; i >= 0; --i) {
        const ShownLine& line = frmPaper.Lines[static_cast<std::size_t>(i)];
        if (line.Sheet == sheet && y >= line.Top - slack && y <= line.Bottom + slack) return i;
    }
    return -1;
}

void chooseLine(int line) {
    frmPaper.ChosenLine = line < static_cast<int>(frmPaper.Lines.size()) ? line : -1;
    markChosenLine();
    if (frmPaper.ChosenLine < 0) return;
    const int sheet = frmPaper.Lines[static_cast<std::size_t>(line)].Sheet;
    if (sheetInFront() != sheet) frmPaper.Paper[sheet].Order = ++frmPaper.FrontOrder;
}

bool moveChoice(int by) {
    if (frmPaper.Lines.empty()) return false;
    const int last = static_cast<int>(frmPaper.Lines.size()) - 1;
    if (frmPaper.ChosenLine >= 0) {
        chooseLine(std::clamp(frmPaper.ChosenLine + by, 0, last));
    } else {
        const bool stepByStep = frmMain.mnuShowStep.Checked;
        chooseLine(stepByStep || by < 0 ? last : 0);
    }
    return true;
}

void placeNotes(bool wanted, double left, double width) {
    NotesPlace place = NotesPlace::Nowhere;
    if (wanted) place = width >= leastNotesWidth ? NotesPlace::BesideLines : NotesPlace::UnderLines;
    const bool under = place == NotesPlace::UnderLines;
    const bool wasUnder = frmPaper.Notes == NotesPlace::UnderLines;
    frmPaper.Notes = place;
    frmPaper.NotesLeft = left;
    frmPaper.NotesWidth = std::floor(width);
    if (under != wasUnder) layOutAgain();
    laySlips();
}

void laySlips() {
    const int sheet = sheetInFront();
    if (!slipsAreOf(sheet, frmPaper.NotesWidth)) makeSlips(sheet, frmPaper.NotesWidth);
    double free = 0;
    for (NoteSlip& slip : frmPaper.Slips) {
        const ShownLine& line = frmPaper.Lines[static_cast<std::size_t>(slip.Line)];
        const double middle = (line.Top + line.Bottom) / 2;
        slip.Left = frmPaper.NotesLeft;
        slip.Top = std::max(free, frmPaper.Paper[sheet].Top + middle - slip.Height / 2);
        free = slip.Top + slip.Height + slipGap;
    }
}

}  // namespace ordwise
