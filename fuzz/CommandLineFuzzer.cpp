// Any bytes as a command line, an argument a line.
//
// A command ends with one of its statuses and, where that is not 0, with a sentence.
#include "CommandLine.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

namespace ordwise::fuzz {
namespace {

void check(bool holds) {
    if (!holds) std::abort();
}

// Files are read and written in an empty folder, and nowhere else.
std::vector<std::string> argumentsOf(std::string text) {
    static const bool moved = [] {
        std::string folder = (std::filesystem::temp_directory_path() / "ordwise-fuzz.XXXXXX").string();
        check(::mkdtemp(folder.data()) != nullptr);
        std::filesystem::current_path(folder);
        return true;
    }();
    (void)moved;
    std::replace(text.begin(), text.end(), '\0', ' ');
    std::vector<std::string> arguments{"ordwise-cli"};
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) arguments.push_back(line);
    const bool touchesFiles = std::any_of(arguments.begin(), arguments.end(), [](const std::string& argument) {
        return argument == "load" || argument.starts_with("--save");
    });
    if (touchesFiles) {
        for (std::string& argument : arguments) std::replace(argument.begin(), argument.end(), '/', '-');
    }
    return arguments;
}

void runCommand(const std::string& text) {
    const std::vector<std::string> arguments = argumentsOf(text);
    std::vector<const char*> argv;
    argv.reserve(arguments.size());
    for (const std::string& argument : arguments) argv.push_back(argument.c_str());
    std::istringstream in(text);
    std::ostringstream out;
    std::ostringstream err;
    const int status = runCommandLine(static_cast<int>(argv.size()), argv.data(), in, out, err);
    check(status >= exitDone && status <= exitUnreadable);
    check((status == exitDone) == err.str().empty());
    // The mark that the arguments carry inside is shown only where it was given.
    if (text.find('\x1f') == std::string::npos) check((out.str() + err.str()).find('\x1f') == std::string::npos);
}

}  // namespace
}  // namespace ordwise::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ordwise::fuzz::runCommand(std::string(data, data + size));
    return 0;
}
