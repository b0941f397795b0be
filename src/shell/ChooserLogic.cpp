#include "ChooserLogic.hpp"

#include "Catalogue.hpp"
#include "ChooserWindow.hpp"
#include "Platform.hpp"
#include "TopicSearch.hpp"
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

void select(int index) {
    frmSelect.IndexList.ListIndex = index;
    frmSelect.Command1.Enabled = !selectedTopic().empty();
}

// "" is in no list.
int placeInList(std::string_view name) {
    const auto& names = frmSelect.IndexList.List;
    const auto found = std::find(names.begin(), names.end(), name);
    return found == names.end() ? -1 : static_cast<int>(found - names.begin());
}

void takeSelected() {
    if (!selectedTopic().empty()) TreeViewSelect(selectedTopic());
}

// The found topics in the order of the tab in view.
std::vector<std::string_view> topicsInView() {
    const auto& list = frmSelect.IndexList.List;
    std::vector<std::string_view> names(list.begin(), list.end());
    if (frmSelect.SSTab1 != 0) return names;
    names.clear();
    for (const ChooserWindow::Node& node : frmSelect.TreeView1) {
        if (node.Shown && node.Key.empty()) names.emplace_back(node.Text);
    }
    return names;
}

// The arrows of the search box walk through what it has found; the box repeats the name.
void walk(int by) {
    const std::vector<std::string_view> names = topicsInView();
    const auto now = std::find(names.begin(), names.end(), selectedTopic());
    const auto next = now == names.end() ? 0 : now - names.begin() + by;
    if (next < 0 || next >= static_cast<std::ptrdiff_t>(names.size())) return;
    select(placeInList(names[static_cast<std::size_t>(next)]));
    frmSelect.Text1.Text = selectedTopic();
}

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
    frmSelect.Command1.Text = "OK";
    frmSelect.Command2.Text = "Cancel";
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
    const std::vector<std::string_view> found = topicsFound(typed);
    frmSelect.IndexList.List.assign(found.begin(), found.end());
    showInTree(frmSelect.TreeView1, found);
    frmSelect.Label2.Text = searchNews(typed, !found.empty());
    select(found.empty() ? -1 : 0);
}

void SelectText_KeyDown(ChooserKey key) {
    switch (key) {
        case ChooserKey::Enter: takeSelected(); break;
        case ChooserKey::Escape: cancelChooser(); break;
        case ChooserKey::Up: walk(-1); break;
        case ChooserKey::Down: walk(1); break;
        case ChooserKey::Right:
        case ChooserKey::Other: break;
    }
}

void IndexList_Click(int index) {
    select(index);
}

void IndexList_DblClick() {
    takeSelected();
}

// The arrows are the list's own.
void IndexList_KeyDown(ChooserKey key) {
    if (key == ChooserKey::Enter || key == ChooserKey::Escape) SelectText_KeyDown(key);
}

void IndexList_KeyUp() {
    if (!selectedTopic().empty()) frmSelect.Text1.Text = selectedTopic();
}

void TreeView_Mark(std::string_view text) {
    select(placeInList(text));
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

void Select_Command1_Click() {
    takeSelected();
}

void Select_Command2_Click() {
    cancelChooser();
}

std::string_view selectedTopic() {
    const auto& list = frmSelect.IndexList;
    const bool valid = list.ListIndex >= 0 && list.ListIndex < static_cast<int>(list.List.size());
    return valid ? std::string_view(list.List[static_cast<std::size_t>(list.ListIndex)]) : std::string_view();
}

}  // namespace ordwise
