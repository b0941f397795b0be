// What holds for any keys on any paper topic:
//
//  1. nothing faults, and every line can be drawn (without Backspace);
//  2. a refused key leaves everything but the light and the reason, and gives a reason;
//  3. without Backspace the marks of the markup are balanced and do not cross;
//  4. the typed text, typed again on a fresh worksheet, gives the same (without Backspace);
//  5. Backspace to the start leaves an empty paper, as if nothing had been typed;
//  6. undo leaves what was there before the key, with Backspace as well, and redo what came after it.
//
// Backspace does not open again what an erased key had closed, so that a root in a root can be
// typed with it, which no renderer draws, and a text that cannot be typed again.
#include "Catalogue.hpp"
#include "GuidedInput.hpp"
#include "KeyDesk.hpp"
#include "PlainPlatform.hpp"
#include "Sanitized.hpp"
#include "TypingHistory.hpp"
#include "Windows.hpp"
#include "WorksheetLayout.hpp"
#include "Workspace.hpp"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <tuple>
#include <vector>

namespace ordwise::test {
namespace {

constexpr int sequencesPerTopic = rounds(40);
constexpr int keysPerSequence = 60;

// All that typing changes and that something reads later.
auto stateOfInput() {
    return std::make_tuple(typedText(), shownMarkup(), solveEnabled(), static_cast<int>(ws.InputLast),
                           static_cast<int>(ws.ParenDepth), static_cast<int>(ws.BarDepth),
                           static_cast<int>(ws.ParenSide), ws.RootOpen, ws.BarOpen, ws.FractionOpen, ws.EqualsTyped,
                           ws.ExponentOpen, ws.InputOpen, ws.LineEndX);
}

// An empty paper that has been drawn once, as the first refused key leaves it.
void startOn(const TopicRow& topic) {
    chooseFresh(topic.name);
    Form_KeyPress(backspaceKey);
}

// "#", "^" and "~" open and close in turn, the inner one first, and a fraction has its bar.
bool marksAreBalanced(const std::string& markup) {
    std::string open;
    bool barSeen = false;
    for (const char c : markup) {
        if (c == '/' && open.find('#') != std::string::npos) barSeen = true;
        if (c != '#' && c != '^' && c != '~') continue;
        if (open.find(c) == std::string::npos) {
            open += c;
            if (c == '#') barSeen = false;
            continue;
        }
        if (open.back() != c || (c == '#' && !barSeen)) return false;
        open.pop_back();
    }
    return open.empty();
}

// Keys of a topic: mostly such as its mask lets through, now and then any other.
class KeyDraws {
public:
    explicit KeyDraws(unsigned seed) : random_(seed) {}

    std::string next(const TopicRow& topic, bool withBackspace) {
        static const std::vector<std::string> rare = keysOf("q Z#[]?!&\\é%:,|~=^)(<");
        if (withBackspace && oneIn(5)) return std::string(backspaceKey);
        if (oneIn(12)) return pick(rare);
        // A key for each place of the mask, from the left.
        static const std::vector<std::string> byBit = {"%", ":",  ",", ".", "|", "~",  "xyz",
                                                       "=", "()", "^", "/", "*", "+-", "0123456789"};
        if (topic.mask.empty() || oneIn(3)) return one("0123456789");
        for (;;) {
            const std::size_t bit = below(byBit.size());
            if (topic.mask[bit] == '1') return one(byBit[bit]);
        }
    }

private:
    std::size_t below(std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(random_); }
    bool oneIn(std::size_t n) { return below(n) == 0; }
    std::string one(const std::string& of) { return std::string(1, of[below(of.size())]); }
    const std::string& pick(const std::vector<std::string>& of) { return of[below(of.size())]; }

    std::mt19937 random_;
};

using InputState = decltype(stateOfInput());

// Where a line cannot be drawn its end is that of the line before.
InputState textOf(InputState state) {
    std::get<double>(state) = 0;
    return state;
}

void pressAndWatch(const std::string& key) {
    const InputState before = stateOfInput();
    const KeyOutcome outcome = Form_KeyPress(key);
    if (outcome == KeyOutcome::Accepted) {
        const InputState after = stateOfInput();
        undoKey();
        EXPECT_EQ(textOf(stateOfInput()), textOf(before)) << "undone";
        redoKey();
        EXPECT_EQ(textOf(stateOfInput()), textOf(after)) << "redone";
        return;
    }
    EXPECT_EQ(stateOfInput(), before);
    if (outcome == KeyOutcome::Refused) {
        EXPECT_NE(ws.ExplainOverrideText, "");
    }
}

void pressRandomKeys(KeyDraws& draws, const TopicRow& topic, bool withBackspace) {
    std::string pressed;
    for (int i = 0; i < keysPerSequence && !testing::Test::HasFailure(); ++i) {
        const std::string key = draws.next(topic, withBackspace);
        pressed += key == backspaceKey ? "<-" : key;
        SCOPED_TRACE(std::string(topic.name) + "  " + pressed);
        ASSERT_NO_THROW(pressAndWatch(key));
        EXPECT_TRUE(withBackspace || marksAreBalanced(shownMarkup())) << shownMarkup();
    }
}

void expectSameWhenTypedAgain(const TopicRow& topic) {
    const InputState state = stateOfInput();
    const std::string text = typedText();
    startOn(topic);
    for (const std::string& key : keysOf(text)) Form_KeyPress(key);
    EXPECT_EQ(stateOfInput(), state) << topic.name << "  " << text;
}

void eraseAll() {
    while (Form_KeyPress(backspaceKey) == KeyOutcome::Accepted) {
    }
}

class AnyKeys : public testing::TestWithParam<bool> {};

TEST_P(AnyKeys, KeepThePaperInOrder) {
    const bool withBackspace = GetParam();
    const PlainPlatform platform;
    KeyDraws draws(withBackspace ? 11 : 7);
    for (const TopicRow& topic : topicTable()) {
        if (!isOnPaper(topic.code)) continue;
        for (int i = 0; i < sequencesPerTopic && !HasFailure(); ++i) {
            startOn(topic);
            const InputState empty = stateOfInput();
            pressRandomKeys(draws, topic, withBackspace);
            if (!withBackspace) expectSameWhenTypedAgain(topic);
            eraseAll();
            EXPECT_EQ(stateOfInput(), empty) << topic.name;
        }
    }
    EXPECT_TRUE(withBackspace || platform.dialogs.messages.empty());
}

INSTANTIATE_TEST_SUITE_P(Typed, AnyKeys, testing::Values(false, true));

TEST(MarksAreBalanced, TellsGoodMarkupFromBad) {
    for (const char* good : {"", "x+3", "#3/4#+x^2^", "~#1/2#~", "#1/~2~#", "~~", "x^?^", "#9x^-2^/6#"}) {
        EXPECT_TRUE(marksAreBalanced(good)) << good;
    }
    for (const char* bad : {"x^2", "#1/2", "#1/~2#~", "#12#", "#x^2#^", "~2~3~"}) {
        EXPECT_FALSE(marksAreBalanced(bad)) << bad;
    }
}

}  // namespace
}  // namespace ordwise::test
