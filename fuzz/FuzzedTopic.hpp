// The first byte of an input chooses the topic, the rest is text.
#pragma once

#include "Requests.hpp"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace ordwise::fuzz {

struct TopicAndText {
    std::string topic;
    std::string text;
};

inline const std::vector<std::string>& topics() {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> all;
        for (const auto& topic : answerTopics()) all.push_back(topic["name"].get<std::string>());
        return all;
    }();
    return names;
}

inline TopicAndText topicAndText(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return {topics().front(), ""};
    return {topics()[data[0] % topics().size()], std::string(data + 1, data + size)};
}

// What the program writes must be writable whatever came in.
inline void write(const nlohmann::ordered_json& answer) {
    (void)answer.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}

}  // namespace ordwise::fuzz
