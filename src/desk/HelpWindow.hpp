// frmHelp, the guide of the program, as plain data.
#pragma once

#include <string>

namespace ordwise {

struct HelpWindow {
    bool Loaded = false;
    std::string Caption = "Ordwise Help";
    std::string Place;  // the page asked for, e.g. "fractions.html#reciprocals"; "" once it is in view
};

extern HelpWindow frmHelp;

}  // namespace ordwise
