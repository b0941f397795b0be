// ordwise-cli: the system without a window.
#pragma once

#include <iosfwd>

namespace ordwise {

enum ExitStatus {
    exitDone = 0,
    exitRefused = 1,     // the problem was refused or its solve ended in a message box
    exitUnreadable = 2,  // the command line or a file could not be read, or input or output failed
};

// Runs one command and returns its exit status. Results go to `out`, every failure as one sentence
// to `err`.
int runCommandLine(int argc, const char* const* argv, std::istream& in, std::ostream& out, std::ostream& err);

}  // namespace ordwise
