// Scientific notation, the two formulas on three quantities, and angles.
#include "ScienceSolvers.hpp"

#include "Int16.hpp"
#include "StepDisplay.hpp"
#include "TextTools.hpp"
#include "Windows.hpp"
#include "basOrdwise.hpp"

#include <cmath>
#include <limits>

namespace ordwise {
namespace {

// The decimal point one place to the right or left. The value passes through its text each time:
// the text has the digits that a person would write, and a tenth that a double cannot hold exactly
// does not creep in. e.g. "1.1" -> "11", "0.5" -> "0.05"
std::string timesTen(const std::string& number) {
    return textOf(inRange(valueOf(number) * 10));
}

// A value too small for a double is beyond its range as one too large is: fault 6, and no false 0.
std::string byTen(const std::string& number) {
    const double value = valueOf(number);
    const double tenth = value / 10;
    if (value != 0 && std::abs(tenth) < std::numeric_limits<double>::min()) raise(FaultNumber::Overflow);
    return textOf(tenth);
}

// base * 10^exponent as text. Zero stays zero however often the point moves, so it need not move.
std::string withPointMoved(std::string number, double exponent) {
    if (valueOf(number) == 0) return number;
    for (double places = std::abs(exponent); places >= 1; --places)
        number = exponent > 0 ? timesTen(number) : byTen(number);
    return number;
}

// The words in which work and distance differ; all else of the two topics is one text.
struct FormulaVocabulary {
    const char* product;
    const char* factor;
    const char* formula;
    const char* formulaNote;
    const char* productNote;
};

// clang-format off
constexpr FormulaVocabulary workWords     = {"work",     "rate",  "work = rate * time",      "This is the formula for calculating work, rate, and time.",      "Solve for work by multiplying."};
constexpr FormulaVocabulary distanceWords = {"distance", "speed", "distance = speed * time", "This is the formula for calculating distance, speed, and time.", "Solve for distance by multiplying."};
// clang-format on

// The two last steps of a division: the product over what is given of the factors.
// e.g. "12", "4", "time", "rate", "Solve for rate."
void divideProduct(const std::string& product, const std::string& divisor, const std::string& divisorWord,
                   const std::string& unknown) {
    AddStep(text("#", product, "/", divisor, "# = ", unknown), text("Divide both sides by ", divisorWord, "."));
    if (valueOf(divisor) == 0) {
        AddStep("Division by 0 is illegal.", "It is impossible to divide any number by 0.");
        return;
    }
    AddStep(text(rounded(valueOf(product) / valueOf(divisor)), " = ", unknown), text("Solve for ", unknown, "."));
}

// product = factor * time, one of the three being its own word.
void solveProductFormula(const FormulaVocabulary& words, const std::string& product, const std::string& factor,
                         const std::string& time) {
    const auto given = [](const std::string& value, const char* word) { return value == word ? "?" : value; };
    AddStep(text(words.product, " = ", given(product, words.product), ", ", words.factor, " = ",
                 given(factor, words.factor), ", time = ", given(time, "time")));
    startLinesAt(belowFormula);
    AddStep(words.formula, words.formulaNote);
    AddStep(text(product, " = ", factor, " * ", time), "Substitute the given values.");
    if (product == words.product) {
        AddStep(text(words.product, " = ", valueOf(factor) * valueOf(time)), words.productNote);
    } else if (factor == words.factor) {
        divideProduct(product, time, "time", words.factor);
    } else {
        divideProduct(product, factor, words.factor, "time");
    }
    ShowSteps();
}

// The arms from (200, 175): one to the right, one that runs along two straight edges as the angle
// opens, up to (200, 75) at 90 degrees and down to (100, 175) at 180. A picture, not a protractor.
void drawAngle(double degrees) {
    if (!(degrees > 0 && degrees <= 180)) return;
    Sheet& sheet = frmPaper.Paper[0];
    const double width = sheet.DrawWidth;
    sheet.DrawWidth = 2;
    const double ratio = degrees / 90;
    sheet.line(200, 175, 300 - ratio * 100, std::abs(100 - ratio * 100) + 75);
    sheet.line(200, 175, 300, 175);
    sheet.DrawWidth = width;
}

}  // namespace

void ScientificToRegular(const std::string& base, const std::string& exponent) {
    AddStep(text(base, " * 10^", exponent, "^"));
    startLinesAt(belowFormula);
    AddStep("To convert from scientific notation to regular notation:",
            "Regular notation is simply a number with or without decimals.");
    const double power = valueOf(exponent);
    AddStep(power < 0 ? text("Move the decimal point to the left ", std::abs(valueOf(trimmed(exponent))), " place(s):")
                      : text("Move the decimal point to the right ", exponent, " place(s):"),
            "The decimal point moves to the right if the exponent is positive, or left if the exponent is negative.");
    AddStep(withPointMoved(base, power), "Scientific notation converted to regular notation.");
    ShowSteps();
}

void RegularToScientific(const std::string& number) {
    AddStep(number);
    AddStep("To convert from regular notation to scientific notation:",
            "Scientific notation is written: number * 10^power^");
    std::string shifted = textOf(valueOf(number));
    Int16 shift;
    if (valueOf(shifted) >= 1) {
        for (; valueOf(shifted) >= 10; ++shift) shifted = byTen(shifted);
        AddStep(text("Move the decimal place to the left ", int(shift), " time(s):"),
                "To convert to scientific form, the decimal point should follow the first number.");
        AddStep(shifted, "Shift the decimal point.");
        AddStep("Then multiply by 10^number of places the decimal moved^",
                "Balance the moving of the decimal by multiplying.");
        AddStep(text(shifted, " * 10^", int(shift), "^"), "Regular notation converted to scientific notation.");
    } else {
        for (; valueOf(shifted) < 1; ++shift) shifted = timesTen(shifted);
        AddStep(text("Move the decimal place to the right ", int(shift), " time(s):"),
                "To convert to scientific form, the decimal point should follow the first number.");
        AddStep(shifted, "Shifted the decimal point.");
        AddStep("Then multiply by 10^number of places the decimal moved preceded by a minus sign:^",
                "Balance the moving of the decimal by multiplying.");
        AddStep(text(shifted, " * 10^", -shift, "^"), "Regular notation converted to scientific.");
    }
    ShowSteps();
}

void ScientificMultiply(const std::string& a, const std::string& p, const std::string& b, const std::string& q) {
    AddStep(text(a, " * 10^", p, "^ * ", b, " * 10^", q, "^"));
    startLinesAt(belowFormula);
    AddStep("To multiply numbers in scientific notation:", "Scientific notation is written: number * 10^power^");
    AddStep(text("First, multiply the bases: ", a, " * ", b), "The bases are the numbers being multiplied by 10.");
    AddStep(text("Next, add the exponents: ", p, " + ", q),
            "Exponents are the numbers in the power (written after the the 10).");
    AddStep(text(rounded(valueOf(a) * valueOf(b)), " * 10^", valueOf(p) + valueOf(q), "^"),
            "Multiplied scientific numbers.");
    ShowSteps();
}

void ScientificDivide(const std::string& a, const std::string& p, const std::string& b, const std::string& q) {
    AddStep(text(a, " * 10^", p, "^ { ", b, " * 10^", q, "^"));
    startLinesAt(belowFormula);
    AddStep("To divide numbers in scientific notation:", "Scientific notation is written as a number * 10^power^.");
    if (valueOf(b) == 0) {
        AddStep("Division by 0 is illegal.", "It is impossible to divide any number by 0.");
        return ShowSteps();
    }
    const double quotient = rounded(valueOf(a) / valueOf(b));
    const double power = valueOf(p) - valueOf(q);
    AddStep(text("First, divide the bases: #", a, "/", b, "# = ", quotient),
            "The bases are the numbers to the left of the multiplication (*) symbol.");
    AddStep(text("Next, subtract the exponents: ", p, " - ", q, " = ", power),
            "Exponents are the numbers in the power (written after the the 10).");
    AddStep(text(quotient, " * 10^", power, "^"), "Divided scientific numbers.");
    ShowSteps();
}

void WorkFormula(const std::string& work, const std::string& rate, const std::string& time) {
    solveProductFormula(workWords, work, rate, time);
}

void DistanceFormula(const std::string& distance, const std::string& speed, const std::string& time) {
    solveProductFormula(distanceWords, distance, speed, time);
}

void ClassifyAngle(const std::string& degrees) {
    AddStep(degrees);
    const double value = valueOf(degrees);
    drawAngle(value);
    if (value == 180) {
        AddStep("180^o^ (degrees) forms a STRAIGHT angle.", "A straight angle = 180^o^");
    } else if (value == 90) {
        AddStep("90^o^ (degrees) forms a RIGHT angle.", "A right angle = 90^o^");
    } else if (value > 90 && value < 180) {
        AddStep(text(degrees, "^o^ (degrees) forms an OBTUSE angle because it is between 90^o^ and 180^o^."),
                "90^o^ < obtuse < 180^o^");
    } else if (value > 0 && value < 90) {
        AddStep(text(degrees, "^o^ (degrees) forms an ACUTE angle because it is between 0^o^ and 90^o^."),
                "0^o^ < acute < 90^o^");
    } else {
        AddStep("An angle must have a measurement greater than 0^o^ and no more than 180^o^.",
                "Enter an angle ranging from 1^o^ to 180^o^.");
    }
    ShowSteps();
}

}  // namespace ordwise
