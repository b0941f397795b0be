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

PlainPlatform::PlainPlatform() : before_(platform) {
    platform = Platform{&dialogs, &windows, &clock};
}

PlainPlatform::~PlainPlatform() {
    platform = before_;
}

}  // namespace ordwise
