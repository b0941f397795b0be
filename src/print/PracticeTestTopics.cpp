#include "PracticeTestTopics.hpp"

#include "Catalogue.hpp"

#include <algorithm>

namespace ordwise {
namespace {

// clang-format off
constexpr TestTopicRowData rows[] = {
    {150, "Negative Exponents", "Simplify by removing the negative exponents:", ""},
    {120, "Absolute Values", "Determine the absolute values and calculate:", ""},
    {121, "Complex Arithmetic Expressions", "Solve the complex expression using arithmetic:", ""},
    {101, "Arithmetic Principles", "Solve using arithmetic principles:", ""},
    { 99, "Expanded Notation", "Write the following numbers in expanded notation:", ""},
    { 98, "Rounding", "Round the following numbers:", ""},
    { 91, "Arithmetic", "Calculate the answer by using arithmetic:", ""},
    { 90, "Comparing Values", "Compare the following values with a greater than (>), less than (<), or equal to (=) symbol:", ""},
    { 89, "Multiples", "Calculate the first 10 multiples of the following numbers:", ""},
    { 88, "Least Common Multiples", "Find the least common multiples (LCM) of the following numbers:", ""},
    { 87, "Greatest Common Factors", "Find the greatest common factors (GCF) of the following numbers:", ""},
    { 86, "Factoring", "Factor the following numbers:", ""},
    { 85, "Prime/Composite", "Determine whether these numbers are prime or composite:", ""},
    { 84, "Prime Factorization", "Determine the prime factorization of the following numbers:", ""},
    { 83, "Exponential Notation", "Rewrite the following expressions in exponential notation:", ""},
    { 82, "Calculating Roots", "Simplify the following expressions:", ""},
    { 81, "Calculating With Exponents", "Expand the exponents and solve:", ""},
    { 80, "Simplifying Fractions", "Simplify the following fractions:", ""},
    { 79, "Reciprocals", "Calculate the reciprocals of the following fractions:", ""},
    { 78, "Ratios", "Write the following ratios as fractions:", ""},
    { 20, "Proportions", "Calculate the correct proportions:", ""},
    { 76, "Fraction Arithmetic", "Combine the following using fraction arithmetic:", ""},
    { 75, "Fraction To Mixed Notation", "Convert the following fractions to mixed numbers:", ""},
    { 74, "Mixed To Fraction Notation", "Convert the following mixed numbers to fractions:", ""},
    { 73, "Fraction To Decimal Notation", "Convert the following fractions to decimals:", ""},
    { 72, "Fraction To Percent Notation", "Convert the following fractions to percents (%):", ""},
    { 71, "Decimal To Fraction Notation", "Convert the following decimals to fractions:", ""},
    { 70, "Decimal To Percent Notation", "Convert the following decimals to percents (%):", ""},
    { 69, "Percent To Decimal Notation", "Convert the following percents to decimals:", ""},
    { 68, "Percent To Fraction Notation", "Convert the following percents to fractions:", ""},
    { 14, "Amount = N% of Base", "Solve using the formula Amount = N% of Base:", ""},
    { 21, "Work = Rate * Time", "Solve using the formula Work = Rate * Time:", ""},
    { 22, "Distance = Speed * Time", "Solve using the formula Distance = Speed * Time:", ""},
    { 25, "Converting Scientific To Regular Notation", "Convert the following scientific numbers to regular notation:", ""},
    { 65, "Converting Regular To Scientific Notation", "Convert the following numbers to scientific notation:", ""},
    { 26, "Multiplying Scientific Notation", "Multiply the following scientific numbers:", ""},
    { 27, "Dividing Scientific Notation", "Divide the following scientific numbers:", ""},
    { 62, "Means (Averages)", "Calculate the averages of the following numbers:", ""},
    { 61, "Medians", "Calculate the medians of the following numbers:", ""},
    { 60, "Modes", "Calculate the modes of the following numbers:", ""},
    { 59, "Ranges", "Calculate the ranges of the following numbers:", ""},
    { 54, "Converting Inches To Feet", "Converting Inches To Feet", " inches = ? feet"},
    { 53, "Converting Inches To Yards", "Converting Inches To Yards", " inches = ? yards"},
    { 52, "Converting Inches To Miles", "Converting Inches To Miles", " inches = ? miles"},
    { 51, "Converting Feet To Inches", "Converting Feet To Inches", " feet = ? inches"},
    { 50, "Converting Feet To Yards", "Converting Feet To Yards", " feet = ? yards"},
    { 49, "Converting Feet To Miles", "Converting Feet To Miles", " feet = ? miles"},
    { 48, "Converting Yards To Inches", "Converting Yards To Inches", " yards = ? inches"},
    { 47, "Converting Yards To Feet", "Converting Yards To Feet", " yards = ? feet"},
    { 46, "Converting Yards To Miles", "Converting Yards To Miles", " yards = ? miles"},
    { 45, "Converting Miles To Inches", "Converting Miles To Inches", " miles = ? inches"},
    { 44, "Converting Miles To Feet", "Converting Miles To Feet", " miles = ? feet"},
    { 43, "Converting Miles To Yards", "Converting Miles To Yards", " miles = ? yards"},
    { 42, "Converting Ounces To Pounds", "Converting Ounces To Pounds", " ounces = ? pounds"},
    { 41, "Converting Ounces To Tons", "Converting Ounces To Tons", " ounces = ? tons"},
    { 40, "Converting Pounds To Ounces", "Converting Pounds To Ounces", " pounds = ? ounces"},
    { 39, "Converting Pounds To Tons", "Converting Pounds To Tons", " pounds = ? tons"},
    { 38, "Converting Tons To Ounces", "Converting Tons To Ounces", " tons = ? ounces"},
    { 37, "Converting Tons To Pounds", "Converting Tons To Pounds", " tons = ? pounds"},
    { 36, "Converting Inches To Meters", "Converting Inches To Meters", " inches = ? meters"},
    { 35, "Converting Feet To Meters", "Converting Feet To Meters", " feet = ? meters"},
    { 34, "Converting Miles To Kilometers", "Converting Miles To Kilometers", " miles = ? kilometers"},
    { 33, "Converting Pounds To Grams", "Converting Pounds To Grams", " pounds = ? grams"},
    { 32, "Converting Ounces To Grams", "Converting Ounces To Grams", " ounces = ? grams"},
    { 31, "Converting Meters To Inches", "Converting Meters To Inches", " meters = ? inches"},
    { 30, "Converting Meters To Feet", "Converting Meters To Feet", " meters = ? feet"},
    { 29, "Converting Kilometers To Miles", "Converting Kilometers To Miles", " kilometers = ? miles"},
    { 28, "Converting Grams To Ounces", "Converting Grams To Ounces", " grams = ? ounces"},
    {111, "Converting Grams To Pounds", "Converting Grams To Pounds", " grams = ? pounds"},
    {110, "Converting Fahrenheit To Celsius", "Converting Fahrenheit To Celsius", " degrees fahrenheit = ? degrees celsius"},
    {109, "Converting Celsius To Fahrenheit", "Converting Celsius To Fahrenheit", " degrees celsius = ? degrees fahrenheit"},
    {108, "Plotting A Point", "Plot the following points on a graph:", ""},
    {107, "Calculating A Point's Quadrant", "Determine which quadrant on a graph the following points are located:", ""},
    {106, "Graphing A Line Using Two Points", "Graph a line using the following pair of points:", ""},
    {105, "Graphing A Linear Equation", "Graph the following linear equation:", ""},
    { 23, "Meter Conversions", "", ""},
    { 24, "Gram Conversions", "", ""},
    {101, "Solving Equations", "Solve the following equations:", ""},
    {102, "Simplifying Polynomials", "Simplify the following polynomials:", ""},
    {103, "Evaluating Polynomials", "Evaluate the following polynomials:", ""},
    { 15, "Calculating Circumference Using Radius", "Calculate the circumference of a circle using radius:", ""},
    { 16, "Calculating Circumference Using Diameter", "Calculate the circumference of a circle using diameter:", ""},
    { 17, "Calculating Diameter Using Radius", "Calculate the diameter of a circle using radius:", ""},
    { 18, "Calculating Radius Using Diameter", "Calculate the radius of a circle using diameter:", ""},
    {  1, "Volume of a Box/Cube", "Calculate the Volume of a Box/Cube:", ""},
    {  2, "Volume of a Cylinder", "Calculate the Volume of a Cylinder:", ""},
    {  3, "Volume of a Cone", "Calculate the Volume of a Cone:", ""},
    {  4, "Volume of a Pyramid", "Calculate the Volume of a Pyramid:", ""},
    {  5, "Volume of a Sphere", "Calculate the Volume of a Sphere:", ""},
    {  6, "Area of a Square/Rectangle", "Calculate the Area of a Square/Rectangle:", ""},
    {  7, "Area of a Circle", "Calculate the Area of a Circle:", ""},
    {  8, "Area of a Triangle", "Calculate the Area of a Triangle:", ""},
    {  9, "Area of a Parallelogram", "Calculate the Area of a Parallelogram:", ""},
    { 10, "Area of a Trapezoid", "Calculate the Area of a Trapezoid:", ""},
    { 11, "Similar Triangles", "Calculate the lengths of the sides (a,b,c) of Triangle 2 if Triangle 1 and 2 are similar:", ""},
    { 12, "Pythagorean Theorem", "Use the pythagorean theorem (a^2^+b^2^=c^2^) to calculate the third side of the triangle:", ""},
    { 13, "Perimeter of a Square/Rectangle", "Calculate the Perimeter of a Square/Rectangle:", ""},
    {104, "Straight/Obtuse/Right/Acute Angles", "Determine whether this degree measurement is Straight, Obtuse, Right, or Acute:", "^o^"},
    { 19, "Perimeter of a Triangle", "Calculate the Perimeter of a Triangle:", ""},
};
// clang-format on

}  // namespace

std::span<const TestTopicRowData> testTopicTable() {
    return rows;
}

const TestTopicRowData* findTestTopic(std::string_view topic) {
    const auto named =
        std::find_if(std::begin(rows), std::end(rows), [&](const TestTopicRowData& row) { return row.topic == topic; });
    if (named != std::end(rows)) return named;
    const TopicRow* other = findTopic(topic);
    if (other == nullptr) return nullptr;
    const auto same = std::find_if(std::begin(rows), std::end(rows),
                                   [&](const TestTopicRowData& row) { return row.testType == other->code; });
    return same == std::end(rows) ? nullptr : same;
}

}  // namespace ordwise
