// The guide: which pages it has, and which of them tells of a topic. The pages themselves are HTML in
// data/help.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace ordwise {

struct HelpPageRow {
    std::string_view file;    // e.g. "fractions.html"
    std::string_view title;   // as the list of contents has it
    std::string_view family;  // the heading of the catalogue whose topics it tells of, "" for none
};

// In the order of the list of contents. The first page is the welcome.
[[nodiscard]] std::span<const HelpPageRow> helpPages();

// Where a topic is explained, "" for what is no topic.
// e.g. "Means (Averages)" -> "averages.html#means-averages"
[[nodiscard]] std::string helpPlaceOf(std::string_view topic);

// Help Topics: at the topic in work, otherwise at the welcome.
void Help_Load();
void Help_Unload();

}  // namespace ordwise
