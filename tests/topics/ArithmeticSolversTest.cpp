#include "ArithmeticSolvers.hpp"

#include "Drawn.hpp"
#include "NumberText.hpp"
#include "SolutionOf.hpp"

namespace ordwise::test {
namespace {

TEST(ExpandedNotation, BreaksALongNumberBelowTheHundredThousands) {
    EXPECT_EQ(answerOf([] { ExpandedNotation("0011"); }), "1 ten, 1 one");
    const Solution ten = solutionOf([] { ExpandedNotation("1111111111"); });
    EXPECT_EQ(ten.lines[1], "1 billion, 1 hundred million, 1 ten million, 1 million, 1 hundred thousand, ");
    EXPECT_EQ(ten.lines[2], "1 ten thousand, 1 thousand, 1 hundred, 1 ten, 1 one");

    // The line is full once it has 61 characters.
    EXPECT_EQ(answerOf([] { ExpandedNotation("111111"); }), "1 one");
    EXPECT_EQ(solutionOf([] { ExpandedNotation("99999"); }).lines.size(), 2U);
}

TEST(RoundWhole, DecidesByTheNextDigit) {
    const auto rounds = [](const char* number, const char* unit) {
        return answerOf([&] { RoundWhole(number, unit); });
    };
    EXPECT_EQ(rounds("10", "10"), "10");
    EXPECT_EQ(rounds("995", "100"), "1000");
    EXPECT_EQ(rounds("-1250", "100"), "-1100");
    EXPECT_EQ(rounds("4.99", "10"), "0");
    EXPECT_EQ(rounds("500", "1000"), "1000");
}

TEST(RoundDecimal, RoundsAHalfUpAndWritesEveryDecimal) {
    const auto rounds = [](const char* number, const char* name, const char* places) {
        return answerOf([&] { RoundDecimal(number, name, places); });
    };
    EXPECT_EQ(rounds("7.", "whole number", "0"), "7");
    EXPECT_EQ(rounds("2.5", "hundredth", "2"), "2.50");
    EXPECT_EQ(rounds("0.125", "hundredth", "2"), ".13");
    EXPECT_EQ(rounds("0", "hundredth", "2"), ".00");
    EXPECT_EQ(rounds("-.5", "tenth", "1"), "-.5");
    EXPECT_EQ(rounds("9.9996", "thousandth", "3"), "10.000");
    EXPECT_EQ(rounds("1.5", "furlong", "1"), "1.5 rounded to the nearest furlong:");
}

// The labels of the number line as "text@x", and the places of its ticks but that of zero.
struct NumberLine {
    std::vector<std::string> labels;
    std::vector<double> ticks;
    bool operator==(const NumberLine&) const = default;
};

NumberLine numberLineOf(double a, double b) {
    ResetWindows();
    ws.LineEndX = 0;
    DrawNumberLine(a, b);
    NumberLine drawn;
    for (const DrawOperation& operation : frmPaper.Paper[0].drawn()) {
        if (const auto* glyphs = std::get_if<Glyphs>(&operation)) {
            EXPECT_EQ(glyphs->y, 158);
            drawn.labels.push_back(glyphs->text + "@" + textOf(glyphs->x));
        } else if (const auto* stroke = std::get_if<Stroke>(&operation)) {
            EXPECT_EQ(stroke->width, 2);
            if (stroke->x1 == stroke->x2 && stroke->x1 != 350) drawn.ticks.push_back(stroke->x1);
        }
    }
    return drawn;
}

TEST(NumberLine, ShowsOrderAndSideOfZero) {
    const std::vector<double> both{250, 450};
    const std::vector<double> oneSide{217, 284, 417, 484};
    EXPECT_EQ(numberLineOf(4, -3), (NumberLine{{"0@345", "-3@244", "4@451"}, both}));
    EXPECT_EQ(numberLineOf(-1, -20), (NumberLine{{"0@345", "-20@204", "-1@278"}, oneSide}));
    EXPECT_EQ(numberLineOf(5, 12), (NumberLine{{"0@345", "5@418", "12@478"}, oneSide}));
    EXPECT_EQ(numberLineOf(0, 7), (NumberLine{{"0@345", "7@451"}, both}));
    EXPECT_EQ(numberLineOf(6, 6), (NumberLine{{"0@345", "6@451"}, both}));
    EXPECT_EQ(numberLineOf(-6, -6), (NumberLine{{"0@345", "-6@244"}, both}));
    EXPECT_EQ(numberLineOf(0, 0), (NumberLine{{"0@345"}, both}));
}

// e.g. 123456 and 123578, which would read as one number
TEST(NumberLine, KeepsLongLabelsApartAndClearOfTheProblem) {
    ResetWindows();
    ws.LineEndX = 200;
    DrawNumberLine(123456, 123578);
    EXPECT_EQ(runOf(frmPaper.Paper[0].drawn(), "123456").y, 158);
    EXPECT_EQ(runOf(frmPaper.Paper[0].drawn(), "123578").y, 180);
    EXPECT_EQ(std::get<Stroke>(frmPaper.Paper[0].drawn().front()).x1, 224);
}

TEST(NumberLine, LeavesThePenBelowItself) {
    ResetWindows();
    Sheet& sheet = frmPaper.Paper[0];
    sheet.CurrentX = 12;
    sheet.CurrentY = 100;
    DrawNumberLine(1, 2);
    EXPECT_EQ(sheet.CurrentX, 12);
    EXPECT_EQ(sheet.CurrentY, 146);
    EXPECT_EQ(sheet.DrawWidth, 1);
}

}  // namespace
}  // namespace ordwise::test
