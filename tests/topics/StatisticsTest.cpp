#include "StatisticsSolvers.hpp"

#include "SolutionOf.hpp"

namespace ordwise::test {
namespace {

TEST(Statistics, ValuesThatAreEqualButTypedDifferentlyKeepTheirText) {
    EXPECT_EQ(solutionOf([] { Median("2,1.0,1,0"); }).lines[2], "0,1,1.0,2");
}

TEST(Statistics, TextThatIsNoNumberEndsInTheTypeFault) {
    for (const auto solver : {Mean, Median, Range}) EXPECT_EQ(solutionOf([&] { solver("1,,2"); }).fault, 13);
}

}  // namespace
}  // namespace ordwise::test
