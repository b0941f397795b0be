// Cases as text: what a student types and what he then sees, in files that anyone can add to.
//
//     # Anything behind a "#" in the first column is for the reader.
//     topic: Arithmetic
//     problem: 2+3*4-5
//     set RoundVar: 2
//     > 2+3*4-5
//     > 2+12-5
//         Multiply 3 by 4 using the order of operations.
//
// A case is a block without an empty line: first the request, a key and its value a line, then what
// is wanted. A topic holds until the next one is named, so the cases below it need not repeat it.
// Blanks at the end of a line do not count. What the marks of the wanted lines mean is the business
// of the test that runs the file.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>
#include <utility>
#include <vector>

namespace ordwise::test {

struct Case {
    std::string file;                                           // without folder and ending, e.g. "arithmetic"
    int line = 0;                                               // of the file, where the case begins
    std::vector<std::pair<std::string, std::string>> requests;  // e.g. {"problem", "2+3"}, the topic first
    std::vector<std::string> wanted;                            // from the first mark on, without blanks at the end

    // e.g. "arithmetic_12", a name that a test may have
    [[nodiscard]] std::string name() const;
};
std::ostream& operator<<(std::ostream& out, const Case& one);

// The cases of all "*.txt" directly in one folder and of its folders but those in `without`, in the
// order of their names. Throws std::runtime_error with file and line where a block is no case.
[[nodiscard]] std::vector<Case> casesIn(const std::filesystem::path& folder,
                                        const std::vector<std::string>& without = {});
[[nodiscard]] std::vector<Case> casesOf(std::istream& in, const std::string& file);

}  // namespace ordwise::test
