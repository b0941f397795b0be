#include "ChooserLogic.hpp"

#include "Catalogue.hpp"
#include "ChooserWindow.hpp"
#include "Platform.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"

#include <algorithm>

namespace ordwise {
namespace {

// What a look around in the chooser must not change. The limits belong to it: a click on a heading
// resets them, and the problem on the desk is still being typed.
struct RememberedProblem {
    Int16 problemType;
    Int16 previousProblemType;
    Int16 inputMask;
    Int16 maxDigits;
    Int16 equationMode;
};

RememberedProblem remembered;

void cancelChooser() {
    ws.ChooserClosed = true;
    ws.ProblemType = ws.PreviousProblemType;
    platform.windows->unload("frmSelect");
}

}  // namespace

void Select_Load() {
    remembered = {ws.ProblemType, ws.PreviousProblemType, ws.InputMask, ws.MaxDigits, ws.EquationMode};
    frmSelect = ChooserWindow{};
    frmSelect.Label1.Text = "Choose problem type:";
    frmSelect.Cancelled = true;
    for (const std::string_view name : indexList()) frmSelect.IndexList.List.emplace_back(name);
    frmSelect.Loaded = true;
}

void Select_Unload() {
    if (frmSelect.Cancelled) {
        ws.ProblemType = remembered.problemType;
        ws.PreviousProblemType = remembered.previousProblemType;
        ws.InputMask = remembered.inputMask;
        ws.MaxDigits = remembered.maxDigits;
        ws.EquationMode = remembered.equationMode;
        ws.ChooserClosed = true;
    }
    frmSelect.Loaded = false;
}

void BuildTopicTree(bool forgetProblem) {
    frmSelect.TreeView1.clear();
    for (const TreeRow& row : topicTree()) {
        const bool heading = !row.key.empty();
        frmSelect.TreeView1.push_back(
            {std::string(row.parent), std::string(row.key), std::string(row.text), heading ? "book1" : "book2"});
    }
    if (forgetProblem) ws.ProblemType = 0;
}

void SelectText_Change(std::string_view typed) {
    frmSelect.Text1.Text = typed;
    const std::string start = lowered(typed);
    const auto& names = frmSelect.IndexList.List;
    const auto found = std::find_if(names.begin(), names.end(),
                                    [&](const std::string& name) { return lowered(name).starts_with(start); });
    if (found != names.end()) frmSelect.IndexList.ListIndex = static_cast<int>(found - names.begin());
}

void SelectText_KeyDown(ChooserKey key) {
    if (key == ChooserKey::Enter) {
        TreeViewSelect(selectedTopic());
    } else if (key == ChooserKey::Escape) {
        cancelChooser();
    }
}

void IndexList_Click(int index) {
    frmSelect.IndexList.ListIndex = index;
}

void IndexList_DblClick() {
    TreeViewSelect(selectedTopic());
}

void IndexList_KeyDown(ChooserKey key) {
    SelectText_KeyDown(key);
}

void IndexList_KeyUp() {
    frmSelect.Text1.Text = selectedTopic();
}

void TreeView_NodeClick(std::string_view text) {
    TreeViewSelect(text);
}

void TreeView_KeyDown(ChooserKey key, std::string_view current) {
    switch (key) {
        case ChooserKey::Up:
        case ChooserKey::Down:
        case ChooserKey::Right: break;
        case ChooserKey::Enter: TreeViewSelect(current); break;
        case ChooserKey::Escape: cancelChooser(); break;
        case ChooserKey::Other: ws.ProblemType = 0; break;
    }
}

void SelectTab_KeyDown(ChooserKey key) {
    if (key == ChooserKey::Escape) cancelChooser();
}

void SelectTab_Click(int tab) {
    frmSelect.SSTab1 = tab;
}

std::string_view selectedTopic() {
    const auto& list = frmSelect.IndexList;
    const bool valid = list.ListIndex >= 0 && list.ListIndex < static_cast<int>(list.List.size());
    return valid ? std::string_view(list.List[static_cast<std::size_t>(list.ListIndex)]) : std::string_view();
}

}  // namespace ordwise
