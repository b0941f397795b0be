// What was drawn, for tests to look at: runs of glyphs without the blanks that end a line.
#pragma once

#include "DisplayList.hpp"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace ordwise {

inline std::vector<Glyphs> runsOf(const DisplayList& list) {
    std::vector<Glyphs> runs;
    for (const DrawOperation& operation : list) {
        const auto* run = std::get_if<Glyphs>(&operation);
        if (run == nullptr) continue;
        runs.push_back(*run);
        std::string& text = runs.back().text;
        text.erase(text.find_last_not_of(' ') + 1);
    }
    return runs;
}

// The first run of this text.
inline Glyphs runOf(const DisplayList& list, std::string_view text) {
    for (const Glyphs& run : runsOf(list)) {
        if (run.text == text) return run;
    }
    ADD_FAILURE() << "nothing drawn reads " << text;
    return {};
}

}  // namespace ordwise
