#include "NearestNames.hpp"

#include "Catalogue.hpp"
#include "TextTools.hpp"

#include <algorithm>
#include <numeric>
#include <utility>

namespace ordwise {
namespace {

// The edit distance of Levenshtein: letters to put in, take out or change.
std::size_t distance(const std::string& a, const std::string& b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i);
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t changed = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({changed, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row.back();
}

}  // namespace

std::vector<std::string> nearestNames(std::string_view name, const std::vector<std::string>& names, std::size_t count) {
    constexpr std::size_t longestCompared = 80;
    const std::string wanted = lowered(name.substr(0, longestCompared));
    std::vector<std::pair<std::size_t, std::string>> ranked;
    for (const std::string& each : names) {
        const std::string candidate = lowered(each);
        const bool holds = !wanted.empty() && contains(candidate, wanted);
        ranked.emplace_back(holds ? 0 : distance(wanted, candidate), each);
    }
    std::stable_sort(ranked.begin(), ranked.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<std::string> nearest;
    for (std::size_t i = 0; i < ranked.size() && i < count; ++i) nearest.push_back(ranked[i].second);
    return nearest;
}

std::vector<std::string> nearestTopics(std::string_view name, std::size_t count) {
    const auto topics = topicNames();
    return nearestNames(name, {topics.begin(), topics.end()}, count);
}

std::string unknownTopicSentence(std::string_view name) {
    std::string shown(name.substr(0, 80));
    return "There is no topic \"" + shown + "\". The nearest are \"" + joined(nearestTopics(name), "\", \"") + "\".";
}

}  // namespace ordwise
