// The catalogue: every name reachable, the identity that a choice sets, the list and the tree.
#include "Catalogue.hpp"
#include "PlainPlatform.hpp"
#include "RandomDraws.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace ordwise {
namespace {

class CatalogueTest : public ::testing::Test {
protected:
    CatalogueTest() { ws = Workspace{}; }
    PlainPlatform outside;
};

TEST_F(CatalogueTest, EveryTopicOfTheTreeCanBeChosenAndNothingElseIsATopic) {
    std::set<std::string_view> seen;
    for (const TreeRow& row : topicTree()) {
        TreeViewSelect(row.text);
        if (row.key.empty()) {
            EXPECT_NE(ws.ProblemType, 0) << row.text;
            EXPECT_EQ(ws.TopicName, row.text);
            EXPECT_FALSE(ws.HintText.empty()) << row.text;
            EXPECT_TRUE(seen.insert(row.text).second) << row.text << " stands twice";
        } else {
            EXPECT_EQ(ws.ProblemType, 0) << row.text;
        }
    }
    // Two more names of one topic lead to it, but the chooser shows it once.
    EXPECT_EQ(seen.size() + 2, topicTable().size());
}

TEST_F(CatalogueTest, EveryEntryHangsUnderAHeadingThatStandsBeforeIt) {
    std::set<std::string_view> headings{""};
    for (const TreeRow& row : topicTree()) {
        EXPECT_TRUE(headings.contains(row.parent)) << row.text;
        if (!row.key.empty()) {
            EXPECT_TRUE(headings.insert(row.key).second) << row.key;
        }
    }
}

TEST_F(CatalogueTest, NamesOfOneTopicShareItsCode) {
    for (const char* name : {"Means", "Means (Averages)", "Averages"}) {
        TreeViewSelect(name);
        EXPECT_EQ(ws.ProblemType, 62) << name;
        EXPECT_EQ(ws.TopicName, name);
    }
    TreeViewSelect("Arithmetic Principles");
    EXPECT_EQ(ws.ProblemType, 101);
    EXPECT_EQ(ws.EquationMode, 1);
}

TEST_F(CatalogueTest, AChoiceResetsTheLimitsOfTheOneBefore) {
    TreeViewSelect("Graphing A Linear Equation");
    EXPECT_EQ(ws.EquationMode, 2);
    EXPECT_EQ(ws.GraphableTopic, 1);
    EXPECT_EQ(ws.InputMask, 0b00000011000011);
    TreeViewSelect("Expanded Notation");
    EXPECT_EQ(ws.EquationMode, 0);
    EXPECT_EQ(ws.MaxDigits, 10);
    EXPECT_EQ(ws.InputMask, 1);
    TreeViewSelect("Volume of a Cone");  // boxes: the mask of the topic before stays and is not used
    EXPECT_EQ(ws.MaxDigits, 5);
    EXPECT_EQ(ws.InputMask, 1);
    EXPECT_EQ(ws.PreviousProblemType, 3);
}

TEST_F(CatalogueTest, AnUnknownNameLeavesTheChooserOpen) {
    TreeViewSelect("Modes");
    outside.windows.requests.clear();
    TreeViewSelect("modes");
    EXPECT_EQ(ws.ProblemType, 0);
    EXPECT_EQ(ws.TopicName, "Modes");
    EXPECT_TRUE(outside.windows.requests.empty());
}

TEST_F(CatalogueTest, TheIndexIsAlphabetical) {
    const auto list = indexList();
    EXPECT_EQ(list.size(), topicNames().size());
    EXPECT_EQ(list.front(), "Absolute Values");
    EXPECT_EQ(list.back(), "Work = Rate * Time");
    EXPECT_TRUE(std::is_sorted(list.begin(), list.end(), [](auto a, auto b) { return lowered(a) < lowered(b); }));
}

TEST_F(CatalogueTest, TopicsWithoutAHintOfTheirOwnGetAnExampleThatChanges) {
    std::set<std::string> hints;
    for (int i = 0; i < 20; ++i) hints.insert(hintOf(29));
    EXPECT_GT(hints.size(), 3U);  // within one second of a clock that stands
    for (const std::string& hint : hints) EXPECT_EQ(hint.rfind("Enter a number.  Example: ", 0), 0U) << hint;
    EXPECT_EQ(hintOf(104), "Enter a number of degrees, between 1 and 180.  Example: 90");
}

TEST_F(CatalogueTest, DrawsFollowASeedAndStayInTheirRange) {
    seedDraws(7);
    std::vector<int> first;
    for (int i = 0; i < 200; ++i) first.push_back(i % 2 == 0 ? RandInt() : RandInt2to9());
    outside.clock.mmss = 5959;
    seedDraws(7);
    std::set<int> values;
    for (int i = 0; i < 200; ++i) {
        const int draw = i % 2 == 0 ? RandInt() : RandInt2to9();
        EXPECT_EQ(draw, first[static_cast<std::size_t>(i)]);
        values.insert(draw);
    }
    EXPECT_EQ(values, (std::set<int>{1, 2, 3, 4, 5, 6, 7, 8, 9}));
    unseedDraws();
}

}  // namespace
}  // namespace ordwise
