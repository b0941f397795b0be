// Form_Load and Form_Unload of the worksheet. Places that no rule gives are chosen here so that a
// window of 1024 by 740 shows the whole desk.
#include "WorksheetLayout.hpp"

#include "Catalogue.hpp"
#include "GlyphMetrics.hpp"
#include "NumberText.hpp"
#include "Platform.hpp"
#include "ShownLines.hpp"
#include "StepDisplay.hpp"
#include "WorksheetBoxes.hpp"
#include "WorksheetErase.hpp"
#include "Workspace.hpp"
#include "basFPrint.hpp"

namespace ordwise {
namespace {

constexpr double sheetLeft = 60;
constexpr double sheetTop = 40;
constexpr double pictureLeft = 140;
constexpr double pictureTop = 64;
constexpr double pictureWidth = 520;
constexpr double figureHeight = 300;
constexpr double rowHeight = 200;
constexpr double labelHeight = 28;

// The characters that a topic takes, as bits of InputMask.
enum MaskBit { maskTimes = 4, maskDivide = 8, maskPower = 16, maskRoot = 256, maskBar = 512 };

const std::vector<std::string> meterUnits = {"mm (0.001 meters)", "cm (0.01 meters)", "dm (0.1 meters)", "m (1 meter)",
                                             "dam (10 meters)",   "hm (100 meters)",  "km (1000 meters)"};
const std::vector<std::string> gramUnits = {"mg (0.001 grams)", "cg (0.01 grams)", "dg (0.1 grams)", "g (1 gram)",
                                            "dag (10 grams)",   "hg (100 grams)",  "kg (1000 grams)"};
const std::vector<std::string> roundings = {"Rounded to the nearest thousand",  "Rounded to the nearest hundred",
                                            "Rounded to the nearest ten",       "Rounded to the nearest whole number",
                                            "Rounded to the nearest tenth",     "Rounded to the nearest hundredth",
                                            "Rounded to the nearest thousandth"};

void place(Control& control, double left, double top, double width, double height) {
    control.Left = left;
    control.Top = top;
    control.Width = width;
    control.Height = height;
}

void hideControlsOfPicture() {
    for (int number = 1; number <= 6; ++number) frmPaper.box(number).Visible = false;
    for (int number = 1; number <= 3; ++number) frmPaper.combo(number).Visible = false;
    for (Control* label :
         {&frmPaper.Label1, &frmPaper.Label2, &frmPaper.Label3, &frmPaper.Label4, &frmPaper.Label5, &frmPaper.Label8})
        label->Visible = false;
}

void fillCombo(ComboControl& combo, const std::vector<std::string>& list, double left, double top, double width) {
    combo.List = list;
    combo.ListIndex = 0;
    combo.Visible = true;
    place(combo, left, top, width, 28);
}

// The first box behind a label on its line; null if there is none.
const PlacedBox* boxBehind(const PlacedLabel& label, const std::vector<PlacedBox>& boxes) {
    const PlacedBox* nearest = nullptr;
    for (const PlacedBox& box : boxes) {
        const bool behind = box.top == label.top && box.left > label.left;
        if (behind && (nearest == nullptr || box.left < nearest->left)) nearest = &box;
    }
    return nearest;
}

// Of a caption whose signs have no room of an operator at its ends.
double captionWidth(const std::string& caption) {
    if (caption.empty()) return 0;
    return textWidth(Face::Halvern, caption, labelPoints) - signAir(Face::Halvern, caption.front(), labelPoints) -
           signAir(Face::Halvern, caption.back(), labelPoints);
}

// A caption such as "a=" ends at its box; one such as "=radius" or "%    of" starts at its place.
void showLabel(const PlacedLabel& placed, const std::vector<PlacedBox>& boxes) {
    Control& label = frmPaper.*placed.label;
    label.Text = placed.caption;
    label.AlignRight = label.Text.size() > 1 && label.Text.back() == '=';
    label.Visible = true;
    const PlacedBox* box = label.AlignRight ? boxBehind(placed, boxes) : nullptr;
    // Blanks behind a sign keep the box away and may lie under it.
    const std::string lettered = label.Text.substr(0, label.Text.find_last_not_of(' ') + 1);
    const double width = box != nullptr ? box->left - placed.left : captionWidth(lettered) + 2;
    place(label, placed.left, placed.top, width, labelHeight);
}

void arrangePicture(const WorksheetLayout& layout) {
    const bool figure = *layout.image != '\0';
    frmPaper.Picture3.Image = layout.image;
    place(frmPaper.Picture3, pictureLeft, pictureTop, pictureWidth, figure ? figureHeight : rowHeight);
    for (const PlacedBox& placed : layout.boxes) {
        Control& box = frmPaper.*placed.box;
        box.Left = placed.left;
        box.Top = placed.top;
        box.Visible = true;
    }
    for (const PlacedLabel& placed : layout.labels) showLabel(placed, layout.boxes);
    if (ws.ProblemType == metersTopic || ws.ProblemType == gramsTopic) {
        const auto& units = unitsOf(ws.ProblemType);
        fillCombo(frmPaper.Combo1, units, 65, 86, 210);
        fillCombo(frmPaper.Combo2, units, 295, 86, 210);
    }
}

void enableInsertCommands(int mask) {
    frmMain.Toolbar1[MainWindow::buttonRoot].Enabled = (mask & maskRoot) != 0;
    frmMain.mnuSquareRoot.Enabled = (mask & maskRoot) != 0;
    frmMain.Toolbar1[MainWindow::buttonPower].Enabled = (mask & maskPower) != 0;
    frmMain.mnuExponet.Enabled = (mask & maskPower) != 0;
    frmMain.mnuAbsValue.Enabled = (mask & maskBar) != 0;
    frmMain.mnuMultiplication.Enabled = (mask & maskTimes) != 0;
    frmMain.mnuDivision.Enabled = (mask & maskDivide) != 0;
    frmMain.mnuAddition.Enabled = mask > 1;
    frmMain.mnuSubtraction.Enabled = mask > 1;
}

// What can be asked for as long as a worksheet lies on the desk.
void enableWorksheetCommands(bool enabled) {
    frmMain.Toolbar1[MainWindow::buttonExample].Enabled = enabled;
    frmMain.Toolbar1[MainWindow::buttonClear].Enabled = enabled;
    frmMain.mnuExample.Enabled = enabled;
    frmMain.mnuErase.Enabled = enabled;
    frmMain.mnuClose.Enabled = enabled;
    frmMain.mnuExp.Enabled = enabled;
}

void placeAssistant() {
    ws.AssistantKey = "wiz" + textOf(static_cast<int>(ws.AssistantChoice));
    frmPaper.Wizard.Image = ws.AssistantKey;
    frmPaper.Wizard.ToolTip = "Click me for an explanation!";
    place(frmPaper.Wizard, 880, 420, PaperWindow::fullWizardWidth, PaperWindow::fullWizardHeight);
    // It comes by growing, and is seen from the first tick on.
    frmPaper.Wizard.Visible = false;
    frmPaper.WizardScale = 10;
    frmPaper.wizIn.Enabled = frmMain.mnuHideWiz.Checked;
    frmPaper.WizOut.Enabled = false;
    place(frmPaper.Click, 865, 400, 29, 32);
}

}  // namespace

const std::vector<std::string>& unitsOf(int problemType) {
    return problemType == metersTopic ? meterUnits : gramUnits;
}

const std::vector<std::string>& roundingChoices() {
    return roundings;
}

void clearDesk() {
    pushBesidePile(-frmPaper.PileShift);
    static const Sheet fresh;  // assigned by copy: so the sheets keep the memory of their drawings
    for (int i = 0; i <= PaperWindow::lastSheet; ++i) {
        Sheet& sheet = frmPaper.Paper[i];
        sheet = fresh;
        sheet.Visible = i == 0;
        sheet.Label6.Text = i == 0 ? ws.TopicName : ws.TopicName + " (Page " + textOf(i + 1) + ")";
        place(sheet.Label6, 60, 20, 540, labelHeight);
        sheet.blinker.Text = "Next Step";
        sheet.blinker.Visible = false;
        place(sheet.blinker, 0, 0, 100, 28);
    }
    Sheet& first = frmPaper.Paper[0];
    first.Left = sheetLeft;
    first.Top = sheetTop;
    first.CurrentY = sheetTopY;
    frmPaper.FrontOrder = 0;
    forgetLines();
    ws.CurrentSheet = 0;
    ws.LineEndX = 0;
    ws.TypedEndX = 0;
    ws.LineEndsInFraction = false;
    // The point of the pencil, 9 right and at the foot of its picture, waits at the first key's place.
    const double lineStart = textWidth(Face::Halvern, std::string(17, ' '), first.FontSize) - 4;
    frmPaper.Pencil.Image = "pencil1";
    place(frmPaper.Pencil, sheetLeft + lineStart - 9, sheetTop - 122, 120, 267);
    frmPaper.Timer1.Enabled = false;
    frmPaper.PencilCount = 0;
    frmPaper.Timer2.Enabled = false;
    frmPaper.clickMe.Enabled = false;
    frmPaper.Click.Visible = false;
}

void offerHint() {
    ws.ShownStep = frmMain.mnuShowStep.Checked ? 2 : 0;
    ws.StepNotes[ws.ShownStep] = ws.HintText;
}

void Form_Load() {
    const WorksheetLayout* layout = layoutOf(ws.ProblemType);
    hideControlsOfPicture();
    fillCombo(frmPaper.Combo3, roundings, 440, 72, 300);
    frmPaper.Combo3.Visible = ws.ProblemType == roundingTopic;
    clearDesk();
    ws.InputOpen = true;
    // A rebuilt worksheet is the one place where these return to their start.
    ws.BarDepth = 0;
    ws.ParenSide = 0;
    ws.FractionDepth = 0;
    ws.SavedParenSide = false;
    resetLight();
    frmPaper.Light.Visible = frmMain.mnuShowLight.Checked;
    place(frmPaper.Light, 890, 40, 60, 60);
    placeAssistant();
    ClearInput();
    ws.ProblemText.clear();
    clearExplain();
    clearBoxes();
    offerHint();

    const bool onPaper = isOnPaper(ws.ProblemType);
    frmPaper.Pencil.Visible = onPaper;
    frmPaper.deskPencil.Visible = !onPaper;
    frmPaper.deskPencil.Image = "deskPencil";
    place(frmPaper.deskPencil, 875, 620, 140, 40);
    frmPaper.Picture3.Visible = !onPaper;
    if (layout != nullptr) arrangePicture(*layout);
    enableInsertCommands(onPaper ? static_cast<int>(ws.InputMask) : 0);
    frmPaper.Label7.Text = platform.clock->today();
    place(frmPaper.Label7, 610, 20, 140, labelHeight);
    frmPaper.Label7.AlignRight = true;
    disableSolvedCommands();
    enableWorksheetCommands(true);
    frmPaper.Loaded = true;
}

void Form_Unload() {
    eraseWorksheet();
    enableInsertCommands(0);
    enableWorksheetCommands(false);
    frmPaper.Loaded = false;
}

}  // namespace ordwise
