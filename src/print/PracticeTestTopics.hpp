// What a practice test says of each topic, one row a topic.
#pragma once

#include <span>
#include <string_view>

namespace ordwise {

struct TestTopicRowData {
    int testType;  // the ProblemType
    std::string_view topic;
    std::string_view heading;  // above the section; "" for none
    std::string_view suffix;   // behind every problem
};

[[nodiscard]] std::span<const TestTopicRowData> testTopicTable();
// The row of a topic, by its name or, for a second name of the same problem, by its code; null if a
// test has no such topic.
[[nodiscard]] const TestTopicRowData* findTestTopic(std::string_view topic);

}  // namespace ordwise
