// The settings window, frmOptions: shows the settings as they are; OK takes what was chosen over,
// Cancel leaves them.
#pragma once

namespace ordwise {

void Options_Load();
void Options_Unload();
// A click on the picture of assistant 1, 2 or 3 moves the selection mark there.
void OptionsWizard_Click(int number);
void Options_Command1_Click();  // OK: a changed assistant stands on the desk at once
void Options_Command2_Click();  // Cancel

}  // namespace ordwise
