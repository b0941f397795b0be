// Which topic or command was meant by a name that is none.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ordwise {

// Up to `count` of the names, the nearest first: names that hold the text or begin like it before
// names that differ in a few letters.
[[nodiscard]] std::vector<std::string> nearestNames(std::string_view name, const std::vector<std::string>& names,
                                                    std::size_t count);
// The same of all topics.
[[nodiscard]] std::vector<std::string> nearestTopics(std::string_view name, std::size_t count = 3);

// e.g. There is no topic "Arithmatic". The nearest are "Arithmetic", ...
[[nodiscard]] std::string unknownTopicSentence(std::string_view name);

}  // namespace ordwise
