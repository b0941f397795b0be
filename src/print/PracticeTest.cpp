#include "PracticeTest.hpp"

#include "Catalogue.hpp"
#include "DeskKeeper.hpp"
#include "Fault.hpp"
#include "NumberText.hpp"
#include "PracticeTestTopics.hpp"
#include "RandomDraws.hpp"
#include "SilentOutside.hpp"
#include "StepDisplay.hpp"
#include "TextTools.hpp"
#include "WorksheetLayout.hpp"

namespace ordwise {
namespace {

// A problem of the test, with what is needed to solve it.
struct TestProblem {
    std::string topic;
    Example example;
};

void emptyTest() {
    for (std::string& line : ws.TestProblems) line.clear();
    ws.TestCount = 0;
    ws.TestNumber = 0;
}

// A blank line, the heading, and the problems.
void addSection(const TestSection& section, std::vector<TestProblem>& problems) {
    const int type = TestTopicRow(section.topic);
    ws.TestProblems[ws.TestCount] = "";
    ws.TestCount += 1;
    ws.TestProblems[ws.TestCount] = ws.TestHeading;
    ws.TestCount += 1;
    ws.TestHeading.clear();
    for (int i = 0; i < section.count; ++i)
        problems.push_back({section.topic, GenerateExample(type, true, section.complex ? complexLevel : 0)});
}

std::vector<std::string> testLines() {
    std::vector<std::string> lines;
    lines.reserve(static_cast<std::size_t>(ws.TestCount));
    for (int i = 0; i < ws.TestCount; ++i) lines.push_back(ws.TestProblems[i]);
    return lines;
}

// Writes the problem on a fresh worksheet and solves it all at once.
void solveOnDesk(const TestProblem& problem) {
    const SilentOutside outside(problem.example.values);
    Form_Unload();
    TreeViewSelect(problem.topic);
    Form_Load();
    frmMain.mnuShowStep.Checked = false;
    fillWorksheet(problem.example.boxes, problem.example.combos);
    ExampleChop(problem.example.keys, false);
}

std::vector<std::string> keyOf(const TestProblem& problem, int number, AnswerKey kind) {
    solveOnDesk(problem);
    const std::string start = textOf(number) + ") ";
    const std::string values = problem.example.values.empty() ? "" : problem.example.suffix;
    if (kind == AnswerKey::Answers) return {start + answerOnDesk() + values};
    std::vector<std::string> lines = stepsOnDesk();
    lines.front() = start + lines.front() + values;
    return lines;
}

std::vector<std::string> keyLines(const std::vector<TestProblem>& problems, AnswerKey kind) {
    std::vector<std::string> lines;
    for (const TestProblem& problem : problems) {
        const int number = static_cast<int>(&problem - problems.data()) + 1;
        if (kind == AnswerKey::Steps && number > 1) lines.emplace_back();
        for (std::string& line : keyOf(problem, number, kind)) lines.push_back(std::move(line));
    }
    return lines;
}

// e.g. "12) 3x=9" -> "3x=9"
std::string withoutNumber(const std::string& line) {
    return line.substr(line.find(") ") + 2);
}

// The lines of the test, section by section: a blank line, the heading, and a line a problem.
std::vector<DocumentSection> solvedSections(const std::vector<std::string>& lines,
                                            const std::vector<TestProblem>& problems) {
    std::vector<DocumentSection> sections;
    std::size_t at = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].empty()) {
            sections.push_back({lines[++i], {}});
            continue;
        }
        const TestProblem& problem = problems.at(at);
        solveOnDesk(problem);
        DocumentProblem solved{problem.topic, ws.ProblemType, static_cast<int>(++at), withoutNumber(lines[i]), {},
                               answerOnDesk()};
        for (int step = 1; step <= lastShownStep(); ++step)
            solved.steps.push_back({ws.StepLines[step], ws.StepNotes[step]});
        sections.back().problems.push_back(std::move(solved));
    }
    return sections;
}

MadeTest makeTest(const TestPlan& plan, std::uint64_t seed) {
    const SeededDraws draws(seed);
    ws.RecentExamples.clear();
    emptyTest();
    std::vector<TestProblem> problems;
    for (const TestSection& section : plan.sections) addSection(section, problems);
    MadeTest test{seed, "", testLines(), {}, {}};
    if (plan.key != AnswerKey::None) test.key = keyLines(problems, plan.key);
    if (plan.solved) test.sections = solvedSections(test.lines, problems);
    return test;
}

// The lines of the first version, where a preview or a listing looks for them.
void showTest(const MadeTest& test) {
    emptyTest();
    for (const std::string& line : test.lines) {
        ws.TestProblems[ws.TestCount] = line;
        ws.TestCount += 1;
    }
}

}  // namespace

int TestTopicRow(std::string_view topic) {
    const TestTopicRowData* row = findTestTopic(topic);
    if (row == nullptr) raise(FaultNumber::Subscript);
    TreeViewSelect(topic, true);
    ws.TestHeading = row->heading;
    ws.TestSuffix = row->suffix;
    return row->testType;
}

std::vector<MadeTest> makeTests(const TestPlan& plan) {
    std::vector<MadeTest> tests;
    {
        const DeskKeeper keeper;
        for (int i = 0; i < plan.versions; ++i)
            tests.push_back(makeTest(plan, plan.seed + static_cast<std::uint64_t>(i)));
    }
    for (std::size_t i = 0; tests.size() > 1 && i < tests.size(); ++i)
        tests[i].version = std::string(1, static_cast<char>('A' + i));
    if (!tests.empty()) showTest(tests.front());
    return tests;
}

std::vector<PrintSheet> sheetsOf(const TestPlan& plan, const std::vector<MadeTest>& tests) {
    std::vector<PrintSheet> sheets;
    for (const MadeTest& test : tests) {
        PrintSheet sheet;
        sheet.Heading = plan.heading;
        sheet.Version = test.version;
        sheet.Seed = textOf(test.seed);
        PrintSheet key = sheet;
        sheet.Lines = test.lines;
        sheet.NameLine = plan.nameLine;
        sheet.Space = plan.space;
        sheet.Columns = plan.columns;
        sheets.push_back(std::move(sheet));
        if (test.key.empty()) continue;
        key.What = PrintSheet::Kind::Answers;
        key.Lines = test.key;
        sheets.push_back(std::move(key));
    }
    return sheets;
}

Document documentOf(const TestPlan& plan, const std::vector<MadeTest>& tests) {
    Document document;
    document.heading.assign(plan.heading.begin(), plan.heading.end());
    document.key = plan.key;
    document.nameLine = plan.nameLine;
    document.space = plan.space;
    for (const MadeTest& test : tests) document.tests.push_back({test.version, test.seed, test.sections});
    return document;
}

}  // namespace ordwise
