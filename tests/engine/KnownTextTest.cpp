// A commit that finds its text in the store leaves what a first commit leaves, whatever came between.
#include "CanonicalRewrite.hpp"
#include "FaultOf.hpp"
#include "SolveText.hpp"

#include <gtest/gtest.h>

#include <sstream>

namespace ordwise::test {
namespace {

const std::vector<std::string> texts = {"2x+3=7",  "2x+3=x+7",          "+2x+3=7", "3(x+2)-2(x-1)", "-(x+1)(x-2)^2",
                                        "|3-8|*2", "[1/2]*3/3+[1/3]*2", "5~18-~8", "x^-2/6+8x^2",   "3*(x+1)"};

void freshCommit(const std::string& text, int side) {
    ws = Workspace();
    ws.InputTokens.set(0, "x");
    ws.InputLast = 1;
    ws.CurrentSide = side;
    ExplodeTokens(text);
    CommitStep({.silent = true});
}

void commit(const std::string& text, int side) {
    ws.CurrentSide = side;
    ExplodeTokens(text);
    CommitStep({.silent = true});
}

// All that a rule may read after a commit: tokens, line, groups and the terms of the side.
std::string whatStands() {
    std::ostringstream out;
    for (int slot = 0; slot <= ws.TokenLast + 5; ++slot) out << ws.TokenBuffer[slot] << ' ';
    out << ws.TokenLast << ' ' << CanonicalLine() << ' ' << ImplodeCanon() << ' ' << ws.MaxDepth;
    for (int depth = 0; depth <= ws.MaxDepth; ++depth) {
        for (int group = 0; group <= ws.GroupTable[depth].lastGroup; ++group) {
            const ExprGroup& record = groupOf(depth, group);
            out << "\n"
                << depth << ' ' << group << ": " << record.openIndex << ' ' << record.closeIndex << ' '
                << record.powerIndex << ' ' << record.prefixCoef << record.prefixText << ' ' << record.power << ' '
                << record.nextGroup << record.isAbsolute << ws.GroupProduct[depth][group];
            for (int t = 0; t <= ws.TermLast[depth][group] + 1; ++t) {
                const ExprTerm& term = termOf(depth, group, t);
                out << " | " << term.lead << term.numerator << '/' << term.denominator << ' ' << term.numText << ' '
                    << term.denText << ' ' << term.fractionText << ' ' << term.termText << ' ' << term.varExp[2];
            }
        }
    }
    return out.str();
}

TEST(KnownText, IsCommittedAsIfItWereNew) {
    for (const std::string& text : texts) {
        for (const int side : {0, 1}) {
            freshCommit(text, side);
            const std::string wanted = whatStands();
            for (const std::string& between : texts) {
                commit(text, side);
                EXPECT_EQ(whatStands(), wanted) << text << " the second time";
                commit(between, side);
                commit(text, side);
                EXPECT_EQ(whatStands(), wanted) << text << " behind " << between;
                commit(text, 1 - side);
                commit(text, side);
                EXPECT_EQ(whatStands(), wanted) << text << " behind its other side";
            }
        }
    }
}

TEST(KnownText, IsForgottenWithTheStore) {
    freshCommit("2x+3", 0);
    const std::string wanted = whatStands();
    ResetStore(false);
    EXPECT_EQ(ws.TermLast[0][0], 0);
    commit("2x+3", 0);
    EXPECT_EQ(whatStands(), wanted);
    // The cells of a typed problem take the place of the line.
    GroupInput();
    (void)RewriteAll();
    commit("2x+3", 0);
    EXPECT_EQ(whatStands(), wanted);
}

// A store past its tables faults at the next commit, also at one of the same text.
TEST(KnownText, IsNotTakenFromAnOverfullStore) {
    std::string text = "1";
    for (int group = 0; group < 47; ++group) text += "+(2)";
    ws = Workspace();
    ws.TokenLast = 200;
    commit(text, 0);
    ExplodeTokens(text);
    EXPECT_EQ(faultOf([] { CommitStep({.silent = true}); }), 9);
    ExplodeTokens("1+2");
    EXPECT_EQ(faultOf([] { CommitStep({.silent = true}); }), 0);
}

}  // namespace
}  // namespace ordwise::test
