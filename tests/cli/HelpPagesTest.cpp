// The guide: every worked example is what the program prints, every link leads somewhere, every topic
// is explained.
//
// An example is a command of the terminal in a comment, with its steps behind it:
//
//   <!-- solve "Arithmetic" 1+2 -->
//   ...
//   <!-- end -->
//
// With ORDWISE_WRITE_HELP set the steps are written into the pages; without, they are compared.
#include "Catalogue.hpp"
#include "CommandLine.hpp"
#include "HelpPages.hpp"
#include "PlainForm.hpp"
#include "TextTools.hpp"

#include <nlohmann/json.hpp>

#include <gtest/gtest.h>

#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <regex>
#include <set>
#include <sstream>

namespace ordwise::test {
namespace {

namespace fs = std::filesystem;

const fs::path helpFolder = ORDWISE_HELP;

std::string bytesOf(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    EXPECT_TRUE(in.good()) << file;
    return {std::istreambuf_iterator<char>(in), {}};
}

std::vector<fs::path> pageFiles() {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(helpFolder)) {
        if (entry.path().extension() == ".html") files.push_back(entry.path());
    }
    EXPECT_FALSE(files.empty());
    return files;
}

// The words of a command as a shell takes them apart: blanks separate, but not within double quotes.
std::vector<std::string> wordsOf(const std::string& command) {
    std::vector<std::string> words;
    std::istringstream in(command);
    for (std::string word; in >> std::quoted(word);) words.push_back(word);
    return words;
}

nlohmann::json answerOf(const std::string& command) {
    std::vector<std::string> words = wordsOf(command);
    words.insert(words.begin(), "ordwise-cli");
    words.emplace_back("--json");
    std::vector<const char*> arguments;
    for (const std::string& word : words) arguments.push_back(word.c_str());
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    const int status = runCommandLine(static_cast<int>(arguments.size()), arguments.data(), in, out, err);
    EXPECT_EQ(status, 0) << command << "\n" << err.str();
    return nlohmann::json::parse(out.str(), nullptr, false);
}

std::string percentEncoded(const std::string& text) {
    std::ostringstream out;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (std::isalnum(byte) != 0) {
            out << c;
        } else {
            out << '%' << std::uppercase << std::hex << std::setw(2) << std::setfill('0') << static_cast<int>(byte);
        }
    }
    return out.str();
}

std::string asHtml(std::string text) {
    text = replaced(text, "&", "&amp;");
    text = replaced(text, "<", "&lt;");
    text = replaced(text, ">", "&gt;");
    return replaced(text, "\"", "&quot;");
}

// The lines as they are drawn, each with its reason below it.
std::string stepsOf(const std::string& command) {
    std::string html = "<table class=\"steps\" width=\"100%\" cellpadding=\"6\"><tr><td>\n";
    const nlohmann::json answer = answerOf(command);
    EXPECT_GE(answer["steps"].size(), 2U) << command;
    for (const auto& step : answer["steps"]) {
        const std::string line = step["line"];
        const std::string note = step["note"];
        if (!line.empty()) {
            html += "<p class=\"line\"><img src=\"line:" + percentEncoded(line) + "\" alt=\"" +
                    asHtml(plainText(line)) + "\"></p>\n";
        }
        if (!note.empty()) html += "<p class=\"note\">" + asHtml(plainText(note)) + "</p>\n";
    }
    return html + "</td></tr></table>\n";
}

std::string withExamplesSolved(const std::string& page) {
    const std::regex opening("<!-- (solve .*) -->\n");
    const std::string ending = "<!-- end -->";
    std::string result;
    auto from = page.cbegin();
    for (std::smatch match; std::regex_search(from, page.cend(), match, opening);) {
        result.append(from, match[0].second);
        result += stepsOf(match[1]);
        const std::size_t end = page.find(ending, static_cast<std::size_t>(match[0].second - page.cbegin()));
        if (end == std::string::npos) {
            ADD_FAILURE() << match[1] << " has no end";
            break;
        }
        from = page.cbegin() + static_cast<std::ptrdiff_t>(end);
    }
    return result.append(from, page.cend());
}

TEST(HelpPages, ShowWhatTheProgramPrints) {
    const bool writes = std::getenv("ORDWISE_WRITE_HELP") != nullptr;
    for (const fs::path& file : pageFiles()) {
        SCOPED_TRACE(file.filename());
        const std::string page = bytesOf(file);
        const std::string solved = withExamplesSolved(page);
        if (writes && solved != page) std::ofstream(file, std::ios::binary) << solved;
        EXPECT_TRUE(writes || solved == page) << "an example is out of date: run with ORDWISE_WRITE_HELP=1";
    }
}

// Every first group of the matches.
std::set<std::string> allMatches(const std::string& text, const char* pattern) {
    const std::regex expression(pattern);
    std::set<std::string> found;
    for (std::sregex_iterator i(text.begin(), text.end(), expression), end; i != end; ++i) found.insert((*i)[1]);
    return found;
}

bool leadsSomewhere(const std::string& place) {
    const fs::path file = helpFolder / place.substr(0, place.find('#'));
    if (!fs::is_regular_file(file)) return false;
    if (place.find('#') == std::string::npos) return true;
    return allMatches(bytesOf(file), " id=\"([^\"]*)\"").count(place.substr(place.find('#') + 1)) == 1;
}

TEST(HelpPages, LeadNowhereElse) {
    std::size_t links = 0;
    for (const fs::path& file : pageFiles()) {
        SCOPED_TRACE(file.filename());
        const std::string page = bytesOf(file);
        for (const std::string& place : allMatches(page, "href=\"([^\"]*)\"")) {
            EXPECT_TRUE(leadsSomewhere(place)) << place;
            ++links;
        }
        for (const std::string& picture : allMatches(page, "src=\"art:([^\"?]*)[?]"))
            EXPECT_TRUE(fs::is_regular_file(helpFolder / "../art" / (picture + ".svg"))) << picture;
        for (const std::string& picture : allMatches(page, "src=\"([^\":]*)\""))
            EXPECT_TRUE(fs::is_regular_file(helpFolder / picture)) << picture;
    }
    EXPECT_GT(links, 5U);
}

TEST(HelpPages, StandInTheContentsUnderTheirTitles) {
    std::set<std::string> listed;
    for (const HelpPageRow& row : helpPages()) {
        const std::string file(row.file);
        listed.insert(file);
        EXPECT_EQ(allMatches(bytesOf(helpFolder / file), "<title>(.*)</title>"), std::set{std::string(row.title)});
    }
    for (const fs::path& file : pageFiles()) EXPECT_EQ(listed.count(file.filename().string()), 1U) << file;
}

TEST(HelpPages, ExplainEveryTopic) {
    for (const TopicRow& topic : topicTable()) {
        const std::string place = helpPlaceOf(topic.name);
        EXPECT_NE(place, "") << topic.name;
        EXPECT_TRUE(leadsSomewhere(place)) << place;
    }
    EXPECT_EQ(helpPlaceOf("Averages"), "averages.html#means-averages") << "a second name of a topic";
    EXPECT_EQ(helpPlaceOf("Lengths"), "") << "a heading is no topic";
}

}  // namespace
}  // namespace ordwise::test
