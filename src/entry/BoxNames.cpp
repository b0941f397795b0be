#include "BoxNames.hpp"

#include "NumberText.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <algorithm>
#include <array>
#include <vector>

namespace ordwise {
namespace {

// Topics whose boxes stand in a formula, with signs for captions.
struct FormulaNames {
    std::vector<int> types;
    std::array<const char*, 4> names;  // of the boxes 1 to 4
};
const std::vector<FormulaNames> formulas = {
    {{14}, {"amount", "percent", "", "base"}},
    {{20}, {"left numerator", "left denominator", "right numerator", "right denominator"}},
    {{21}, {"work", "rate", "", "time"}},
    {{22}, {"distance", "speed", "", "time"}},
    {{23, 24}, {"", "", "", "amount to convert"}},
    {{25}, {"number", "exponent of 10", "", ""}},
    {{26, 27}, {"first number", "first exponent of 10", "second number", "second exponent of 10"}},
};

std::string nameInFormula(int number) {
    for (const FormulaNames& formula : formulas) {
        if (std::find(formula.types.begin(), formula.types.end(), ws.ProblemType) == formula.types.end()) continue;
        return number <= 4 ? formula.names[static_cast<std::size_t>(number - 1)] : "";
    }
    return "";
}

// "radius=" before the box or "=radius" behind it, without its sign.
std::string captionOf(const Control& box) {
    for (const Control* label :
         {&frmPaper.Label1, &frmPaper.Label2, &frmPaper.Label3, &frmPaper.Label4, &frmPaper.Label5, &frmPaper.Label8}) {
        const bool before = label->AlignRight && label->Left < box.Left && box.Left - label->Left <= 75;
        const bool behind = !label->AlignRight && label->Text.size() > 2 && label->Left > box.Left;
        if (!label->Visible || label->Top != box.Top || !(before || behind)) continue;
        std::string caption = label->Text;
        const auto sign = std::remove(caption.begin(), caption.end(), '=');
        if (sign == caption.end()) continue;
        caption.erase(sign, caption.end());
        return caption;
    }
    return "";
}

}  // namespace

std::string boxName(int number) {
    if (std::string name = nameInFormula(number); !name.empty()) return name;
    const Control& box = frmPaper.box(number);
    std::string caption = box.Visible ? captionOf(box) : "";
    return caption.empty() ? "Box " + textOf(number) : caption;
}

}  // namespace ordwise
