// Place value, rounding and comparing. ExpandedNotation is the smallest solver that restates,
// steps and shows, and a new topic begins as a copy of it.
//
// Numbers print as the student typed them ("05", "7."), but for the two that are compared.
#include "ArithmeticSolvers.hpp"

#include "StepDisplay.hpp"
#include "TextTools.hpp"
#include "Windows.hpp"
#include "basFPrint.hpp"
#include "basOrdwise.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace ordwise {
namespace {

// The words of the places, ones first. e.g. placeWord(3) -> " hundred"
std::string_view placeWord(std::size_t place) {
    static constexpr std::array<std::string_view, 10> words{
        " one",     " ten",         " hundred",         " thousand", " ten thousand", " hundred thousand",
        " million", " ten million", " hundred million", " billion"};
    return place <= words.size() ? words[place - 1] : std::string_view();
}

}  // namespace

void ExpandedNotation(const std::string& number) {
    // Restate the problem: index 1, which is not drawn again.
    AddStep(number);

    // A number too long for one line goes on with its lower places in a second one.
    constexpr std::size_t fullLine = 61;
    const std::string digits = textOf(std::abs(valueOf(number)));
    std::string first;
    std::string second;
    std::size_t place = digits.size();
    for (const char digit : digits) {
        std::string& line = place >= 6 || first.size() < fullLine ? first : second;
        line += text(std::string(1, digit), placeWord(place), digit == '1' ? "" : "s", place > 1 ? ", " : "");
        --place;
    }

    // Each step is a line that the student copies and a note that says why.
    const std::string note = text(number, " in expanded notation.");
    AddStep(first, note);
    if (!second.empty()) AddStep(second, note);

    // The end of every solver.
    ShowSteps();
}

// ---- Rounding

namespace {

struct WholeUnit {
    std::string_view digits;
    std::string_view word;
};
constexpr std::array<WholeUnit, 3> wholeUnits{{{"10", "ten"}, {"100", "hundred"}, {"1000", "thousand"}}};

std::string_view unitWord(std::string_view unit) {
    const auto* const row =
        std::find_if(wholeUnits.begin(), wholeUnits.end(), [&](const WholeUnit& u) { return u.digits == unit; });
    return row == wholeUnits.end() ? std::string_view() : row->word;
}

// n rounded by the digit behind the place of the unit, as a student does it with pencil. That digit
// adds 1 also to a negative number, which moves it towards 0.
// e.g. "1250", 3 digits of unit -> "1300"; "-1250", 3 -> "-1100"
std::string roundedByDigit(const std::string& n, std::size_t unitDigits) {
    const std::size_t kept = n.size() - unitDigits + 1;
    std::string result = n.substr(0, kept);
    if (n[kept] >= '5') result = textOf(longOf(result) + 1);
    return result + std::string(n.size() - kept, '0');
}

}  // namespace

void RoundWhole(const std::string& number, const std::string& unit) {
    AddStep(number);
    PrintMathLine("", false);

    const std::string_view word = unitWord(unit);
    const double n = longOf(number);
    const double size = valueOf(unit);
    if (size < std::abs(n)) {
        const std::string result = roundedByDigit(textOf(n), unit.size());
        AddStep(text(number, " rounded to the nearest ", word, ":"),
                text("Find the ", word, " position in the number and round."));
        AddStep(result, text(number, " rounded to the nearest ", word, " is ", result, "."));
    } else {
        AddStep(text(number, " rounded to the nearest ", word, ":"),
                "If a number is 5 or greater, it rounds up.  If it is less than 5, it rounds down.");
        const std::string result = size / 2 > valueOf(number) ? "0" : unit;
        AddStep(result, text(number, " rounded to the nearest ", word, " is ", result, "."));
    }
    ShowSteps();
}

namespace {

struct DecimalPlace {
    std::string_view name;
    std::size_t pushFrom;  // this many typed decimals may end in the half that is pushed up
    std::size_t decimals;  // always written, none for a whole number
    std::string_view note;
};
// clang-format off
constexpr std::array<DecimalPlace, 4> decimalPlaces{{
    {"whole number", 1, 0, "Round to the nearest whole number (no decimal places)."},
    {"tenth",        1, 1, "Round to the nearest tenth (one digit after the decimal point)."},
    {"hundredth",    2, 2, "Round to the nearest hundredth (two digits after the decimal point)."},
    {"thousandth",   3, 3, "Round to the nearest thousandth (three digits after the decimal point)."},
}};
// clang-format on

// The number with exactly that many decimals and no digit before the point below 1.
// e.g. "2.5", 2 -> "2.50"; "0", 2 -> ".00"; "2", 0 -> "2"
std::string withDecimals(const std::string& number, std::size_t decimals) {
    if (decimals == 0) return number;
    const std::size_t sign = number.starts_with("-") ? 1 : 0;
    const std::size_t point = std::min(number.find('.'), number.size());
    std::string whole = number.substr(sign, point - sign);
    std::string fraction = point < number.size() ? number.substr(point + 1) : "";
    if (whole == "0") whole.clear();
    fraction.resize(decimals, '0');
    return number.substr(0, sign) + whole + "." + fraction;
}

}  // namespace

void RoundDecimal(const std::string& number, const std::string& name, const std::string& places) {
    AddStep(number);
    PrintMathLine("", false);

    AddStep(text(number, " rounded to the nearest ", name, ":"),
            "If a number is 5 or greater, it rounds up.  If it is less than 5, it rounds down.");
    for (const DecimalPlace& place : decimalPlaces) {
        if (place.name != name) continue;
        // Round takes a half to the even digit; the student learns that 5 rounds up. One more digit
        // lifts the half over the edge.
        const std::size_t point = number.rfind('.');
        const std::size_t decimals = point == std::string::npos ? 0 : number.size() - point - 1;
        const std::string pushed = decimals >= place.pushFrom ? number + "1" : number;
        const double result = Round(valueOf(pushed), longOf(places));
        AddStep(withDecimals(textOf(result), place.decimals), std::string(place.note));
    }
    ShowSteps();
}

// ---- Comparing

void CompareNumbers(double a, double b) {
    AddStep(text(a, " ? ", b));

    if (a < b) {
        AddStep(text(a, " < ", b),
                text(a, " is less than ", b, " because ", a, " appears further left on a number line than ", b, "."));
    } else if (a == b) {
        AddStep(text(a, " = ", b),
                text(a, " equals ", b, " because they both appear at the same location on a number line."));
    } else {
        AddStep(text(a, " > ", b), text(a, " is greater than ", b, " because ", a,
                                        " appears further right on a number line than ", b, "."));
    }
    DrawNumberLine(a, b);
    ShowSteps();
}

namespace {

constexpr double axisY = 150;
constexpr double labelY = 158;

// The number line of a sheet, moved to the right where the typed problem reaches that far.
class NumberLine {
public:
    explicit NumberLine(Sheet& sheet) : sheet_(sheet), right_(std::max(0.0, ws.LineEndX + clearOfProblem - axisLeft)) {}

    void drawAxis() {
        line(axisLeft, axisY, axisRight, axisY);
        line(axisLeft, axisY, axisLeft + 5, axisY + 5);
        line(axisLeft, axisY, axisLeft + 5, axisY - 5);
        line(axisRight, axisY, axisRight - 5, axisY - 5);
        line(axisRight, axisY, axisRight - 5, axisY + 5);
        drawTick(350);
        print("0", 345, labelY);
    }

    // Two numbers on the same side of zero share it, long ones in two rows; the other side has its two
    // ticks without numbers.
    void drawOnOneSide(double low, double high) {
        constexpr double apart = 8;
        constexpr double secondRow = labelY + 22;
        for (const double x : {217.0, 284.0, 417.0, 484.0}) drawTick(x);
        const std::string lowLabel = textOf(low);
        const std::string highLabel = textOf(high);
        const double lowX = labelX(high < 0 ? 217 : 417, lowLabel);
        const double highX = labelX(high < 0 ? 284 : 484, highLabel);
        print(lowLabel, lowX, labelY);
        print(highLabel, highX, lowX + sheet_.TextWidth(lowLabel) + apart > highX ? secondRow : labelY);
    }

    // One tick on each side; zero itself has its own.
    void drawOnBothSides(double low, double high) {
        for (const double x : {250.0, 450.0}) drawTick(x);
        if (low < 0) print(textOf(low), labelX(250, textOf(low)), labelY);
        if (high > 0) print(textOf(high), labelX(450, textOf(high)), labelY);
    }

private:
    static constexpr double axisLeft = 150;
    static constexpr double axisRight = 550;
    static constexpr double clearOfProblem = 24;

    static double labelX(double tick, const std::string& label) {
        return tick + 8 - 7 * static_cast<double>(label.size());
    }
    void line(double x1, double y1, double x2, double y2) { sheet_.line(x1 + right_, y1, x2 + right_, y2); }
    void drawTick(double x) { line(x, axisY - 5, x, axisY + 5); }
    void print(const std::string& label, double x, double y) {
        sheet_.CurrentX = x + right_;
        sheet_.CurrentY = y;
        sheet_.print(label);
    }

    Sheet& sheet_;
    double right_;
};

}  // namespace

void DrawNumberLine(double a, double b) {
    constexpr double lineSpace = 46;
    Sheet& sheet = frmPaper.Paper[0];
    const double x = sheet.CurrentX;
    const double y = sheet.CurrentY;
    const double width = sheet.DrawWidth;
    const double low = std::min(a, b);
    const double high = std::max(a, b);

    sheet.DrawWidth = 2;
    NumberLine numbers(sheet);
    numbers.drawAxis();
    if (low != high && (high < 0 || low > 0)) {
        numbers.drawOnOneSide(low, high);
    } else {
        numbers.drawOnBothSides(low, high);
    }

    sheet.DrawWidth = width;
    sheet.CurrentX = x;
    sheet.CurrentY = y + lineSpace;
}

}  // namespace ordwise
