// frmLogo, the splash of the start, frmOptions, the settings, and frmAbout, as plain data.
#pragma once

#include "LoadedFlag.hpp"
#include "Windows.hpp"

#include <string>

namespace ordwise {

struct LogoWindow {
    bool Loaded = false;
    TimerControl logotime{false, 2000};  // until the splash goes
};

struct OptionsWindow {
    LoadedFlag Loaded;
    std::string Caption = "Settings";
    Control Label1;  // "Choose Assistant Wiz:"
    // The pictures of the three assistants; the one with the selection mark is Checked.
    Control Wizard1, Wizard2, Wizard3;
    Control Check3;       // "Complex Examples"
    Control Check2;       // "Click Notification Enabled"
    Control Label2;       // "Step-by-Step Detail:"
    ComboControl Combo2;  // "High", "Medium", "Low"
    Control Label3;       // "Number of digits after decimal to round numbers:"
    ComboControl Combo1;  // " 1" to " 5"
    Control Command1;     // "OK"
    Control Command2;     // "Cancel"

    OptionsWindow();
    // Wizard1 to Wizard3 by number; fault 9 for a number outside.
    [[nodiscard]] Control& wizard(int number);
};

struct AboutWindow {
    LoadedFlag Loaded;
    std::string Caption = "About Ordwise";
    Control lblTitle;    // the program's name
    Control lblVersion;  // e.g. "Version 0.1.0"
    Control cmdSysInfo;  // "System Info..."
    Control Command1;    // "OK"
    // What the button tells of this machine, a fact a line; empty until it was asked for.
    std::string SystemInformation;

    AboutWindow();
};

extern LogoWindow frmLogo;
extern OptionsWindow frmOptions;
extern AboutWindow frmAbout;

}  // namespace ordwise
