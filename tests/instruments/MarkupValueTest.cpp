// The instruments are tested too: an evaluator that calls a wrong line right would let every fault by.
#include "MarkupValue.hpp"

#include <gtest/gtest.h>

namespace ordwise::test {
namespace {

std::string valueText(std::string_view line, const Bindings& bindings = {}) {
    const auto value = valueOfMarkup(line, bindings);
    return value ? value->toString() : "unreadable";
}

std::string complaint(std::string_view line) {
    std::string why;
    const bool fine = wellFormed(line, &why);
    EXPECT_EQ(fine, why.empty());
    return why;
}

TEST(WellFormed, TakesWhatTheProgramDraws) {
    for (const char* line :
         {"", "2+3*4-5", "[#1/2#]*#1/1#+[#3/1#]*#2/2#", "#(a/b)/c#", "x^-2^", "~#1/2#~", "#3~2~/[4]#", "[x", "x]",
          "Area = ` * radius^2^   (` equals about 3.14)", "=#-b\\~b^2^-4ac~/2a# for a", "180^o^ (degrees)"}) {
        EXPECT_EQ(complaint(line), "") << line;
    }
}

TEST(WellFormed, NamesWhatIsWrong) {
    EXPECT_EQ(complaint("x^2"), "a raised text is left open");
    EXPECT_EQ(complaint("x^^"), "a raised text is empty");
    EXPECT_EQ(complaint("x^[2]^"), "a raised text holds a mark");
    EXPECT_EQ(complaint("#1/2"), "a fraction is left open");
    EXPECT_EQ(complaint("#1#"), "a fraction has no bar");
    EXPECT_EQ(complaint("#(1/2)#"), "a fraction has no bar");
    EXPECT_EQ(complaint("#1/#"), "half a fraction is empty");
    EXPECT_EQ(complaint("#[]/2#"), "half a fraction is empty");
    EXPECT_EQ(complaint("~~"), "a radical is empty");
    EXPECT_EQ(complaint("3~16"), "a radical is left open");
    EXPECT_EQ(complaint("#~#1/2#~/3#"), "a radical is left open");
    EXPECT_EQ(complaint("#" + std::string(51, '1') + "/2#"), "half a fraction is longer than 50 characters");
    EXPECT_EQ(complaint("~" + std::string(51, '1') + "~"), "a radicand is longer than 50 characters");
    EXPECT_EQ(complaint(std::string(3001, '1')), "the line is longer than 3000 characters");
    EXPECT_EQ(complaint("#" + std::string(50, '1') + "/2#"), "");
}

TEST(ValueOfMarkup, ReadsArithmeticAsAPersonDoes) {
    EXPECT_EQ(valueText("2+3*4-5"), "9");
    EXPECT_EQ(valueText("-3^2^"), "-9");
    EXPECT_EQ(valueText("(-3)^2^"), "9");
    EXPECT_EQ(valueText("2^-2^"), "1/4");
    EXPECT_EQ(valueText("#1/2#^2^"), "1/4");
    EXPECT_EQ(valueText("0.01+2.37"), "119/50");
    EXPECT_EQ(valueText(".5+7."), "15/2");
    EXPECT_EQ(valueText("9.998E+07"), "99980000");
    EXPECT_EQ(valueText("1E-04"), "1/10000");
    EXPECT_EQ(valueText("[#1/2#]*#3/3#-[#1/4#]*#3/3#"), "1/4");
    EXPECT_EQ(valueText("#1/2#{#3/4#"), "2/3");
    EXPECT_EQ(valueText("#1/2#{#3/4#*#4/5#"), "8/15");
    EXPECT_EQ(valueText("#(6+4-3)/12#"), "7/12");
    EXPECT_EQ(valueText("8/2/2"), "2");
}

TEST(ValueOfMarkup, MultipliesWhatStandsSideBySide) {
    EXPECT_EQ(valueText("2(3+4)(1+2)"), "42");
    EXPECT_EQ(valueText("8[(4)]^2^"), "128");
    EXPECT_EQ(valueText("4xy", {{'x', {2}}, {'y', {3}}}), "24");
    EXPECT_EQ(valueText("-#2x/3#+2", {{'x', {3}}}), "0");
    EXPECT_EQ(valueText("#19/2x^2^#", {{'x', {2}}}), "19/8");
    EXPECT_EQ(valueText("2|3|"), "6");
}

TEST(ValueOfMarkup, KeepsRootsExact) {
    EXPECT_EQ(valueText("5~18~-~8~"), "13~2~");
    EXPECT_EQ(valueText("3~4~+2~9~"), "12");
    EXPECT_EQ(valueText("~#1/2#~"), "1/2~2~");
    EXPECT_EQ(valueText("~2~*~8~"), "4");
    EXPECT_EQ(valueText("#1/~2~#"), "1/2~2~");
    EXPECT_EQ(valueText("#6~2~/2~2~#"), "3");
}

TEST(ValueOfMarkup, TakesBarsAsSize) {
    EXPECT_EQ(valueText("|-5|+3"), "8");
    EXPECT_EQ(valueText("|3-8|*2"), "10");
    EXPECT_EQ(valueText("2*|3-|"), "unreadable");
    EXPECT_EQ(valueText("|1-~2~|"), "-1+1~2~");
}

TEST(ValueOfMarkup, TellsWhatCannotBeReadFromWhatDoesNotExist) {
    for (const char* line : {"", "2+", "2*+", "3x", "x^2", "1)2", "#1/2", "Division by 0!", "2 + 3", "1.2.3"}) {
        EXPECT_EQ(valueText(line), "unreadable") << line;
    }
    EXPECT_EQ(valueText("#5/0#"), "undefined");
    EXPECT_EQ(valueText("~-4~"), "undefined");
    EXPECT_FALSE(sameExpression("#5/0#", "#5/0#"));
}

TEST(SameExpression, ComparesPolynomialsByTheirValues) {
    EXPECT_TRUE(sameExpression("9(3x^2^+64)-#3/4#+4x", "27x^2^+4x+#2301/4#"));
    EXPECT_TRUE(sameExpression("(x+1)(x-1)", "x^2^-1"));
    EXPECT_FALSE(sameExpression("(x+1)(x-1)", "x^2^+1"));
    EXPECT_FALSE(sameExpression("3x+2y", "2x+3y"));
    EXPECT_TRUE(sameExpression("#9x^-2^/6#+8x^-2^", "#19/2x^2^#"));
    EXPECT_TRUE(sameExpression("0.5+#1/3#", "0.83", 0.005L));
    EXPECT_FALSE(sameExpression("0.5+#1/3#", "0.83"));
}

TEST(SameEquation, ComparesSolutions) {
    EXPECT_TRUE(sameEquation("2x+3=7", "#2x/[2]#=#4/[2]#"));
    EXPECT_TRUE(sameEquation("2x+3=7", "x=2"));
    EXPECT_FALSE(sameEquation("2x+3=7", "x=-2"));
    EXPECT_TRUE(sameEquation("3=x", "x=3"));
    EXPECT_TRUE(sameEquation("2x+3y=6", "y=-#2x/3#+2"));
    EXPECT_FALSE(sameEquation("2x+3y=6", "y=#2x/3#+2"));
    EXPECT_TRUE(sameEquation("x=x", "0=0"));
    EXPECT_TRUE(sameEquation("x+1=x+2", "1$2"));
    EXPECT_FALSE(sameEquation("x=x", "x=0"));
    EXPECT_FALSE(sameEquation("x=x", "2$2"));
    EXPECT_FALSE(solutionSetOf("x^2^=4"));
}

}  // namespace
}  // namespace ordwise::test
