// What the arguments of the command line have in common, before and after the library reads them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ordwise {

// The arguments, last first as the reader wants them. A problem, an answer or a heading may begin with
// "-", which the reader would take for an option. Such arguments are marked before it reads them; no
// option of ours but -h has a single dash.
[[nodiscard]] std::vector<std::string> markedArguments(int argc, const char* const* argv);
// One of them as it was given.
[[nodiscard]] std::string unmarked(const std::string& argument);
// A sentence of the reader without the marks.
[[nodiscard]] std::string withoutMarks(std::string sentence);

// The sentence for a command line whose first word is none of the commands; "" for any other.
// e.g. There is no command "slove"; the nearest is "solve".
[[nodiscard]] std::string commandComplaint(int argc, const char* const* argv, const std::vector<std::string>& commands);

// "3=12" -> "3", "12". These throw BadRequest, with a sentence that names the option.
[[nodiscard]] std::pair<std::string, std::string> assignmentOf(const std::string& option, const std::string& text);
[[nodiscard]] int numberOf(const std::string& option, const std::string& text);
[[nodiscard]] std::uint64_t seedOf(const std::string& text);

}  // namespace ordwise
