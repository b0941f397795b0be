// Tests as documents for other programs: what another program would stumble over.
#include "AnswerSpellings.hpp"
#include "Documents.hpp"
#include "PlainPlatform.hpp"
#include "PracticeTest.hpp"
#include "PracticeTestTopics.hpp"
#include "TextTools.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace ordwise {
namespace {

std::size_t countOf(const std::string& text, std::string_view piece) {
    return split(replaced(text, piece, "\x01"), '\x01').size() - 1;
}

// Every tag closed in its order. Elements without content are those of HTML.
bool isBalanced(const std::string& text) {
    std::vector<std::string> open;
    for (std::size_t at = text.find('<'); at != std::string::npos; at = text.find('<', at + 1)) {
        const std::size_t end = text.find('>', at);
        const std::string tag = text.substr(at + 1, std::min(text.find_first_of(" >", at), end) - at - 1);
        if (tag.starts_with("!") || tag.starts_with("?") || tag == "meta" || tag == "br") continue;
        if (!tag.starts_with("/")) {
            open.push_back(tag);
        } else if (open.empty() || open.back() != tag.substr(1)) {
            return false;
        } else {
            open.pop_back();
        }
    }
    return open.empty();
}

// One problem of every topic that a test can have, in tests of ten.
TEST(Documents, OfEveryTopicAreWholeAndStandAlone) {
    PlainPlatform outside;
    ws = Workspace{};
    ResetWindows();
    const auto topics = testTopicTable();
    for (std::size_t first = 0; first < topics.size(); first += mostSections) {
        TestPlan plan;
        plan.heading = {"A < B & C", "", "100%"};
        plan.key = AnswerKey::Steps;
        plan.versions = 2;
        plan.solved = true;
        std::size_t problems = 0;
        for (std::size_t i = first; i < std::min(first + mostSections, topics.size()); ++i, problems += 2)
            plan.sections.push_back({std::string(topics[i].topic), 1, true});
        const Document document = documentOf(plan, makeTests(plan));

        const std::string html = htmlOf(document);
        EXPECT_TRUE(isBalanced(html));
        EXPECT_FALSE(contains(html, "://")) << "an address";
        EXPECT_TRUE(contains(html, "<h1>A &lt; B &amp; C</h1>"));
        EXPECT_EQ(countOf(html, "class=\"number\""), 2 * problems) << "each with its answer";
        EXPECT_EQ(countOf(latexDocumentOf(document), "\\problem{"), 2 * problems);

        const std::string bank = moodleOf(document);
        EXPECT_TRUE(isBalanced(bank));
        EXPECT_EQ(countOf(bank, "<questiontext"), problems);
        for (const DocumentSection& section : document.tests[0].sections) {
            const AnswerSpellings answer = spellingsOf(section.problems.at(0));
            EXPECT_EQ(answer.spellings.empty(), answer.kind == BankAnswer::Essay) << section.problems[0].topic;
        }
    }
}

TEST(AnswerSpellings, AreThoseThatAreRight) {
    const auto spelled = [](int type, const char* text, const char* answer) {
        return joined(spellingsOf({"", type, 1, text, {}, answer}).spellings, "|");
    };
    EXPECT_EQ(spelled(101, "", "x=-#3/4#"), "-3/4|-0.75|-#3/4#|x=-3/4|x = -3/4|x=-0.75|x = -0.75|x=-#3/4#|x = -#3/4#");
    EXPECT_EQ(spelled(80, "", "#3/4#"), "3/4|#3/4#") << "a decimal is no fraction";
    EXPECT_EQ(spelled(20, "#48/?# = #73/75#", "#48/49.32# = #73/75#"), "49.32");
    EXPECT_EQ(spelled(22, "", "0.75 = time"), "0.75");
    EXPECT_EQ(spelled(110, "", "959^o^ F = 515^o^ C"), "515");
    EXPECT_EQ(spelled(65, "", "8.9 * 10^2^"), "8.9 * 10^2|8.9*10^2|8.9 * 10^2^|8.9*10^2^");
    EXPECT_EQ(spelled(102, "", "2x^2^-3"), "2x^2-3|2x^2 - 3|2x^2^-3");
    EXPECT_EQ(spelled(85, "", "915 is COMPOSITE because 915 has more."), "composite");
    EXPECT_EQ(spelled(107, "", "Both coordinates are negative - Quadrant III"),
              "Quadrant III|III|3|Quadrant 3|Both coordinates are negative - Quadrant III");
    const AnswerSpellings rounded = spellingsOf({"", 7, 1, "", {}, "Area = 84.82"});
    EXPECT_EQ(rounded.kind, BankAnswer::Number);
    EXPECT_EQ(rounded.tolerance, "0.005");
    EXPECT_EQ(spellingsOf({"", 108, 1, "", {}, "The graph of (1,2)"}).kind, BankAnswer::Essay);
}

}  // namespace
}  // namespace ordwise
