// Problems that the key check refuses but the engine can do, e.g. (x+1)^2 and x^2-5x+6=0.
#pragma once

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

namespace ordwise::test {

// Puts a flat text on a fresh worksheet of the topic as if every key had been accepted, runs Solve and
// gives the "steps", "messages", "prompts" and (empty) "refused" of an answer to a solve request.
[[nodiscard]] nlohmann::ordered_json answerUnchecked(const std::string& topic, const std::string& text,
                                                     const std::vector<std::string>& answers);

}  // namespace ordwise::test
