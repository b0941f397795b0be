#include "WorksheetBoxes.hpp"

#include "GuidedInput.hpp"
#include "NumberText.hpp"
#include "TextTools.hpp"
#include "Windows.hpp"
#include "WorksheetLayout.hpp"
#include "Workspace.hpp"

#include <algorithm>

namespace ordwise {
namespace {

constexpr std::size_t longestText = 10;
constexpr double boxWidth = 54;
constexpr double boxHeight = 28;

double widthOf(std::string_view text) {
    return text.size() <= 3 ? boxWidth : static_cast<double>(text.size() - 3) * 12 + boxWidth;
}

bool holdsExponent(int problemType, int number) {
    return problemType >= 25 && problemType <= 27 && (number == 2 || number == 4);
}

// Why the key cannot be typed behind `text`; "" if it can.
std::string refusalOf(int problemType, int number, std::string_view text, std::string_view key) {
    if (key == "-" && !text.empty()) return "A minus sign (-) can only start a number.";
    if (key == "." && holdsExponent(problemType, number)) return "An exponent can't have a decimal point.";
    if (key == "." && contains(text, ".")) return "A number can only have one decimal point.";
    const bool digit = key.size() == 1 && key[0] >= '0' && key[0] <= '9';
    if (!digit && key != "." && key != "-") return "The '" + std::string(key) + "' is not allowed in a box.";
    if (text.size() >= longestText) return "Please keep all numbers to 10 characters or less.";
    return "";
}

struct BoxCount {
    int unfinished = 0;  // boxes that hold no number, or only the beginning of one
    int unknown = 0;     // boxes that may stay empty, and are
};

BoxCount countBoxes(const WorksheetLayout& layout) {
    BoxCount count;
    for (const PlacedBox& placed : layout.boxes) {
        const std::string& text = (frmPaper.*placed.box).Text;
        const auto& unknowns = layout.unknowns;
        const bool mayBeUnknown = std::find(unknowns.begin(), unknowns.end(), placed.box) != unknowns.end();
        if (mayBeUnknown && text.empty()) {
            ++count.unknown;
        } else if (!IsNumeric(text)) {
            ++count.unfinished;
        }
    }
    return count;
}

bool refuse(std::string reason) {
    ws.ExplainOverrideText = std::move(reason);
    return false;
}

}  // namespace

bool Text_KeyPress(int number, std::string_view key) {
    if (!ws.InputOpen) return refuse("The problem has been solved.  Erase it to enter another one.");
    std::string text = frmPaper.box(number).Text;
    if (key == backspaceKey) {
        if (!text.empty()) text.pop_back();
    } else {
        std::string reason = refusalOf(ws.ProblemType, number, text, key);
        if (!reason.empty()) return refuse(std::move(reason));
        text += key;
    }
    setBoxText(number, std::move(text));
    return true;
}

bool typeIntoBox(int number, std::string_view text) {
    if (!frmPaper.box(number).Visible)
        return refuse("There is no box " + textOf(number) + " in '" + ws.TopicName + "'.");
    setBoxText(number, "");
    const std::vector<std::string> keys = characters(text);
    return std::all_of(keys.begin(), keys.end(), [&](const std::string& key) { return Text_KeyPress(number, key); });
}

bool isBoxText(int problemType, int number, std::string_view text) {
    std::string typed;
    for (const std::string& key : characters(text)) {
        if (!refusalOf(problemType, number, typed, key).empty()) return false;
        typed += key;
    }
    return true;
}

void setBoxText(int number, std::string text) {
    Control& box = frmPaper.box(number);
    box.Text = std::move(text);
    box.Width = widthOf(box.Text);
    setSolveEnabled(ws.InputOpen && boxesAreReady());
}

void clearBoxes() {
    for (int number = 1; number <= 6; ++number) {
        Control& box = frmPaper.box(number);
        box.Text.clear();
        box.Width = boxWidth;
        box.Height = boxHeight;
    }
}

bool selectInCombo(int number, int index) {
    ComboControl& combo = frmPaper.combo(number);
    if (!combo.Visible) return refuse("There is no list " + textOf(number) + " in '" + ws.TopicName + "'.");
    const int last = static_cast<int>(combo.List.size()) - 1;
    if (index < 0 || index > last)
        return refuse("List " + textOf(number) + " has the entries 0 to " + textOf(last) + ".");
    combo.ListIndex = index;
    return true;
}

bool boxesAreReady() {
    const WorksheetLayout* layout = layoutOf(ws.ProblemType);
    if (layout == nullptr) return false;
    const BoxCount count = countBoxes(*layout);
    return count.unfinished == 0 && count.unknown == (layout->unknowns.empty() ? 0 : 1);
}

std::string whatBoxesMiss() {
    const WorksheetLayout* layout = layoutOf(ws.ProblemType);
    const BoxCount count = layout == nullptr ? BoxCount{} : countBoxes(*layout);
    std::string missing;
    if (count.unfinished == 1) missing = "a box still needs a number";
    if (count.unfinished > 1) missing = textOf(count.unfinished) + " boxes still need a number";
    if (count.unknown > 1) missing = "only one box stays empty, the one to be worked out";
    if (missing.empty()) missing = "one box has to stay empty, the one to be worked out";
    return "The problem is not finished: " + missing + ".";
}

}  // namespace ordwise
