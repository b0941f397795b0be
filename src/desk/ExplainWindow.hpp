// frmExplain, the small window in which the assistant speaks, as plain data.
#pragma once

#include "Windows.hpp"

#include <string>

namespace ordwise {

// Its surface holds the wrapped text. Left and Top count from the corner of the desk, in points of
// the sheets; the text runs from 0 to Width.
struct ExplainWindow : DrawingSurface {
    ExplainWindow() {
        FontFace = Face::Explanation;
        FontSize = 12;
    }

    bool Loaded = false;
    std::string Caption = "Assistant Wiz";
    std::string Spoken;  // the text in words, for those who hear it
    double Left = 0;
    double Top = 0;
    double Width = 390;
    double Height = 24;  // before it is known how much is to be said
};

extern ExplainWindow frmExplain;

}  // namespace ordwise
