// The generators of the scripted topics by family, and the draws that they share.
#pragma once

#include "TopicProblems.hpp"

namespace ordwise::test {

[[nodiscard]] std::vector<TopicGenerator> geometryGenerators();
[[nodiscard]] std::vector<TopicGenerator> numberGenerators();
[[nodiscard]] std::vector<TopicGenerator> listGenerators();
[[nodiscard]] std::vector<TopicGenerator> percentGenerators();
[[nodiscard]] std::vector<TopicGenerator> conversionGenerators();
[[nodiscard]] std::vector<TopicGenerator> scienceGenerators();

// A number as a box or the paper takes it: mostly small and whole, now and then with decimals, with a
// zero in front, or beginning with the point.
[[nodiscard]] std::string positiveText(Draws& draws);
// The same, and sometimes 0 or, where a box allows it, negative.
[[nodiscard]] std::string boxText(Draws& draws);
[[nodiscard]] double valueText(const std::string& text);

// Decimal places for this problem, put into its settings. 2 is the setting of a fresh program.
[[nodiscard]] int placesFor(Draws& draws, Problem& problem);

}  // namespace ordwise::test
