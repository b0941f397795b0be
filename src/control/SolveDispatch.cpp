#include "SolveDispatch.hpp"

#include "ArithmeticSolvers.hpp"
#include "ConversionSolvers.hpp"
#include "Fault.hpp"
#include "FractionSolvers.hpp"
#include "GeometrySolvers.hpp"
#include "NumberText.hpp"
#include "NumberTheorySolvers.hpp"
#include "PercentSolvers.hpp"
#include "ScienceSolvers.hpp"
#include "StatisticsSolvers.hpp"
#include "TextTools.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <algorithm>
#include <string>
#include <vector>

namespace ordwise {
namespace {

// Every number reaches a solver as text, pi included.
const std::string pi = "3.1415926";

std::string box(int number) {
    return frmPaper.box(number).Text;
}

// The boxes of the topics of pictures stand on sheet 0, and so will the solution.
void clearSheet() {
    frmPaper.Paper[0].cls();
}

// A box's text, or the word of the quantity where the box was left empty.
std::string boxOr(int number, const char* word) {
    return box(number).empty() ? word : box(number);
}

// A problem loaded from a file may bring marks along; the boxes are rewritten without them.
void dropFractionMarks(int lastBox) {
    for (int number = 1; number <= lastBox; ++number) {
        frmPaper.box(number).Text = replaced(box(number), "#", "");
    }
}

void solveRounding(const std::string& problem) {
    // clang-format off
    switch (frmPaper.Combo3.ListIndex) {
        case 0: RoundWhole(problem, "1000"); break;
        case 1: RoundWhole(problem, "100"); break;
        case 2: RoundWhole(problem, "10"); break;
        case 3: RoundDecimal(problem, "whole number", "0"); break;
        case 4: RoundDecimal(problem, "tenth", "1"); break;
        case 5: RoundDecimal(problem, "hundredth", "2"); break;
        case 6: RoundDecimal(problem, "thousandth", "3"); break;
        default: break;
    }
    // clang-format on
}

void solveComparing(const std::string& problem) {
    const std::vector<std::string> parts = split(problem, ',');
    if (parts.size() < 2) raise(FaultNumber::Subscript);
    CompareNumbers(valueOf(parts[0]), valueOf(parts[1]));
}

// A list typed with a comma too many at either end.
std::string withoutOuterCommas(std::string list) {
    if (!list.empty() && list.front() == ',') list.erase(0, 1);
    if (!list.empty() && list.back() == ',') list.pop_back();
    return list;
}

void solveMixedNumber(const std::string& problem) {
    const std::vector<std::string> parts = split(problem, '+');
    if (parts.size() < 2) raise(FaultNumber::Subscript);
    MixedToImproper(parts[0], parts[1]);
}

void solveMetric(MetricKind kind) {
    constexpr double factors[] = {0.001, 0.01, 0.1, 1, 10, 100, 1000};
    const auto factor = [&](const ComboControl& combo) {
        if (combo.ListIndex < 0 || combo.ListIndex > 6) raise(FaultNumber::Subscript);
        return factors[combo.ListIndex];
    };
    clearSheet();
    MetricConvert(box(4), factor(frmPaper.Combo1), factor(frmPaper.Combo2), kind);
}

void solveSimilarTriangles() {
    ws.CurrentSheet = 0;
    clearSheet();
    std::string a2 = box(4);
    std::string b2 = box(6);
    std::string c2 = box(5);
    SimilarTriangles(box(3), box(2), box(1), a2, b2, c2);
}

using P = const std::string&;

struct Branch {
    int type;
    void (*solve)(P problem);
};

// clang-format off
const Branch branches[] = {
    {150, [](P)   { solveNegativeExponents(); }},
    {101, [](P)   { solveEquations(); }},
    {122, [](P)   { solveEquations(); }},
    {102, [](P)   { simplifyPolynomial(); }},
    {121, [](P)   { expandAndShow(); }},
    {103, [](P)   { evaluatePolynomials(); }},
    {105, [](P)   { solveLinearEquationForGraph(); }},
    {120, [](P)   { expandAndShow(); }},
    { 99, [](P p) { ExpandedNotation(p); }},
    { 98, solveRounding},
    { 91, [](P)   { expandAndShow(); }},
    { 90, solveComparing},
    { 89, [](P p) { Multiples(p); }},
    { 88, [](P p) { LeastCommonMultiple(withoutOuterCommas(p)); }},
    { 87, [](P p) { GreatestCommonFactor(withoutOuterCommas(p)); }},
    { 86, [](P p) { Factors(p, true); }},
    { 85, [](P p) { PrimeOrComposite(p); }},
    { 84, [](P p) { PrimeFactorization(p); }},
    { 83, [](P)   { solveExponentialNotation(); }},
    { 82, [](P)   { solveRoots(); }},
    { 81, [](P)   { expandAndShow(); }},
    { 80, [](P p) { SimplifyFraction(p, true); }},
    { 79, [](P p) { Reciprocal(p); }},
    { 78, [](P p) { RatioToFraction(p); }},
    { 76, [](P)   { solveFractionArithmetic(); }},
    { 75, [](P p) { ImproperToMixed(p); }},
    { 74, solveMixedNumber},
    { 73, [](P p) { FractionToDecimal(p); }},
    { 72, [](P p) { FractionToPercent(p); }},
    { 71, [](P p) { DecimalToFraction(p, true); }},
    { 70, [](P p) { DecimalToPercent(p, true); }},
    { 69, [](P p) { PercentToDecimal(p); }},
    { 68, [](P p) { PercentToFraction(p); }},
    { 65, [](P p) { RegularToScientific(p); }},
    { 62, [](P p) { Mean(p); }},
    { 61, [](P p) { Median(p); }},
    { 60, [](P p) { Mode(p); }},
    { 59, [](P p) { Range(p); }},

    { 54, [](P p) { (void)ConvertInchesToFeet(p, true); }},
    { 53, [](P p) { ConvertInchesToYards(p); }},
    { 52, [](P p) { ConvertInchesToMiles(p); }},
    { 51, [](P p) { ConvertFeetToInches(p); }},
    { 50, [](P p) { ConvertFeetToYards(p); }},
    { 49, [](P p) { ConvertFeetToMiles(p); }},
    { 48, [](P p) { ConvertYardsToInches(p); }},
    { 47, [](P p) { (void)ConvertYardsToFeet(p, true); }},
    { 46, [](P p) { ConvertYardsToMiles(p); }},
    { 45, [](P p) { ConvertMilesToInches(p); }},
    { 44, [](P p) { (void)ConvertMilesToFeet(p, true); }},
    { 43, [](P p) { ConvertMilesToYards(p); }},
    { 42, [](P p) { (void)ConvertOuncesToPounds(p, true); }},
    { 41, [](P p) { ConvertOuncesToTons(p); }},
    { 40, [](P p) { (void)ConvertPoundsToOunces(p, true); }},
    { 39, [](P p) { (void)ConvertPoundsToTons(p, true); }},
    { 38, [](P p) { ConvertTonsToOunces(p); }},
    { 37, [](P p) { (void)ConvertTonsToPounds(p, true); }},
    { 36, [](P p) { ConvertInchesToMeters(p); }},
    { 35, [](P p) { ConvertFeetToMeters(p); }},
    { 34, [](P p) { ConvertMilesToKilometers(p); }},
    { 33, [](P p) { ConvertPoundsToGrams(p); }},
    { 32, [](P p) { ConvertOuncesToGrams(p); }},
    { 31, [](P p) { ConvertMetersToInches(p); }},
    { 30, [](P p) { ConvertMetersToFeet(p); }},
    { 29, [](P p) { ConvertKilometersToMiles(p); }},
    { 28, [](P p) { ConvertGramsToOunces(p); }},
    {109, [](P p) { CelsiusToFahrenheit(p); }},
    {110, [](P p) { FahrenheitToCelsius(p); }},
    {111, [](P p) { ConvertGramsToPounds(p); }},

    { 25, [](P)   { dropFractionMarks(2); clearSheet(); ScientificToRegular(box(1), box(2)); }},
    { 26, [](P)   { dropFractionMarks(4); clearSheet(); ScientificMultiply(box(1), box(2), box(3), box(4)); }},
    { 27, [](P)   { dropFractionMarks(4); clearSheet(); ScientificDivide(box(1), box(2), box(3), box(4)); }},
    { 24, [](P)   { solveMetric(MetricKind::Grams); }},
    { 23, [](P)   { solveMetric(MetricKind::Meters); }},
    { 22, [](P)   { clearSheet(); DistanceFormula(boxOr(1, "distance"), boxOr(2, "speed"), boxOr(4, "time")); }},
    { 21, [](P)   { clearSheet(); WorkFormula(boxOr(1, "work"), boxOr(2, "rate"), boxOr(4, "time")); }},
    { 20, [](P)   { clearSheet(); Proportion(boxOr(1, "x"), boxOr(2, "x"), boxOr(3, "x"), boxOr(4, "x")); }},
    { 14, [](P)   { clearSheet(); PercentProblem(boxOr(1, "amount"), boxOr(2, "N"), boxOr(4, "base")); }},
    {  1, [](P)   { clearSheet(); Volume(box(2), box(3), box(1), Solid::Box); }},
    {  4, [](P)   { clearSheet(); Volume(box(2), box(3), box(1), Solid::Pyramid); }},
    {  2, [](P)   { clearSheet(); Volume(pi, box(2), box(1), Solid::Cylinder); }},
    {  3, [](P)   { clearSheet(); Volume(pi, box(2), box(1), Solid::Cone); }},
    {  5, [](P)   { clearSheet(); Volume(pi, box(2), "NA", Solid::Sphere); }},
    {  6, [](P)   { clearSheet(); Area(box(2), box(1), AreaShape::Rectangle, ""); }},
    {  8, [](P)   { clearSheet(); Area(box(2), box(1), AreaShape::Triangle, ""); }},
    {  9, [](P)   { clearSheet(); Area(box(2), box(1), AreaShape::Parallelogram, ""); }},
    {  7, [](P)   { clearSheet(); Area(pi, box(2), AreaShape::Circle, ""); }},
    { 10, [](P)   { clearSheet(); Area(box(2), box(3), AreaShape::Trapezoid, box(1)); }},
    { 11, [](P)   { solveSimilarTriangles(); }},
    { 12, [](P)   { clearSheet(); Pythagoras(box(4), box(2), box(1)); }},
    { 13, [](P)   { clearSheet(); Perimeter(box(2), box(1), "", PerimeterShape::Rectangle); }},
    { 19, [](P)   { clearSheet(); Perimeter(box(3), box(2), box(1), PerimeterShape::Triangle); }},
    { 15, [](P)   { clearSheet(); Circumference(box(2), CircleMeasure::Radius); }},
    { 16, [](P)   { clearSheet(); Circumference(box(2), CircleMeasure::Diameter); }},
    { 17, [](P)   { clearSheet(); DiameterFromRadius(box(2)); }},
    { 18, [](P)   { clearSheet(); RadiusFromDiameter(box(2)); }},
    {104, [](P p) { ClassifyAngle(p); }},
    {108, solvePoint},
    {107, solveQuadrantOfPoint},
    {106, solvePointsOfLine},
};
// clang-format on

}  // namespace

void solveByType(int problemType) {
    const auto branch =
        std::find_if(std::begin(branches), std::end(branches), [&](const Branch& b) { return b.type == problemType; });
    if (branch == std::end(branches)) return;
    // A copy: a solver may read ProblemText while the worksheet changes it.
    const std::string problem = ws.ProblemText;
    branch->solve(problem);
}

}  // namespace ordwise
