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
    if (!refusal.empty() && jobs.size() >= refuseAfter) return refusal;
    jobs.push_back(job);
    return "";
}

std::optional<std::string> PlainFiles::read(const std::string& path) {
    const auto found = contents.find(path);
    if (found == contents.end()) return std::nullopt;
    return found->second;
}

std::string PlainFiles::write(const std::string& path, std::string_view bytes) {
    if (refusal.empty()) contents[path] = bytes;
    return refusal;
}

bool PlainFiles::createDirectory(const std::string& path) {
    directories.push_back(path);
    return true;
}

std::optional<std::string> PlainFileDialogs::fileToSave(const FileQuestion& question) {
    questions.push_back(question);
    if (answers.empty()) return std::nullopt;
    std::string answer = answers.front();
    answers.pop_front();
    return answer;
}

std::optional<std::string> PlainFileDialogs::fileToOpen(const FileQuestion& question) {
    return fileToSave(question);
}

PlainPlatform::PlainPlatform() : before_(platform) {
    platform =
        Platform{&dialogs, &windows, &clock, &colours, &printer, &files, &fileDialogs, &browser, &systemReport, {}};
}

PlainPlatform::~PlainPlatform() {
    platform = before_;
}

}  // namespace ordwise
