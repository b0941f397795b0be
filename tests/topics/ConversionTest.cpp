#include "ConversionSolvers.hpp"

#include "SolutionOf.hpp"

namespace ordwise::test {
namespace {

template <std::string (*stage)(const std::string&, bool)>
void alone(const std::string& value) {
    stage(value, true);
}

TEST(Conversion, ShowsSoManyPlacesAsItsTopicWants) {
    const struct {
        void (*convert)(const std::string&);
        const char* value;
        const char* last;
    } cases[] = {
        {alone<ConvertInchesToFeet>, "12", "12 inches = 1 feet"},
        {alone<ConvertInchesToFeet>, "7", "7 inches = 0.58 feet"},
        {ConvertFeetToMiles, "100", "100 feet = 0.01894 miles"},
        {ConvertGramsToPounds, "100", "100 g = 0.22 lb"},
        {ConvertGramsToOunces, "1000", "1000 g = 35.2 oz"},
        {alone<ConvertPoundsToTons>, "5000", "5000lb = 2.5 T"},
        {alone<ConvertPoundsToTons>, "1", "1lb = 0.0005 T"},
        {alone<ConvertTonsToPounds>, "1.5", "1.5T = 3000 lb"},
        {ConvertFeetToYards, "1", "1 feet = 0.333333333333333 yards"},
        {ConvertKilometersToMiles, "05.", "05. km = 3.105 mile(s)"},
        // A stage hands on what RoundPlaces leaves of it, here one place of 0.58333 feet.
        {ConvertInchesToYards, "7", "7 inches = 0.2 yards"},
        {ConvertOuncesToTons, "5000", "5000 oz = 0.15625 T"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(solutionOf([&] { each.convert(each.value); }, 1).last(), each.last) << each.value;
}

}  // namespace
}  // namespace ordwise::test
