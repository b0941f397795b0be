// Practice tests as requests.
#include "Requests.hpp"

#include "Catalogue.hpp"
#include "Fault.hpp"
#include "FreshProgram.hpp"
#include "NearestNames.hpp"
#include "NumberText.hpp"
#include "PlainPlatform.hpp"
#include "PracticeTest.hpp"
#include "TextTools.hpp"

#include <langinfo.h>
#include <locale.h>

#include <ctime>

namespace ordwise {
namespace {

using Json = nlohmann::ordered_json;

// Today by a format of strftime.
std::string today(const char* format, locale_t locale) {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char date[64];
    return {date, strftime_l(date, sizeof date, format, &local, locale)};
}

// In the short form of the user's locale, with all four digits of the year.
std::string localDate() {
    const locale_t own = newlocale(LC_TIME_MASK, "", nullptr);
    const locale_t locale = own == nullptr ? newlocale(LC_TIME_MASK, "C", nullptr) : own;
    const std::string date = today(replaced(nl_langinfo_l(D_FMT, locale), "%y", "%Y").c_str(), locale);
    freelocale(locale);
    return date;
}

std::string isoDate() {
    const locale_t plain = newlocale(LC_TIME_MASK, "C", nullptr);
    const std::string date = today("%Y-%m-%d", plain);
    freelocale(plain);
    return date;
}

int countOf(const std::string& text, const std::string& section) {
    const bool number = !text.empty() && text.size() <= 3 && text.find_first_not_of("0123456789") == text.npos;
    const int count = number ? std::stoi(text) : 0;
    if (count == 0) throw BadRequest("--section takes TOPIC:COUNT or TOPIC:COUNT:complex, not \"" + section + "\".");
    return count;
}

// No topic has a colon in its name.
TestSection sectionOf(const std::string& text) {
    const std::size_t first = text.find(':');
    const std::size_t second = first == text.npos ? text.npos : text.find(':', first + 1);
    const std::string word = second == text.npos ? "complex" : text.substr(second + 1);
    if (first == text.npos || word != "complex") (void)countOf("", text);
    TestSection section;
    section.topic = text.substr(0, first);
    section.count = countOf(text.substr(first + 1, second - first - 1), text);
    section.complex = second != text.npos;
    if (findTopic(section.topic) == nullptr) throw BadRequest(unknownTopicSentence(section.topic));
    return section;
}

AnswerKey keyOf(const std::string& word) {
    if (word == "none") return AnswerKey::None;
    if (word == "answers") return AnswerKey::Answers;
    if (word == "steps") return AnswerKey::Steps;
    throw BadRequest("--key takes none, answers or steps, not \"" + word + "\".");
}

TestPlan planOf(const TestRequest& request) {
    TestPlan plan;
    if (static_cast<int>(request.sections.size()) > mostSections)
        throw BadRequest("A test has at most " + textOf(mostSections) + " sections.");
    for (const std::string& section : request.sections) plan.sections.push_back(sectionOf(section));
    if (request.heading.size() > plan.heading.size()) throw BadRequest("A heading has at most three lines.");
    plan.heading = {"Halvern Ordwise", "Practice Test", localDate()};
    if (!request.heading.empty()) plan.heading = {};
    std::copy(request.heading.begin(), request.heading.end(), plan.heading.begin());
    plan.key = keyOf(request.key);
    if (request.versions < 1 || request.versions > mostVersions)
        throw BadRequest("--versions takes 1 to " + textOf(mostVersions) + ".");
    plan.versions = request.versions;
    plan.seed = request.seed;
    if (request.space < 0 || request.space > mostSpace)
        throw BadRequest("--space takes 0 to " + textOf(mostSpace) + ".");
    plan.space = request.space;
    if (request.columns < 1 || request.columns > mostColumns) throw BadRequest("--columns takes 1 or 2.");
    plan.columns = request.columns;
    plan.nameLine = !request.noNameLine;
    return plan;
}

std::vector<MadeTest> testsOf(const TestPlan& plan) {
    try {
        return makeTests(plan);
    } catch (const RunTimeFault&) {
        throw BadRequest("The test has more than 200 lines.");
    }
}

Json versionsOf(const std::vector<MadeTest>& tests) {
    Json versions = Json::array();
    for (const MadeTest& test : tests)
        versions.push_back(
            Json{{"version", test.version}, {"seed", test.seed}, {"lines", test.lines}, {"key", test.key}});
    return versions;
}

}  // namespace

Json answerTest(const TestRequest& request) {
    PlainPlatform outside;
    startFreshProgram();
    const TestPlan plan = planOf(request);
    const std::vector<MadeTest> tests = testsOf(plan);
    Json answer{{"heading", plan.heading}, {"lines", tests.front().lines}};
    if (plan.key != AnswerKey::None || plan.versions > 1) answer["versions"] = versionsOf(tests);
    answer["seed"] = plan.seed;
    answer["date"] = isoDate();
    answer["nameLine"] = plan.nameLine;
    answer["space"] = plan.space;
    answer["columns"] = plan.columns;
    return answer;
}

std::string testDocument(const TestRequest& request, TestFormat format) {
    PlainPlatform outside;
    startFreshProgram();
    TestPlan plan = planOf(request);
    plan.solved = true;
    const Document document = documentOf(plan, testsOf(plan));
    if (format == TestFormat::Html) return htmlOf(document);
    return format == TestFormat::Latex ? latexDocumentOf(document) : moodleOf(document);
}

}  // namespace ordwise
