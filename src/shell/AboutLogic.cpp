#include "AboutLogic.hpp"

#include "Platform.hpp"
#include "StartWindows.hpp"

namespace ordwise {

void About_Load() {
    frmAbout = AboutWindow{};
    frmAbout.lblVersion.Text = "Version " ORDWISE_VERSION;
    frmAbout.Loaded = true;
}

void About_Unload() {
    frmAbout.Loaded = false;
}

void StartSysInfo() {
    frmAbout.SystemInformation = platform.systemReport == nullptr ? "" : platform.systemReport->text();
    if (!frmAbout.SystemInformation.empty()) return;
    platform.dialogs->messageBox("System Information Is Unavailable At This Time", "Ordwise", MessageButtons::Ok);
}

void About_Command1_Click() {
    platform.windows->unload("frmAbout");
}

}  // namespace ordwise
