#include "GeometrySolvers.hpp"

#include "SolutionOf.hpp"

#include <array>

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
    // The ratio is used as it is shown.
    EXPECT_EQ(similarSides({"9", "", ""}, 1), (Sides{"9", "13.3", "16.7"}));
}

TEST(Circles, AreSolvedWithPiAsItIsShown) {
    EXPECT_EQ(answerOf([] { Circumference("10", CircleMeasure::Diameter); }, 0), "Circumference = 30");
    EXPECT_EQ(answerOf([] { Circumference("10", CircleMeasure::Diameter); }, 7), "Circumference = 31.415926");
    EXPECT_EQ(answerOf([] { Area("3.1415926", "10", AreaShape::Circle, ""); }, 0), "Area = 314");
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

}  // namespace
}  // namespace ordwise::test
