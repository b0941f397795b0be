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

TEST(SimilarTriangles, WorksFromTheKnownSide) {
    using Sides = std::array<std::string, 3>;
    EXPECT_EQ(similarSides({"", "2", ""}), (Sides{"1.5", "2", "2.5"}));
    EXPECT_EQ(similarSides({"", "", "10"}), (Sides{"6", "8", "10"}));
    // Two sides are filled on the worksheet: the first of a2, c2, b2 counts.
    EXPECT_EQ(similarSides({"6", "", "99"}), (Sides{"6", "8", "10"}));
    EXPECT_EQ(similarSides({"", "99", "10"}), (Sides{"6", "8", "10"}));
    // The ratio is used as it is shown.
    EXPECT_EQ(similarSides({"9", "", ""}, 1), (Sides{"9", "13.3", "16.7"}));
}

TEST(Circles, AreSolvedWithPiAsItIsShown) {
    EXPECT_EQ(answerOf([] { Circumference("10", CircleMeasure::Diameter); }, 0), "Circumference = 30");
    EXPECT_EQ(answerOf([] { Circumference("10", CircleMeasure::Diameter); }, 7), "Circumference = 31.415926");
    EXPECT_EQ(answerOf([] { Area("3.1415926", "10", AreaShape::Circle, ""); }, 0), "Area = 314");
}

TEST(Figures, ComplainInTheirPlaceAndStop) {
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

TEST(Figures, StartTheirLinesBelowThePicture) {
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

TEST(Figures, AgreeWithTheirFormulasOnAnyLengths) {
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
