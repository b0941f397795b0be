// Any bytes typed as a problem, refused keys left out, in boxes where the topic has boxes, and solved.
#include "FuzzedTopic.hpp"

#include <algorithm>

namespace {

// "3 4 5" -> boxes 1 to 3
std::map<int, std::string> boxesOf(const std::string& text) {
    std::map<int, std::string> boxes;
    std::size_t begin = 0;
    for (int number = 1; number <= 6 && begin <= text.size(); ++number) {
        const std::size_t end = std::min(text.find(' ', begin), text.size());
        boxes[number] = text.substr(begin, end - begin);
        begin = end + 1;
    }
    return boxes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto [topic, text] = ordwise::fuzz::topicAndText(data, size);
    ordwise::SolveRequest request;
    request.topic = topic;
    request.answers = {"2", "-1", "x", "y", "3"};
    request.dropRefused = true;
    try {
        request.problem = text;
        ordwise::fuzz::write(ordwise::answerSolve(request));
    } catch (const ordwise::BadRequest&) {
        request.problem.clear();
        request.boxes = boxesOf(text);
        try {
            ordwise::fuzz::write(ordwise::answerSolve(request));
        } catch (const ordwise::BadRequest&) {
        }
    } catch (const ordwise::AnswersUsedUp&) {
    }
    return 0;
}
