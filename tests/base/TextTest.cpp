// Token predicates and the small operations on text.
#include "TextTools.hpp"
#include "TokenPredicates.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ordwise {
namespace {

using Pieces = std::vector<std::string>;

TEST(IsLetter, ComparesWholeStrings) {
    for (const char* text : {"a", "z", "A", "Z", "x2", "abc"}) EXPECT_TRUE(IsLetter(text)) << text;
    for (const char* text : {"", "1", "2x", "[", "`", "{", "^", "~", "zz", "Zx", " ", "\xC3\xA9"})
        EXPECT_FALSE(IsLetter(text)) << text;
}

TEST(IsOperator, KnowsTheFourAndNoLongerText) {
    for (const char* text : {"+", "-", "*", "/"}) EXPECT_TRUE(IsOperator(text)) << text;
    for (const char* text : {"", "^", "=", "--", "-1"}) EXPECT_FALSE(IsOperator(text)) << text;
    EXPECT_TRUE(IsSign("-"));
    EXPECT_TRUE(IsSign("+"));
    EXPECT_FALSE(IsSign("*"));
    EXPECT_FALSE(IsSign("+1"));
}

TEST(IsFractionToken, WantsADigitBeforeTheBar) {
    for (const char* text : {"3/4", "3/", "-1/2", "12/x", "x2/3"}) EXPECT_TRUE(IsFractionToken(text)) << text;
    for (const char* text : {"", "/", "/4", "x/4", ")/2", "34", "3./4", "*"})
        EXPECT_FALSE(IsFractionToken(text)) << text;
}

TEST(Split, KeepsEmptyPieces) {
    EXPECT_EQ(split("4,,6", ','), (Pieces{"4", "", "6"}));
    EXPECT_EQ(split(",4,", ','), (Pieces{"", "4", ""}));
    EXPECT_EQ(split("", ','), (Pieces{""}));
    EXPECT_EQ(joined(split(",4,,6", ','), ","), ",4,,6");
    EXPECT_EQ(joined(std::vector<std::string>{"", "+", "", "3/4", "x", ""}), "+3/4x");
}

TEST(Replaced, GoesOnBehindWhatItPutIn) {
    EXPECT_EQ(replaced("a-b-c", "-", "--"), "a--b--c");
    EXPECT_EQ(replaced("aaa", "aa", "a"), "aa");
    EXPECT_EQ(replaced("abc", "x", "y"), "abc");
}

TEST(Trimmed, TakesBlanksFromTheEndsOnly) {
    EXPECT_EQ(trimmed("  a b "), "a b");
    EXPECT_EQ(trimmed("   "), "");
}

TEST(Characters, AreWholeAndBrokenBytesStandAlone) {
    EXPECT_EQ(characters("a\xC3\xA9\xE2\x88\x9A"), (Pieces{"a", "\xC3\xA9", "\xE2\x88\x9A"}));
    EXPECT_EQ(characters("\xC3(\xA9"), (Pieces{"\xC3", "(", "\xA9"}));
    EXPECT_EQ(characters("\xE2\x88"), (Pieces{"\xE2", "\x88"}));
    EXPECT_EQ(characters("\xF0\x9F\x98\x80!"), (Pieces{"\xF0\x9F\x98\x80", "!"}));
}

}  // namespace
}  // namespace ordwise
