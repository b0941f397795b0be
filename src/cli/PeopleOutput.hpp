// Answers as people read them.
#pragma once

#include <nlohmann/json.hpp>

#include <cstdint>
#include <iosfwd>

namespace ordwise {

// The problem, each step on a line with its note indented below it, and a final line.
void printSolution(const nlohmann::ordered_json& answer, std::ostream& out);
// The problem, each line with its verdict and the reason indented below it, and what comes next.
void printCheck(const nlohmann::ordered_json& answer, std::ostream& out);
// The one sentence for lines that have not come to an answer.
[[nodiscard]] std::string checkFailureSentence(const nlohmann::ordered_json& answer);
// Each key with what stands on the paper after it, or the reason of its refusal.
void printKeys(const nlohmann::ordered_json& answer, std::ostream& out);
// A practice test: each version under the heading, its key behind it, the seed at the foot.
void printTest(const nlohmann::ordered_json& answer, std::uint64_t seed, std::ostream& out);
// A topic a line: code and name.
void printTopics(const nlohmann::ordered_json& answer, std::ostream& out);

// The one sentence for a problem that was not solved. e.g. The key "q" (at 3) was refused: ...
[[nodiscard]] std::string failureSentence(const nlohmann::ordered_json& answer);

}  // namespace ordwise
