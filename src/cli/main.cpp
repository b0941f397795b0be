#include "CommandLine.hpp"

#include <iostream>

int main(int argc, char** argv) {
    // Nothing here reads or writes with stdio; a batch decides itself when its answers are due.
    std::ios::sync_with_stdio(false);
    std::cin.tie(nullptr);
    return ordwise::runCommandLine(argc, argv, std::cin, std::cout, std::cerr);
}
