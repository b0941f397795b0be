#include "GeometrySolvers.hpp"

#include "NumberText.hpp"
#include "SolutionOf.hpp"
#include "TextTools.hpp"

#include <array>
#include <cmath>
#include <functional>
#include <random>

namespace ordwise::test {
namespace {

// The sides of the second triangle, of which one is known, after the solution.
std::array<std::string, 3> similarSides(std::array<std::string, 3> second, int roundPlaces = 2) {
    solutionOf([&] { SimilarTriangles("3", "4", "5", second[0], second[1], second[2]); }, roundPlaces);
    return second;
}

TEST(SimilarTriangles, worksFromTheKnownSide) {
    std::string a2 = "6";
    std::string b2;
    std::string c2;
    EXPECT_EQ(asText(solutionOf([&] { SimilarTriangles("3", "4", "5", a2, b2, c2); })), R"(
a1 = 3, b1 = 4, c1 = 5, a2 = 6, b2 = , c2 = 
The sides of a similar triangle are equally proportioned:
    In other words, #a1/a2# = #b1/b2# = #c1/c2#
#a1/a2# = proportion
    Use the side of the triangle given on both triangles to determine the other side's proportions.
#3/6# = 0.5
    Divide 3 by 6.
#a1/a2# = #b1/b2# = #c1/c2# = 0.5
    The ratio of every side must equal 0.5
#b1/b2# = 0.5
    Use 0.5 to calculate b2.
#4/b2# = 0.5
    Substitute the value of b1 (4) into the equation.
b2 = 8
    Solve for b2.
#c1/c2# = 0.5
    Use 0.5 to calculate c2.
#5/c2# = 0.5
    Substitute the value of c1 (5) into the equation.
c2 = 10
    Solve for c2.
)");
    using Sides = std::array<std::string, 3>;
    EXPECT_EQ(similarSides({"", "2", ""}), (Sides{"1.5", "2", "2.5"}));
    EXPECT_EQ(similarSides({"", "", "10"}), (Sides{"6", "8", "10"}));
    // Two sides are filled on the worksheet: the first of a2, b2, c2 counts.
    EXPECT_EQ(similarSides({"6", "", "99"}), (Sides{"6", "8", "10"}));
    EXPECT_EQ(similarSides({"", "8", "99"}), (Sides{"6", "8", "10"}));
    // The ratio is used as it is shown.
    EXPECT_EQ(similarSides({"9", "", ""}, 1), (Sides{"9", "13.3", "16.7"}));
}

TEST(SimilarTriangles, endsWithARatioThatRoundsToZero) {
    std::string a2 = "9999";
    std::string b2;
    std::string c2;
    const Solution solution = solutionOf([&] { SimilarTriangles("3", "4", "5", a2, b2, c2); });
    EXPECT_EQ(solution.fault, 11);
    EXPECT_EQ(solution.notes.back(), "Use 0 to calculate b2.");
}

TEST(Pythagoras, findsEachSide) {
    EXPECT_EQ(asText(solutionOf([] { Pythagoras("3", "4", ""); })), R"(
a = 3, b = 4, c = ?
a^2^ + b^2^ = c^2^
    This is the Pythagorean Theorem, used to calculate the lengths of the sides of right triangles.
3^2^ + 4^2^ = c^2^
    Substitute the given values.
9 + 16 = c^2^
    Calculate 3^2^ and 4^2^.
25 = c^2^
    Add 9 and 16
5 = c
    Take the square root of both sides.
)");
    EXPECT_EQ(asText(solutionOf([] { Pythagoras("5", "", "13"); })), R"(
a = 5, b = ?, c = 13
a^2^ + b^2^ = c^2^
    This is the Pythagorean Theorem, used to calculate the lengths of the sides of right triangles.
5^2^ + b^2^ = 13^2^
    Substitute the given values.
25 + b^2^ = 169
    Calculate 5^2^ and 13^2^.
b^2^ = 144
    Subtract 25 from both sides.
b = 12
    Take the square root of both sides.
)");
    EXPECT_EQ(answerOf([] { Pythagoras("", "2", "3"); }), "a = 2.24");
    EXPECT_EQ(answerOf([] { Pythagoras("5", "", "5"); }), "b = 0");
}

TEST(Circles, areSolvedWithPiAsItIsShown) {
    EXPECT_EQ(asText(solutionOf([] { Circumference("2.5", CircleMeasure::Radius); })), R"(
radius = 2.5
Circumference = 2 ` * radius
    This is the formula for calculating the circumference of a circle using radius.
Circumference = 2 ` * 2.5
    Substitute 2.5 in for radius.
Circumference = 15.7
    Multiply all terms to calculate the circumference.
)");
    EXPECT_EQ(answerOf([] { Circumference("10", CircleMeasure::Diameter); }, 0), "Circumference = 30");
    EXPECT_EQ(answerOf([] { Circumference("10", CircleMeasure::Diameter); }, 7), "Circumference = 31.415926");
    EXPECT_EQ(answerOf([] { DiameterFromRadius(".5"); }), "Diameter = 1");
    EXPECT_EQ(asText(solutionOf([] { RadiusFromDiameter("5"); })), R"(
diameter = 5
Radius = #diameter/2#
    This is the formula for calculating radius using diameter.
Radius = #5/2#
    Substitute 5 in for diameter.
Radius = 2.5
    Divide 5 by 2.
)");
}

TEST(Figures, complainInTheirPlaceAndStop) {
    struct Case {
        std::function<void()> solver;
        std::size_t steps;
        const char* complaint;
    };
    std::string two = "2";
    std::string zero = "0";
    std::string none;
    const Case cases[] = {
        {[&] { SimilarTriangles("3", "0", "5", two, none, none); }, 2,
         "All sides of a triangle must have a length greater than zero."},
        {[&] { SimilarTriangles("3", "4", "5", zero, none, none); }, 3,
         "All sides of a triangle must have a length greater than zero."},
        {[] { Pythagoras("0", "", "5"); }, 4, "All sides of a triangle must be greater than zero."},
        {[] { Pythagoras("5", "", "4"); }, 4, "Side c must be the longest side in a right triangle."},
        {[] { Pythagoras("", "5", "4"); }, 4, "Side c must be the longest side in a right triangle."},
        {[] { Circumference("0", CircleMeasure::Radius); }, 2, "The radius of a circle must be greater than 0."},
        {[] { Circumference("-1", CircleMeasure::Diameter); }, 2, "The diameter of a circle must be greater than 0."},
        {[] { DiameterFromRadius("0"); }, 2, "The radius of a circle must be greater than 0."},
        {[] { RadiusFromDiameter("0"); }, 2, "The diameter of a circle must be greater than 0."},
        {[] { Perimeter("3", "4", "0", PerimeterShape::Triangle); }, 4,
         "All sides of a triangle must be greater than zero."},
        {[] { Perimeter("3", "-4", "", PerimeterShape::Rectangle); }, 4,
         "All sides of a square/rectangle must be greater than zero."},
        {[] { Area("0", "3", AreaShape::Triangle, ""); }, 4, "All sides must be greater than zero."},
        {[] { Area("2", "0", AreaShape::Rectangle, ""); }, 4, "All sides must be greater than zero."},
        {[] { Area("3.1415926", "0", AreaShape::Circle, ""); }, 4, "The radius must be greater than zero."},
        {[] { Area("2", "3", AreaShape::Trapezoid, "0"); }, 4, "All sides must be greater than zero."},
        {[] { Volume("2", "3", "0", Solid::Box); }, 4, "All sides must be greater than zero."},
        {[] { Volume("2", "0", "1", Solid::Pyramid); }, 4, "All sides must be greater than zero."},
        {[] { Volume("3.1415926", "0", "1", Solid::Cylinder); }, 5, "All lengths must be greater than zero."},
        {[] { Volume("3.1415926", "1", "0", Solid::Cone); }, 5, "All lengths must be greater than zero."},
        {[] { Volume("3.1415926", "-2", "NA", Solid::Sphere); }, 4, "The radius must be greater than zero."},
    };
    for (const Case& c : cases) {
        const Solution solution = solutionOf(c.solver);
        expectSound(solution, solution.lines[0]);
        EXPECT_EQ(solution.lines.size(), c.steps) << solution.lines[0];
        EXPECT_EQ(solution.last(), c.complaint) << solution.lines[0];
    }
}

TEST(Figures, areWorkedOutWhole) {
    EXPECT_EQ(asText(solutionOf([] { Perimeter("3", "4.5", "", PerimeterShape::Rectangle); })), R"(
base = 3, height = 4.5
Perimeter = 2 * (base + height)
    To find the perimeter of a shape, add the lengths of all sides of that shape.  Since the lengths of opposite sides of a square/rectangle will be equal, length and width can be added and multiplied by 2.
Perimeter = 2 * (3 + 4.5)
    Substitute 3 in for base, and 4.5 in for height.
Perimeter = 15
    Add 3 and 4.5 first, then multiply by 2.
)");
    EXPECT_EQ(asText(solutionOf([] { Area("2", "5", AreaShape::Trapezoid, "4"); })), R"(
height = 5, a = 2, b = 4
Area = #1/2# * height * (a + b)
    This is the formula for calculating the area of a trapezoid.
Area = #1/2# * 5 * (2 + 4)
    Substitute the values of a, b, and height into the formula.
Area = 15
    Calculate the answer by multiplying.
)");
    EXPECT_EQ(asText(solutionOf([] { Volume("3.1415926", "2", "6", Solid::Cone); })), R"(
radius = 2, height = 6
Volume = #1/3# base * height
    This is the formula for calculating the volume of a cone.
Volume = #1/3# * ` * radius^2^ * height   (` equals about 3.14 or about #22/7#)
    The base is equal to the area of a circle.
Volume = #1/3# * 3.14 * 2^2^ * 6
    Substitute the value of pi, radius, and height of the cone into the formula.
Volume = 25.13
    Calculate the answer by multiplying.
)");
}

TEST(Figures, startTheirLinesBelowThePicture) {
    DisplayList drawn;
    solutionOf([&] {
        DiameterFromRadius("4");
        drawn = frmPaper.Paper[0].drawn();
    });
    ASSERT_FALSE(drawn.empty());
    for (const DrawOperation& operation : drawn) {
        const auto* glyphs = std::get_if<Glyphs>(&operation);
        EXPECT_TRUE(!glyphs || glyphs->y > 335);
    }
}

// The number behind the last "= " of the answer, or before " = c".
double answeredNumber(const std::string& answer) {
    const std::string number = replaced(answer, " = c", "");
    const std::size_t at = number.rfind("= ");
    return valueOf(at == std::string::npos ? number : number.substr(at + 2));
}

TEST(Figures, agreeWithTheirFormulasOnAnyLengths) {
    std::mt19937 random(7);
    std::uniform_int_distribution<int> hundredths(1, 99999);
    const std::string pi = "3.1415926";
    const double p = 3.1415926;
    for (int round = 0; round < 100; ++round) {
        const double a = hundredths(random) / 100.0;
        const double b = hundredths(random) / 100.0;
        const double c = hundredths(random) / 100.0;
        const std::string ta = textOf(a);
        const std::string tb = textOf(b);
        const std::string tc = textOf(c);
        struct Case {
            std::function<void()> solver;
            double expected;
        };
        const Case cases[] = {
            {[&] { Perimeter(ta, tb, tc, PerimeterShape::Triangle); }, a + b + c},
            {[&] { Perimeter(ta, tb, "", PerimeterShape::Rectangle); }, 2 * a + 2 * b},
            {[&] { Circumference(ta, CircleMeasure::Radius); }, 6.28 * a},
            {[&] { Circumference(ta, CircleMeasure::Diameter); }, 3.14 * a},
            {[&] { DiameterFromRadius(ta); }, a + a},
            {[&] { RadiusFromDiameter(ta); }, a / 2},
            {[&] { Area(ta, tb, AreaShape::Rectangle, ""); }, a * b},
            {[&] { Area(ta, tb, AreaShape::Parallelogram, ""); }, a * b},
            {[&] { Area(ta, tb, AreaShape::Triangle, ""); }, a * b / 2},
            {[&] { Area(pi, ta, AreaShape::Circle, ""); }, p * a * a},
            {[&] { Area(ta, tb, AreaShape::Trapezoid, tc); }, (a + c) / 2 * b},
            {[&] { Volume(ta, tb, tc, Solid::Box); }, a * b * c},
            {[&] { Volume(ta, tb, tc, Solid::Pyramid); }, a * b * c / 3},
            {[&] { Volume(pi, ta, tb, Solid::Cylinder); }, p * a * a * b},
            {[&] { Volume(pi, ta, tb, Solid::Cone); }, p * a * a * b / 3},
            {[&] { Volume(pi, ta, "NA", Solid::Sphere); }, p * a * a * a * 4 / 3},
            {[&] { Pythagoras(ta, tb, ""); }, std::hypot(a, b)},
            {[&] { Pythagoras(ta, "", textOf(a + b)); }, std::sqrt((a + b) * (a + b) - a * a)},
            {[&] { Pythagoras("", tb, textOf(a + b)); }, std::sqrt((a + b) * (a + b) - b * b)},
        };
        for (const Case& each : cases) {
            const std::string answer = answerOf(each.solver);
            EXPECT_NEAR(answeredNumber(answer), each.expected, 0.0051 + each.expected * 1e-13)
                << ta << ' ' << tb << ' ' << tc;
        }
    }
}

}  // namespace
}  // namespace ordwise::test
