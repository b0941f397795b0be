#include "AssistantLogic.hpp"

#include "NumberText.hpp"
#include "Platform.hpp"
#include "ShownLines.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <algorithm>
#include <cmath>

namespace ordwise {
namespace {

// A drag shorter than this, along and across, is a click.
constexpr double clickSlack = 10;
// The figure keeps clear of the right and lower border of the desk.
constexpr double rightGap = 8;
constexpr double lowerGap = 27;

// The figure is drawn smaller by these divisors while it comes and goes.
constexpr double fullScale = 1;
constexpr double smallestScale = 10;
constexpr double scaleStep = 0.5;

constexpr int strokes = 10;
constexpr double strokeLength = 3;
constexpr double lift = 134;       // of the pencil after its last stroke
constexpr double freeBorder = 65;  // so far from the left of the sheet it goes back as it is lifted

bool hasNote() {
    return !noteInView().empty();
}

void explainStepInView() {
    if (hasNote()) platform.windows->show("frmExplain");
}

Int16 whole(double place) {
    return static_cast<int>(Round(place, 0));
}

void moveAssistant(double byX, double byY) {
    frmPaper.Wizard.Left += byX;
    frmPaper.Wizard.Top += byY;
    frmPaper.Click.Left += byX;
    frmPaper.Click.Top += byY;
}

void keepOnDesk(double width, double height) {
    const Control& wizard = frmPaper.Wizard;
    double left = std::max(wizard.Left, 0.0);
    double top = std::max(wizard.Top, 0.0);
    if (left + wizard.Width + rightGap > width) left = width - wizard.Width - rightGap;
    if (top + wizard.Height + lowerGap > height) top = height - wizard.Height - lowerGap;
    moveAssistant(left - wizard.Left, top - wizard.Top);
}

bool wasClicked() {
    return std::abs(frmPaper.Wizard.Left - frmPaper.PressLeft) < clickSlack &&
           std::abs(frmPaper.Wizard.Top - frmPaper.PressTop) < clickSlack;
}

// The figure at the scale, with its middle where it was.
void showAssistant(double scale) {
    Control& wizard = frmPaper.Wizard;
    const double width = PaperWindow::fullWizardWidth / scale;
    const double height = PaperWindow::fullWizardHeight / scale;
    wizard.Left += (wizard.Width - width) / 2;
    wizard.Top += (wizard.Height - height) / 2;
    wizard.Width = width;
    wizard.Height = height;
    wizard.Image = ws.AssistantKey;
    wizard.Visible = true;
}

void stopSignal() {
    frmPaper.clickMe.Enabled = false;
    frmPaper.Click.Visible = false;
}

void standAtFullSize() {
    showAssistant(fullScale);
    frmPaper.wizIn.Enabled = false;
    if (ws.ClickNotify && hasNote()) frmPaper.clickMe.Enabled = true;
}

void liftPencil() {
    Control& pencil = frmPaper.Pencil;
    frmPaper.PencilCount = 0;
    frmPaper.Timer1.Enabled = false;
    pencil.Top -= lift;
    if (pencil.Left - frmPaper.Paper[0].Left > freeBorder) pencil.Left -= freeBorder;
}

}  // namespace

void Wizard_MouseDown(double x, double y) {
    frmPaper.GrabX = whole(x);
    frmPaper.GrabY = whole(y);
    frmPaper.PressLeft = whole(frmPaper.Wizard.Left);
    frmPaper.PressTop = whole(frmPaper.Wizard.Top);
}

void Wizard_MouseMove(double x, double y) {
    moveAssistant(x - frmPaper.GrabX, y - frmPaper.GrabY);
}

void Wizard_MouseUp(MouseButton button, double width, double height) {
    if (button == MouseButton::Right) return platform.windows->popUp("mnuHidden");
    keepOnDesk(width, height);
    if (wasClicked()) explainStepInView();
}

void Wizard_Click() {
    explainStepInView();
}

void Click_MouseUp(MouseButton button) {
    if (button == MouseButton::Right) return platform.windows->popUp("mnuHidden");
    explainStepInView();
}

void Light_MouseUp(MouseButton button) {
    if (button == MouseButton::Right) return platform.windows->popUp("mnuHidden3");
    ws.ExplainOverride = frmPaper.Light.Image == "light3";
    if (ws.ExplainOverride) platform.windows->show("frmExplain");
}

void Pencil_MouseUp(MouseButton button) {
    if (button == MouseButton::Right) platform.windows->popUp("mnuHidden2");
}

void bringAssistant() {
    if (!frmPaper.Loaded) return;
    frmPaper.WizOut.Enabled = false;
    frmPaper.WizardScale = smallestScale;
    frmPaper.wizIn.Enabled = true;
}

void sendAssistantAway() {
    if (!frmPaper.Loaded) return;
    stopSignal();
    frmPaper.wizIn.Enabled = false;
    frmPaper.WizardScale = fullScale;
    frmPaper.WizOut.Enabled = true;
}

void wizIn_Timer() {
    showAssistant(frmPaper.WizardScale);
    frmPaper.WizardScale -= scaleStep;
    if (frmPaper.WizardScale < fullScale) standAtFullSize();
}

void WizOut_Timer() {
    stopSignal();
    showAssistant(frmPaper.WizardScale);
    frmPaper.WizardScale += scaleStep;
    if (frmPaper.WizardScale <= smallestScale) return;
    frmPaper.Wizard.Visible = false;
    frmPaper.WizOut.Enabled = false;
}

void Timer1_Timer() {
    frmPaper.PencilCount += 1;
    const bool odd = frmPaper.PencilCount % 2 != 0;
    frmPaper.Pencil.Left += odd ? strokeLength : -strokeLength;
    if (frmPaper.PencilCount >= strokes) liftPencil();
}

void finishAnimations() {
    while (frmPaper.wizIn.Enabled) wizIn_Timer();
    while (frmPaper.WizOut.Enabled) WizOut_Timer();
    while (frmPaper.Timer1.Enabled) Timer1_Timer();
}

}  // namespace ordwise
