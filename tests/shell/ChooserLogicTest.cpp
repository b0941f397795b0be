#include "ChooserLogic.hpp"

#include "Catalogue.hpp"
#include "ChooserWindow.hpp"
#include "PlainPlatform.hpp"
#include "WindowRoutines.hpp"
#include "Workspace.hpp"

#include <gtest/gtest.h>

namespace ordwise {
namespace {

// Closes windows as a platform does.
class ClosingWindows : public WindowOpener {
public:
    void show(std::string_view name) override { loadWindow(name); }
    void unload(std::string_view name) override { unloadWindow(name); }
};

class Chooser : public testing::Test {
protected:
    Chooser() {
        ws = Workspace{};
        ResetWindows();
        platform.windows = &windows;
        loadWindow("frmSelect");
    }

    PlainPlatform outside;
    ClosingWindows windows;
};

TEST_F(Chooser, opens_with_the_first_entry_and_the_tree) {
    EXPECT_EQ(selectedTopic(), "Absolute Values");
    EXPECT_EQ(frmSelect.IndexList.List.back(), "Work = Rate * Time");
    EXPECT_EQ(frmSelect.SSTab1, 0);
    EXPECT_EQ(frmSelect.TreeView1.front().Text, "Basic Operations");
    EXPECT_EQ(frmSelect.TreeView1.front().Image, "book1");
    EXPECT_EQ(frmSelect.TreeView1[1].Image, "book2");
    EXPECT_EQ(ws.ProblemType, 0);
}

TEST_F(Chooser, finds_beginnings_before_words_and_takes_nothing_that_it_has_not_found) {
    const auto found = [](std::string_view typed) {
        SelectText_Change(typed);
        return std::string(selectedTopic());
    };
    EXPECT_EQ(found("vOLume of a c"), "Volume of a Cone");
    EXPECT_EQ(found("meter conv"), "Meter Conversions");
    EXPECT_EQ(found("equation"), "Graphing A Linear Equation");
    EXPECT_EQ(frmSelect.IndexList.List, (std::vector<std::string>{"Graphing A Linear Equation", "Solving Equations"}));
    EXPECT_EQ(found(" graph two "), "Graphing A Line Using Two Points");
    EXPECT_EQ(found(""), "Absolute Values");

    EXPECT_EQ(found("Square Roots"), "");
    EXPECT_EQ(frmSelect.Label2.Text, "No topic has \"Square Roots\" in its name.");
    EXPECT_FALSE(frmSelect.Command1.Enabled);
    for (const auto& take : {+[] { SelectText_KeyDown(ChooserKey::Enter); }, +[] { IndexList_DblClick(); },
                             +[] { Select_Command1_Click(); }}) {
        take();
        EXPECT_TRUE(frmSelect.Loaded);
    }
    EXPECT_EQ(found("volume of a cone"), "Volume of a Cone");
    EXPECT_EQ(frmSelect.Label2.Text, "");
    SelectText_KeyDown(ChooserKey::Enter);
    EXPECT_EQ(ws.ProblemType, 3);
    EXPECT_FALSE(frmSelect.Loaded);
    EXPECT_FALSE(ws.ChooserClosed);
}

TEST_F(Chooser, shows_what_it_has_found_and_walks_through_it_as_it_stands_in_view) {
    SelectText_Change("equation");
    std::vector<std::string> shown;
    for (const ChooserWindow::Node& node : frmSelect.TreeView1) {
        if (node.Shown) shown.push_back(node.Text);
    }
    EXPECT_EQ(shown, (std::vector<std::string>{"Graphing", "Graphing A Linear Equation", "Equations/Polynomials",
                                               "Solving Equations"}));
    SelectText_Change("area of");
    SelectText_KeyDown(ChooserKey::Down);  // the best match stands second in the tree
    EXPECT_EQ(frmSelect.Text1.Text, "Area of a Triangle");
    SelectTab_Click(1);
    SelectText_KeyDown(ChooserKey::Up);
    EXPECT_EQ(frmSelect.Text1.Text, "Area of a Trapezoid");
    TreeView_Mark("Areas/Volumes");
    EXPECT_FALSE(frmSelect.Command1.Enabled) << "a heading is nothing to take";
    TreeView_Mark("Area of a Circle");
    Select_Command1_Click();
    EXPECT_EQ(ws.TopicName, "Area of a Circle");
}

TEST_F(Chooser, every_entry_of_the_list_can_be_taken) {
    const std::vector<std::string> names = frmSelect.IndexList.List;
    for (std::size_t i = 0; i < names.size(); ++i) {
        loadWindow("frmSelect");
        IndexList_Click(static_cast<int>(i));
        IndexList_KeyUp();
        EXPECT_EQ(frmSelect.Text1.Text, names[i]);
        IndexList_DblClick();
        EXPECT_EQ(ws.TopicName, names[i]);
        EXPECT_FALSE(frmSelect.Loaded) << names[i];
    }
}

TEST_F(Chooser, a_heading_leaves_it_open) {
    for (const ChooserWindow::Node& node : frmSelect.TreeView1) {
        if (node.Image != "book1") continue;
        TreeView_NodeClick(node.Text);
        EXPECT_TRUE(frmSelect.Loaded) << node.Text;
        EXPECT_EQ(ws.ProblemType, 0);
    }
}

TEST_F(Chooser, the_tree_is_walked_and_taken_by_keys) {
    TreeView_KeyDown(ChooserKey::Down, "Arithmetic");
    EXPECT_TRUE(frmSelect.Loaded);
    TreeView_KeyDown(ChooserKey::Enter, "Arithmetic");
    EXPECT_EQ(ws.ProblemType, 91);
    EXPECT_FALSE(frmSelect.Loaded);
}

TEST_F(Chooser, escape_keeps_the_problem_with_all_its_limits) {
    TreeViewSelect("Evaluating Polynomials");
    const int mask = ws.InputMask;
    for (const auto& escape :
         {+[] { SelectText_KeyDown(ChooserKey::Escape); }, +[] { IndexList_KeyDown(ChooserKey::Escape); },
          +[] { TreeView_KeyDown(ChooserKey::Escape, "Areas"); }, +[] { SelectTab_KeyDown(ChooserKey::Escape); }}) {
        ws.ChooserClosed = false;
        loadWindow("frmSelect");
        TreeView_NodeClick("Lengths");  // a look around
        escape();
        EXPECT_FALSE(frmSelect.Loaded);
        EXPECT_TRUE(ws.ChooserClosed);
        EXPECT_EQ(ws.ProblemType, 103);
        EXPECT_EQ(ws.InputMask, mask);
        EXPECT_EQ(ws.EquationMode, 3);
        EXPECT_EQ(ws.TopicName, "Evaluating Polynomials");
    }
}

TEST_F(Chooser, closing_the_window_is_a_cancel) {
    unloadWindow("frmSelect");
    EXPECT_TRUE(ws.ChooserClosed);
}

}  // namespace
}  // namespace ordwise
