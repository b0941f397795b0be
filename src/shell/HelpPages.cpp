#include "HelpPages.hpp"

#include "Catalogue.hpp"
#include "HelpWindow.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <algorithm>
#include <cctype>

namespace ordwise {
namespace {

// clang-format off
constexpr HelpPageRow rows[] = {
    {"welcome.html",     "Welcome to Ordwise",                 ""},
    {"desk.html",        "The Desk",                           ""},
    {"typing.html",      "Typing a Problem",                   ""},
    {"solving.html",     "Solving Step by Step",               ""},
    {"graphs.html",      "Graphs",                             ""},
    {"tests.html",       "Practice Tests and Printing",        ""},
    {"saving.html",      "Saving and Opening",                 ""},
    {"settings.html",    "Settings",                           ""},
    {"keys.html",        "Keys and Shortcuts",                 ""},
    {"basics.html",      "Basic Operations",                   "Tree1"},
    {"factors.html",     "Multiples and Factoring",            "Tree2"},
    {"powers.html",      "Roots and Exponents",                "Tree2.1"},
    {"fractions.html",   "Fractions and Ratios",               "Tree3"},
    {"percents.html",    "Decimals and Percents",              "Tree3.1"},
    {"scientific.html",  "Scientific Notation",                "Tree3.2"},
    {"averages.html",    "Means, Medians, Modes and Ranges",   "Tree4"},
    {"triangles.html",   "Angles and Triangles",               "Tree5"},
    {"perimeters.html",  "Perimeters and Circumferences",      "Tree5.1"},
    {"areas.html",       "Areas and Volumes",                  "Tree6"},
    {"conversions.html", "Conversions of Units",               "Tree7"},
    {"graphing.html",    "Points and Lines",                   "Tree7.1"},
    {"formulas.html",    "Work and Distance",                  "Tree7.2"},
    {"equations.html",   "Equations and Polynomials",          "Tree8"},
};
// clang-format on

// A topic that goes by several names stands in the tree under one of them.
std::string_view nameInTree(std::string_view topic) {
    const auto names = topicNames();
    const TopicRow* row = findTopic(topic);
    if (row == nullptr || std::find(names.begin(), names.end(), topic) != names.end()) return topic;
    const auto same = std::find_if(names.begin(), names.end(),
                                   [&](std::string_view name) { return findTopic(name)->code == row->code; });
    return same == names.end() ? topic : *same;
}

// The top heading under which a topic stands.
std::string_view familyOf(std::string_view topic) {
    const auto tree = topicTree();
    const auto leaf = std::find_if(tree.begin(), tree.end(),
                                   [&](const TreeRow& row) { return row.key.empty() && row.text == topic; });
    if (leaf == tree.end()) return "";
    std::string_view heading = leaf->parent;
    for (;;) {
        const auto above =
            std::find_if(tree.begin(), tree.end(), [&](const TreeRow& row) { return row.key == heading; });
        if (above == tree.end() || above->parent.empty()) return heading;
        heading = above->parent;
    }
}

// e.g. "Volume of a Box/Cube" -> "volume-of-a-box-cube"
std::string anchorOf(std::string_view topic) {
    std::string anchor;
    for (const char c : topic) {
        const auto byte = static_cast<unsigned char>(c);
        if (std::isalnum(byte) != 0) {
            anchor += static_cast<char>(std::tolower(byte));
        } else if (!anchor.empty() && anchor.back() != '-') {
            anchor += '-';
        }
    }
    if (anchor.ends_with('-')) anchor.pop_back();
    return anchor;
}

}  // namespace

std::span<const HelpPageRow> helpPages() {
    return rows;
}

std::string helpPlaceOf(std::string_view topic) {
    const std::string_view name = nameInTree(topic);
    const std::string_view family = familyOf(name);
    for (const HelpPageRow& row : rows) {
        if (!row.family.empty() && row.family == family) return std::string(row.file) + "#" + anchorOf(name);
    }
    return "";
}

void Help_Load() {
    const std::string place = frmPaper.Loaded ? helpPlaceOf(ws.TopicName) : "";
    frmHelp.Place = place.empty() ? std::string(rows[0].file) : place;
    frmHelp.Loaded = true;
}

void Help_Unload() {
    frmHelp.Loaded = false;
}

}  // namespace ordwise
