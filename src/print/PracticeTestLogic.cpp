#include "PracticeTestLogic.hpp"

#include "Catalogue.hpp"
#include "NumberText.hpp"
#include "Platform.hpp"
#include "PracticeTestTopics.hpp"
#include "PracticeWindow.hpp"
#include "RandomDraws.hpp"
#include "TopicSearch.hpp"
#include "Workspace.hpp"

#include <algorithm>
#include <utility>

namespace ordwise {
namespace {

constexpr int usualCount = 2;  // the entry "3" of the numbers
constexpr int largestSeed = 999999;

enum KeyCode { keyEnter = 13, keyUp = 38, keyRight = 39, keyDown = 40 };

// The hourglass, until the test is made or a fault has ended it.
class BusyPointer {
public:
    BusyPointer() {
        constexpr int hourglass = 11;
        frmMain.MousePointer = hourglass;
        platform.windows->redraw("frmPracticeTest");
    }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;
    ~BusyPointer() { frmMain.MousePointer = ws.NormalPointer; }
};

// The slot that holds a topic, or with "" the first free one; -1 if there is none.
int slotOf(std::string_view topic) {
    for (int i = 0; i <= PracticeTestWindow::lastSection; ++i) {
        if (frmPracticeTest.Text4[i].Text == topic) return i;
    }
    return -1;
}

void showChecks() {
    for (PracticeTestWindow::ListItem& item : frmPracticeTest.IndexList) item.Checked = slotOf(item.Text) >= 0;
}

// Nothing happens when all slots are taken.
void addTopic(std::string_view topic) {
    const int free = slotOf("");
    if (free >= 0) frmPracticeTest.Text4[free].Text = topic;
    showChecks();
}

std::uint64_t seedOfWindow() {
    const std::string& text = frmPracticeTest.Seed.Text;
    const bool number = !text.empty() && text.size() <= 9 && text.find_first_not_of("0123456789") == text.npos;
    if (number) return static_cast<std::uint64_t>(longOf(text));
    (void)RandInt();  // looks at the clock
    return static_cast<std::uint64_t>(drawBelow(largestSeed)) + 1;
}

}  // namespace

void PracticeTest_Load() {
    PracticeTestWindow fresh;
    fresh.NameLine.Checked = frmPracticeTest.NameLine.Checked;
    fresh.Space.ListIndex = frmPracticeTest.Space.ListIndex;
    fresh.Columns.ListIndex = frmPracticeTest.Columns.ListIndex;
    frmPracticeTest = std::move(fresh);
    for (const TreeRow& row : topicTree()) {
        frmPracticeTest.TreeView1.push_back({std::string(row.parent), std::string(row.key), std::string(row.text),
                                             row.key.empty() ? "book2" : "book1"});
    }
    for (const std::string_view name : indexList())
        frmPracticeTest.IndexList.push_back({std::string(name), false, true});
    for (ComboControl& count : frmPracticeTest.Combo1) count.ListIndex = usualCount;
    frmPracticeTest.Text1.Text = "Halvern Ordwise";
    frmPracticeTest.Text2.Text = "Practice Test";
    frmPracticeTest.Text3.Text = platform.clock->today();
    frmPracticeTest.Loaded = true;
}

void PracticeTest_Unload() {
    frmPracticeTest.Loaded = false;
}

void PracticeSearch_Change(std::string_view typed) {
    frmPracticeTest.Search.Text = typed;
    const std::vector<std::string_view> found = topicsFound(typed);
    showInTree(frmPracticeTest.TreeView1, found);
    for (PracticeTestWindow::ListItem& item : frmPracticeTest.IndexList)
        item.Shown = std::find(found.begin(), found.end(), item.Text) != found.end();
    // Nobody who has typed nothing has searched for the first topic of all.
    const bool searched = typed.find_first_not_of(' ') != std::string_view::npos;
    frmPracticeTest.Found = searched && !found.empty() ? found.front() : "";
    frmPracticeTest.Label1.Text = searchNews(typed, !found.empty());
}

void PracticeSearch_Enter() {
    if (frmPracticeTest.Found.empty()) return;
    PracticeTree_MouseDown();
    PracticeTree_NodeClick(frmPracticeTest.Found);
}

void PracticeIndexList_ItemCheck(int item) {
    const auto& items = frmPracticeTest.IndexList;
    if (item < 0 || item >= static_cast<int>(items.size())) return;
    const std::string topic = items[static_cast<std::size_t>(item)].Text;
    const int slot = slotOf(topic);
    if (slot < 0) return addTopic(topic);
    frmPracticeTest.Text4[slot].Text.clear();
    showChecks();
}

void PracticeTree_NodeClick(std::string_view text) {
    const bool isTopic = findTestTopic(text) != nullptr;
    if (!isTopic || frmPracticeTest.ArrowKeyNavigation || slotOf(text) >= 0) return;
    addTopic(text);
}

void PracticeTree_KeyDown(int keyCode, std::string_view current) {
    frmPracticeTest.ArrowKeyNavigation = keyCode == keyUp || keyCode == keyRight || keyCode == keyDown;
    if (keyCode == keyEnter) PracticeTree_NodeClick(current);
}

void PracticeTree_MouseDown() {
    frmPracticeTest.ArrowKeyNavigation = false;
}

void PracticeCommand4_Click(int section) {
    frmPracticeTest.Text4[section].Text.clear();
    showChecks();
}

TestPlan planOfWindow() {
    TestPlan plan;
    plan.heading = {frmPracticeTest.Text1.Text, frmPracticeTest.Text2.Text, frmPracticeTest.Text3.Text};
    for (int i = 0; i <= PracticeTestWindow::lastSection; ++i) {
        const std::string& topic = frmPracticeTest.Text4[i].Text;
        if (topic.empty()) continue;
        plan.sections.push_back({topic, frmPracticeTest.Combo1[i].ListIndex + 1, frmPracticeTest.Check1[i].Checked});
    }
    plan.key = static_cast<AnswerKey>(frmPracticeTest.AnswerKey.ListIndex);
    plan.versions = frmPracticeTest.Versions.ListIndex + 1;
    plan.seed = seedOfWindow();
    constexpr int spaces[] = {0, 2, 5, 10};  // as the list has them
    plan.space = spaces[frmPracticeTest.Space.ListIndex];
    plan.columns = frmPracticeTest.Columns.ListIndex + 1;
    plan.nameLine = frmPracticeTest.NameLine.Checked;
    return plan;
}

void PracticeCommand2_Click() {
    {
        const BusyPointer busy;
        const TestPlan plan = planOfWindow();
        frmPrintPreview.Title = "Practice Test";
        frmPrintPreview.Sheets = sheetsOf(plan, makeTests(plan));
    }
    platform.windows->show("frmPrintPreview");
}

void PracticeCommand1_Click() {
    platform.windows->unload("frmPracticeTest");
}

}  // namespace ordwise
