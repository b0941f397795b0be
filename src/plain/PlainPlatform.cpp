#include "PlainPlatform.hpp"

namespace ordwise {

MessageAnswer PlainDialogs::messageBox(std::string_view text, std::string_view caption, MessageButtons) {
    messages.push_back({std::string(caption), std::string(text)});
    return nextAnswer;
}

std::string PlainDialogs::inputBox(std::string_view prompt, std::string_view caption) {
    if (answers.empty()) throw NoAnswerLeft(std::string(prompt));
    std::string answer = answers.front();
    answers.pop_front();
    prompts.push_back({std::string(caption), std::string(prompt), answer});
    return answer;
}

std::optional<Colour> PlainColours::chooseColour(Colour current) {
    offered.push_back(current);
    if (answers.empty()) return std::nullopt;
    const Colour answer = answers.front();
    answers.pop_front();
    return answer;
}

std::string PlainPrinter::print(const PrintJob& job) {
    if (refusal.empty()) jobs.push_back(job);
    return refusal;
}

PlainPlatform::PlainPlatform() : before_(platform) {
    platform = Platform{&dialogs, &windows, &clock, &colours, &printer};
}

PlainPlatform::~PlainPlatform() {
    platform = before_;
}

}  // namespace ordwise
