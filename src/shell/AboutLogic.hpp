// frmAbout: what the window says, and what its button tells of the machine.
#pragma once

namespace ordwise {

void About_Load();
void About_Unload();

// System Info...: the facts of the platform stand in frmAbout.SystemInformation afterwards. Where
// nothing can be told, a message box says so.
void StartSysInfo();

// OK.
void About_Command1_Click();

}  // namespace ordwise
