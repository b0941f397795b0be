#include "Arguments.hpp"

#include "NearestNames.hpp"
#include "Requests.hpp"
#include "TextTools.hpp"

#include <algorithm>
#include <charconv>

namespace ordwise {
namespace {

constexpr char mark = '\x1f';

bool isDigits(const std::string& text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

}  // namespace

std::vector<std::string> markedArguments(int argc, const char* const* argv) {
    std::vector<std::string> arguments;
    for (int i = argc - 1; i > 0; --i) {
        std::string argument = argv[i];
        const bool single = argument.size() > 1 && argument[0] == '-' && argument[1] != '-' && argument != "-h";
        if (single || argument.starts_with(mark)) argument.insert(argument.begin(), mark);
        arguments.push_back(std::move(argument));
    }
    return arguments;
}

std::string unmarked(const std::string& argument) {
    return argument.starts_with(mark) ? argument.substr(1) : argument;
}

std::string withoutMarks(std::string sentence) {
    std::erase(sentence, mark);
    return sentence;
}

std::string commandComplaint(int argc, const char* const* argv, const std::vector<std::string>& commands) {
    const std::string word = argc < 2 ? "" : argv[1];
    if (word == "-h" || word == "--help" || word == "--version") return "";
    if (word.empty() || word.starts_with('-')) return "A command comes first: " + joined(commands, ", ") + ".";
    if (std::find(commands.begin(), commands.end(), word) != commands.end()) return "";
    return "There is no command \"" + word + "\"; the nearest is \"" + nearestNames(word, commands, 1).front() + "\".";
}

std::pair<std::string, std::string> assignmentOf(const std::string& option, const std::string& text) {
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos) throw BadRequest(option + " takes NAME=VALUE, not \"" + text + "\".");
    return {text.substr(0, equals), text.substr(equals + 1)};
}

int numberOf(const std::string& option, const std::string& text) {
    if (text.size() > 4 || !isDigits(text)) throw BadRequest(option + " takes a whole number, not \"" + text + "\".");
    return std::stoi(text);
}

std::uint64_t seedOf(const std::string& text) {
    std::uint64_t seed = 0;
    const auto end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, seed);
    if (!isDigits(text) || read.ec != std::errc() || read.ptr != end)
        throw BadRequest("--seed takes a whole number from 0 to 18446744073709551615, not \"" + text + "\".");
    return seed;
}

}  // namespace ordwise
