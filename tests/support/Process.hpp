// Runs a program to its end and tells what came of it.
#pragma once

#include <string>
#include <vector>

namespace ordwise::test {

struct Outcome {
    int status = -1;  // the exit status, 128 + signal if it was killed
    std::string out;
    std::string err;
    long residentKilobytes = 0;
    double processorMilliseconds = 0;
};

// `arguments` begins with the program. Everything in `input` is written to its standard input.
[[nodiscard]] Outcome run(const std::vector<std::string>& arguments, const std::string& input = "");

}  // namespace ordwise::test
