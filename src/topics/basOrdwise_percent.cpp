// The percent topics. Bracketed factors are those applied to both sides: they stand out in red.
#include "Fault.hpp"
#include "FractionSolvers.hpp"
#include "PercentSolvers.hpp"
#include "StepDisplay.hpp"
#include "TextTools.hpp"
#include "basOrdwise.hpp"

namespace ordwise {
namespace {

void complainOfZeroDivisor() {
    AddStep("Division by 0 is not allowed.", "It is impossible to divide any number by 0.");
}

void solveForBase(const std::string& amount, const std::string& n, const std::string& base) {
    if (valueOf(n) == 0) return complainOfZeroDivisor();
    const double product = valueOf(amount) * 100;
    AddStep(text("#", n, " * ", base, "/[", n, "]# = #", product, "/[", n, "]#"),
            text("Divide both sides by ", n, "."));
    AddStep(text("base = ", rounded(product / valueOf(n))), "Solve for base.");
}

void solveForAmount(const std::string& n, const std::string& base) {
    if (valueOf(base) == 0) return complainOfZeroDivisor();
    const double share = valueOf(n) / 100;
    AddStep(text(share, " [* ", base, "] = #amount / ", base, "# [* ", base, "]"),
            text("Multiply both sides by ", base, "."));
    AddStep(text(rounded(share * valueOf(base)), " = amount"), "Solve for amount.");
}

void solveForPercent(const std::string& amount, const std::string& base) {
    if (valueOf(base) == 0) return complainOfZeroDivisor();
    AddStep(text("#N/100# [* 100] = ", rounded(valueOf(amount) / valueOf(base)), " [* 100]"),
            "Multiply both sides by 100.");
    AddStep(text("N = ", rounded(valueOf(amount) * 100 / valueOf(base)), "%"), "Solve for N.");
}

}  // namespace

void PercentProblem(const std::string& amount, const std::string& n, const std::string& base) {
    const auto given = [](const std::string& value, const char* word) { return value == word ? "?" : value; };
    AddStep(text("amount = ", given(amount, "amount"), ", N = ", given(n, "N"), ", base = ", given(base, "base")));
    startLinesAt(belowFormula);
    AddStep(text(amount, " = ", n, "% of ", base),
            "This is the formula for calculating the amount, base, or percent of a number.");
    AddStep("#N/100# = #amount/base#", "Written as a proportion.");
    AddStep(text("#", n, "/100# = #", amount, "/", base, "#"), "Substitute given values into the equation.");
    if (base == "base") {
        solveForBase(amount, n, base);
    } else if (amount == "amount") {
        solveForAmount(n, base);
    } else {
        solveForPercent(amount, base);
    }
    ShowSteps();
}

void PercentToDecimal(const std::string& percent) {
    AddStep(percent);
    AddStep("Remove the % symbol and multiply by .01:",
            "The percent symbol denotes that the number has been divided by 100.  Multiplying by .01 is the same as "
            "dividing by 100.");
    const std::string number = replaced(percent, "%", "");
    AddStep(text(valueOf(number) * 0.01), text(number, "% in decimal format."));
    ShowSteps();
}

void DecimalToPercent(const std::string& decimal, bool standalone) {
    if (standalone) AddStep(decimal);
    AddStep("Multiply by 100 and add a % symbol:",
            text("The percent symbol denotes that the number has been divided by 100.  To add a % to ", decimal,
                 ", it must be multiplied by 100."));
    AddStep(text(rounded(valueOf(decimal) * 100), "%"), text(decimal, " in percent format."));
    if (standalone) ShowSteps();
}

void FractionToPercent(const std::string& fraction) {
    AddStep(text("#", fraction, "#"));
    AddStep(text("To convert #", fraction, "# to percent notation:"),
            "To convert to percent notation, divide the numerator by the denominator, multiply by 100 and add a % "
            "symbol.");
    const auto halves = split(fraction, '/');
    if (halves.size() < 2) raise(FaultNumber::Subscript);
    const double denominator = valueOf(halves[1]);
    if (denominator == 0) {
        AddStep("Division by 0 is illegal.", "It is impossible to divide any number by 0.");
        return ShowSteps();
    }
    AddStep("Divide the numerator by the denominator:",
            "The numerator is the number above the division symbol, the denominator is the number below.");
    const std::string decimal = textOf(rounded(valueOf(halves[0]) / denominator));
    AddStep(decimal, "Divide.");
    DecimalToPercent(decimal, /*standalone=*/false);
    ShowSteps();
}

void PercentToFraction(const std::string& percent) {
    AddStep(percent);
    AddStep("Remove the % symbol and multiply by .01:", "Multiplying by .01 is the same as dividing by 100.");
    const std::string number = replaced(percent, "%", "");
    const std::string decimal = textOf(valueOf(number) * 0.01);
    AddStep(decimal, text(number, " multiplied by .01."));
    DecimalToFraction(decimal, /*standalone=*/false);
    ShowSteps();
}

}  // namespace ordwise
