// What both tests of the judge do to lines.
#pragma once

#include "Draws.hpp"

#include <string>
#include <vector>

namespace ordwise::test {

// A number as long as a single prints, which may have been longer.
inline bool hasSevenDigits(const std::string& line) {
    int run = 0;
    for (const char c : line) {
        if (c == '.') continue;
        run = c >= '0' && c <= '9' ? run + 1 : 0;
        if (run >= 7 || c == 'E') return true;
    }
    return false;
}

// One digit or sign of the line changed, in an exponent too; the line itself where it has none.
inline std::string spoiled(std::string line, Draws& draws) {
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if ((line[i] >= '0' && line[i] <= '9') || line[i] == '+' || line[i] == '-') places.push_back(i);
    }
    if (places.empty()) return line;
    char& c = line[places[static_cast<std::size_t>(draws.below(static_cast<int>(places.size())))]];
    c = c == '+' ? '-' : c == '-' ? '+' : static_cast<char>('1' + (c - '0') % 9);
    return line;
}

}  // namespace ordwise::test
