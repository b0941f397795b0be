#include "OptionsLogic.hpp"

#include "Examples.hpp"
#include "NumberText.hpp"
#include "Platform.hpp"
#include "StartWindows.hpp"
#include "Workspace.hpp"

#include <algorithm>

namespace ordwise {
namespace {

constexpr int assistants = 3;

int chosenAssistant() {
    for (int number = 1; number <= assistants; ++number) {
        if (frmOptions.wizard(number).Checked) return number;
    }
    return ws.AssistantChoice;
}

}  // namespace

void Options_Load() {
    frmOptions = OptionsWindow{};
    OptionsWizard_Click(ws.AssistantChoice);
    frmOptions.Check3.Checked = ws.ComplexExamples == complexLevel;
    frmOptions.Check2.Checked = ws.ClickNotify;
    frmOptions.Combo2.ListIndex = 3 - ws.ExpDetail;
    // A store may hold more decimals than the list does.
    const int longest = static_cast<int>(frmOptions.Combo1.List.size()) - 1;
    frmOptions.Combo1.ListIndex = std::clamp(ws.RoundPlaces - 1, 0, longest);
    frmOptions.Loaded = true;
}

void Options_Unload() {
    frmOptions.Loaded = false;
}

void OptionsWizard_Click(int number) {
    for (int other = 1; other <= assistants; ++other) frmOptions.wizard(other).Checked = other == number;
}

void Options_Command1_Click() {
    ws.ExpDetail = 3 - frmOptions.Combo2.ListIndex;
    ws.StepDetail = 4 - ws.ExpDetail;
    ws.ComplexExamples = frmOptions.Check3.Checked ? complexLevel : 0;
    ws.ClickNotify = frmOptions.Check2.Checked;
    ws.RoundPlaces = frmOptions.Combo1.ListIndex + 1;
    ws.AssistantChoice = chosenAssistant();
    ws.AssistantKey = "wiz" + textOf(static_cast<int>(ws.AssistantChoice));
    frmPaper.Wizard.Image = ws.AssistantKey;
    platform.windows->unload("frmOptions");
}

void Options_Command2_Click() {
    platform.windows->unload("frmOptions");
}

}  // namespace ordwise
