#include "Channels.hpp"
#include "CommandLine.hpp"
#include "DiskFiles.hpp"

#include <unistd.h>

#include <csignal>
#include <iostream>

int main(int argc, char** argv) {
    ordwise::prepareProcess();
    std::signal(SIGPIPE, SIG_IGN);  // an output that nobody reads any more is told like any other that is lost
    ordwise::InputChannel from(STDIN_FILENO);
    ordwise::OutputChannel to(STDOUT_FILENO);
    std::istream in(&from);
    std::ostream out(&to);
    in.exceptions(std::ios::badbit);
    out.exceptions(std::ios::badbit);
    // Whoever waits for an answer before he asks on gets it at once; a long file is written in blocks.
    from.beforeWaiting = [&out] { out.flush(); };
    return ordwise::runCommandLine(argc, argv, in, out, std::cerr);
}
