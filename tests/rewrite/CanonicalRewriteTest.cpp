// The rewrite by itself: cells, marks, and the line made of the engine's tokens. Texts stand here
// as the rewrite meets them, also those that the input check would refuse.
#include "CanonicalRewrite.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <gtest/gtest.h>
#include <string>
#include <utility>
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
};

TEST_F(CanonicalRewrite, WritesTheMarkupOfWhatIsTyped) {
    const std::pair<const char*, const char*> cases[] = {
        // What nobody types is closed.
        {"", ""},
        {"3/4", "#3/4#"},
        {"3/", "#3/#"},
        {"x^2+1", "x^2^+1"},
        {"x^1y", "x^1^y"},
        {"~9+1", "~9~+1"},
        {"(1+2)/3", "#(1+2)/3#"},
        {"2(x/3)", "2(#x/3#)"},
        {"5+9x^-2/6-8x^-2", "5+#9x^-2^/6#-8x^-2^"},
        {"1.25/345", "#1.25/345#"},
        {"3/x", "#3/x#"},
        {"(1)/2", "#(1)/2#"},
        {"1/(2)", "#1/(2)#"},
        {"x^2/3", "#x^2^/3#"},
        {"x^-2/3", "#x^-2^/3#"},
        {"2^3+1/2", "2^3^+#1/2#"},
        // A missing exponent is a question mark.
        {"x^", "x^?^"},
        {"x^-", "x^-^"},
        {"x/2^", "#x/2^?^#"},
        // Roots and fractions nest without crossing their marks.
        {"~1/2", "~#1/2#~"},
        {"~1/2+3", "~#1/2#~+3"},
        {"~x/2", "~#x/2#~"},
        {"~x/2-3", "~#x/2#~-3"},
        {"1/~2", "#1/~2~#"},
        {"1/~2+3", "#1/~2~#+3"},
        {"1/~2*3", "#1/~2~#*3"},
        {"(x/~2)", "(#x/~2~#)"},
        // An exponent stays inside its fraction.
        {"2/x^-1+3", "#2/x^-1^#+3"},
        {"2/x^3*4", "#2/x^3^#*4"},
        {"x/(y^2+1)", "#x/(y^2^+1)#"},
        {"3/4x^2+1", "#3/4x^2^#+1"},
        // A one before a root is left out.
        {"2*1~9", "2*~9~"},
        {"1~4+x/2", "~4~+#x/2#"},
        {"11~9", "11~9~"},
        // Parentheses under a bar keep their product.
        {"x/(2)(3)", "#x/(2)#*(3)"},
        {"x/2(3)", "#x/2#(3)"},
        // A numerator loses the fractions in it.
        {"1/2/3", "#1/2/3#"},
        {"5+(1/2)/3", "5+#(1/2)/3#"},
        // More closing parentheses than open ones are drawn as typed.
        {"1,2)-(3,4)-5/x", "1,2)-(3,4)-#5/x#"},
    };
    for (const auto& [typed, wanted] : cases) EXPECT_EQ(markup(typed), wanted) << typed;
}

TEST_F(CanonicalRewrite, FractionArithmeticDividesFractions) {
    ws.ProblemType = 76;
    EXPECT_EQ(markup("1/2/3/4"), "#1/2#{#3/4#");
    EXPECT_EQ(markup("1/2/"), "#1/2#{");
    EXPECT_EQ(markup("1/2-3/"), "#1/2#-#3/#");
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
