// The rewrite by itself: cells, marks, and the line made of the engine's tokens. Texts stand here
// as the rewrite meets them, also those that the input check would refuse.
#include "CanonicalRewrite.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace ordwise {
namespace {

class CanonicalRewrite : public testing::Test {
protected:
    void SetUp() override {
        ws = Workspace{};
        ResetWindows();
        ws.ProblemType = 102;
    }

    static void type(const std::string& text) {
        ClearInput();
        for (const char c : text) {
            ws.InputTokens.set(ws.InputLast, std::string(1, c));
            ws.InputLast += 1;
        }
    }

    static std::vector<std::string> cells(const std::string& text) {
        type(text);
        GroupInput();
        std::vector<std::string> cells;
        for (int i = 1; i <= ws.CanonLast; ++i) cells.push_back(ws.CanonTokens[i]);
        return cells;
    }

    static std::string markup(const std::string& text) {
        type(text);
        GroupInput();
        return RewriteAll();
    }

    // The tokens from slot 1, as the engine leaves them.
    static std::string line(const std::vector<std::string>& tokens) {
        ws.TokenBuffer.clear();
        ws.TokenLast = 1;
        for (const std::string& token : tokens) {
            ws.TokenBuffer.set(ws.TokenLast, token);
            ws.TokenLast += 1;
        }
        return CanonicalLine();
    }

    using Cells = std::vector<std::string>;
};

TEST_F(CanonicalRewrite, GroupsDigitsAndPointsToNumbers) {
    EXPECT_EQ(cells("12.5+.5"), (Cells{"12.5", "+", ".5"}));
    EXPECT_EQ(cells(""), Cells{});
}

TEST_F(CanonicalRewrite, JoinsPlainFractionsToOneCell) {
    EXPECT_EQ(cells("3/4"), Cells{"3/4"});
    EXPECT_EQ(cells("1.25/345"), Cells{"1.25/345"});
    EXPECT_EQ(cells("1/2/3/4"), (Cells{"1/2", "/", "3/4"}));
}

TEST_F(CanonicalRewrite, LetsOtherBarsStandAlone) {
    EXPECT_EQ(cells("3/"), (Cells{"3", "/"}));
    EXPECT_EQ(cells("3/x"), (Cells{"3", "/", "x"}));
    EXPECT_EQ(cells("x/3"), (Cells{"x", "/", "3"}));
    EXPECT_EQ(cells("(1)/2"), (Cells{"(", "1", ")", "/", "2"}));
    EXPECT_EQ(cells("1/(2)"), (Cells{"1", "/", "(", "2", ")"}));
    EXPECT_EQ(cells("x^2/3"), (Cells{"x", "^", "2", "/", "3"}));
    EXPECT_EQ(cells("x^-2/3"), (Cells{"x", "^", "-", "2", "/", "3"}));
    EXPECT_EQ(cells("2^3+1/2"), (Cells{"2", "^", "3", "+", "1/2"}));
}

TEST_F(CanonicalRewrite, ClosesWhatNobodyTypes) {
    EXPECT_EQ(markup(""), "");
    EXPECT_EQ(markup("3/4"), "#3/4#");
    EXPECT_EQ(markup("3/"), "#3/#");
    EXPECT_EQ(markup("x^2+1"), "x^2^+1");
    EXPECT_EQ(markup("x^1y"), "x^1^y");
    EXPECT_EQ(markup("~9+1"), "~9~+1");
    EXPECT_EQ(markup("(1+2)/3"), "#(1+2)/3#");
    EXPECT_EQ(markup("2(x/3)"), "2(#x/3#)");
    EXPECT_EQ(markup("5+9x^-2/6-8x^-2"), "5+#9x^-2^/6#-8x^-2^");
}

TEST_F(CanonicalRewrite, ShowsAQuestionMarkForAMissingExponent) {
    EXPECT_EQ(markup("x^"), "x^?^");
    EXPECT_EQ(markup("x^-"), "x^-^");
    EXPECT_EQ(markup("x/2^"), "#x/2^?^#");
}

TEST_F(CanonicalRewrite, NestsRootsAndFractionsWithoutCrossingTheirMarks) {
    EXPECT_EQ(markup("~1/2"), "~#1/2#~");
    EXPECT_EQ(markup("~1/2+3"), "~#1/2#~+3");
    EXPECT_EQ(markup("~x/2"), "~#x/2#~");
    EXPECT_EQ(markup("~x/2-3"), "~#x/2#~-3");
    EXPECT_EQ(markup("1/~2"), "#1/~2~#");
    EXPECT_EQ(markup("1/~2+3"), "#1/~2~#+3");
    EXPECT_EQ(markup("1/~2*3"), "#1/~2~#*3");
    EXPECT_EQ(markup("(x/~2)"), "(#x/~2~#)");
}

TEST_F(CanonicalRewrite, KeepsAnExponentInsideItsFraction) {
    EXPECT_EQ(markup("2/x^-1+3"), "#2/x^-1^#+3");
    EXPECT_EQ(markup("2/x^3*4"), "#2/x^3^#*4");
    EXPECT_EQ(markup("x/(y^2+1)"), "#x/(y^2^+1)#");
    EXPECT_EQ(markup("3/4x^2+1"), "#3/4x^2^#+1");
}

TEST_F(CanonicalRewrite, LeavesOutAOneBeforeARoot) {
    EXPECT_EQ(markup("2*1~9"), "2*~9~");
    EXPECT_EQ(markup("1~4+x/2"), "~4~+#x/2#");
    EXPECT_EQ(markup("11~9"), "11~9~");
}

TEST_F(CanonicalRewrite, ParenthesesUnderABarKeepTheirProduct) {
    EXPECT_EQ(markup("x/(2)(3)"), "#x/(2)#*(3)");
    EXPECT_EQ(markup("x/2(3)"), "#x/2#(3)");
}

TEST_F(CanonicalRewrite, ANumeratorLosesTheFractionsInIt) {
    EXPECT_EQ(markup("1/2/3"), "#1/2/3#");
    EXPECT_EQ(markup("5+(1/2)/3"), "5+#(1/2)/3#");
}

TEST_F(CanonicalRewrite, FractionArithmeticDividesFractions) {
    ws.ProblemType = 76;
    EXPECT_EQ(markup("1/2/3/4"), "#1/2#{#3/4#");
    EXPECT_EQ(markup("1/2/"), "#1/2#{");
    EXPECT_EQ(markup("1/2-3/"), "#1/2#-#3/#");
}

TEST_F(CanonicalRewrite, LeavesTheCellsInEveryFourthSlot) {
    ASSERT_EQ(markup("9x^2/6+~4"), "#9x^2^/6#+~4~");
    std::string text;
    for (int slot = 4; slot <= ws.CanonLast; slot += 4) text += ws.CanonTokens[slot];
    EXPECT_EQ(text, "9x^2/6+~4");
    EXPECT_EQ(ws.CanonLast, 4 * 10);
}

TEST_F(CanonicalRewrite, MoreClosingParenthesesThanOpenOnesAreDrawnAsTyped) {
    EXPECT_EQ(markup("1,2)-(3,4)-5/x"), "1,2)-(3,4)-#5/x#");
}

TEST_F(CanonicalRewrite, TextBeyondTheCellsIsASubscriptFault) {
    type(std::string(499, 'x'));
    GroupInput();
    EXPECT_NO_THROW(rewriteCells());
    type(std::string(500, 'x'));
    GroupInput();
    EXPECT_THROW(rewriteCells(), RunTimeFault);
}

TEST_F(CanonicalRewrite, ALineLeavesOutWhatAStudentDoesNotWrite) {
    EXPECT_EQ(line({"+", "1", "x"}), "x");
    EXPECT_EQ(line({"3", "x", "^", "1"}), "3x");
    EXPECT_EQ(line({"-", "1", "x", "=", "+", "3"}), "-x=3");
    EXPECT_EQ(line({"+", "2", "(", "+", "x", "+", "1", ")"}), "2(x+1)");
    EXPECT_EQ(line({"|", "+", "5", "|", "+", "3"}), "|5|+3");
    EXPECT_EQ(line({"+", "x", "^", "-", "1", "y"}), "x^-1^y");
    EXPECT_EQ(line({"+", "3~5", "-", "~2"}), "3~5~-~2~");
    EXPECT_EQ(line({"+", "1~5"}), "~5~");
}

TEST_F(CanonicalRewrite, ALineKeepsTheHighlight) {
    EXPECT_EQ(line({"+", "x", "+", "3", "[", "-", "3", "]", "=", "12"}), "x+3[-3]=12");
    EXPECT_EQ(line({"+", "2", "x", "/", "[", "2", "]", "=", "4"}), "#2x/[2#]=4");
    EXPECT_EQ(line({"+", "x", "^", "2", "[", "+", "1", "]"}), "x^2^[+1]");
}

TEST_F(CanonicalRewrite, ALineOfTheEngineDoesNotTouchSolve) {
    setSolveEnabled(false);
    EXPECT_EQ(line({"+", "4"}), "4");
    EXPECT_FALSE(frmMain.mnuSolve.Enabled);
    EXPECT_EQ(markup("4"), "4");
    EXPECT_TRUE(frmMain.mnuSolve.Enabled);
}

}  // namespace
}  // namespace ordwise
