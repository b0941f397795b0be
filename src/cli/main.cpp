#include "CommandLine.hpp"

#include <iostream>

int main(int argc, char** argv) {
    return ordwise::runCommandLine(argc, argv, std::cin, std::cout, std::cerr);
}
