#include "Examples.hpp"

#include "Catalogue.hpp"
#include "ExampleDraws.hpp"
#include "GuidedInput.hpp"
#include "NumberText.hpp"
#include "Platform.hpp"
#include "RandomDraws.hpp"
#include "SolveDriver.hpp"
#include "TextTools.hpp"
#include "TokenPredicates.hpp"
#include "Windows.hpp"
#include "WorksheetBoxes.hpp"
#include "WorksheetErase.hpp"
#include "WorksheetLayout.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"

#include <algorithm>
#include <map>

namespace ordwise {
namespace {

// A problem comes again only after so many others, if the topic has so many.
constexpr std::size_t remembered = 49;
// So many draws are made in search of one that is not remembered; of a topic that has but a few,
// the draws go on only until it is not the one before.
constexpr int patience = 60;
constexpr int patienceWithTheLast = 2000;

constexpr int examplesInARow = 50;

constexpr int negativeExponentsTopic = 150;
constexpr int evaluatingTopic = 103;

// An empty paper for undrawn typing. An open bar or fraction of the problem before would outlive
// ResetEngine, and typing would never come to an end.
void emptyPaper() {
    ResetStore(true);
    ResetEngine(true);
    ClearInput();
    ws.BarDepth = 0;
    ws.ParenSide = 0;
    ws.FractionDepth = 0;
    ws.SavedParenSide = false;
}

// The problem as typing leaves it: flat in `keys`, as the paper draws it in `line`.
void readFromPaper(Example& example) {
    example.keys = ImplodeInput();
    example.line = ImplodeCanon();
}

// A template has no keys for the marks that the paper closes by itself.
std::string flat(std::string_view drawn) {
    std::string keys;
    bool raised = false;
    for (const char c : drawn) {
        const bool closesExponent = c == '^' && raised;
        if (c == '^') raised = !raised;
        if (c != '#' && !closesExponent) keys += c;
    }
    return keys;
}

// Forms that are filled in; an expression has none.
Example drawForm(const ExampleWish& wish) {
    if (wish.type != negativeExponentsTopic) return drawNumbers(wish).value_or(Example{});
    Example example;
    example.keys = flat(create_example(wish.complex ? "#Ax^-B^/C#+Dx^-E^-Fx^-G^" : "Ax^-B^+Cx^-D^"));
    return example;
}

// Types the expression as it is drawn, until one is worth solving and can be written out: its bars
// may open again and again, and a full paper takes no more keys.
Example drawExpression(const ExampleWish& wish) {
    for (;;) {
        emptyPaper();
        if (!typeExpression(wish)) continue;
        Example example;
        readFromPaper(example);
        if (hasRoomFor(example.line)) return example;
    }
}

Example drawOnce(const ExampleWish& wish) {
    if (!isOnPaper(wish.type)) return drawBoxes(wish);
    return isExpressionTopic(wish.type) ? drawExpression(wish) : drawForm(wish);
}

// A form has only its keys so far; the paper says how it looks.
void completeLine(Example& example) {
    if (!example.line.empty()) return;
    emptyPaper();
    typeQuietly(example.keys);
    readFromPaper(example);
}

std::string nameOf(int type, const Example& example) {
    return textOf(type) + ":" + (example.keys.empty() ? example.line : example.keys) + example.suffix;
}

bool isRecent(const std::string& name) {
    return std::find(ws.RecentExamples.begin(), ws.RecentExamples.end(), name) != ws.RecentExamples.end();
}

bool isTheLast(const std::string& name) {
    return !ws.RecentExamples.empty() && ws.RecentExamples.back() == name;
}

void remember(const std::string& name) {
    ws.RecentExamples.push_back(name);
    if (ws.RecentExamples.size() > remembered) ws.RecentExamples.pop_front();
}

// More often than not the kind of problem that shows most.
Example drawExample(int type, int level) {
    const ExampleWish wish{type, level == complexLevel, drawChance(3, 5)};
    Example example = drawOnce(wish);
    for (int tries = 0; tries < patience && isRecent(nameOf(type, example)); ++tries) example = drawOnce(wish);
    for (int tries = 0; tries < patienceWithTheLast && isTheLast(nameOf(type, example)); ++tries)
        example = drawOnce(wish);
    remember(nameOf(type, example));
    return example;
}

Example makeUp(int type, int level) {
    Example example = drawExample(type, level);
    completeLine(example);
    if (isOnPaper(type)) emptyPaper();
    return example;
}

// Nobody can evaluate a polynomial on paper without its values. e.g. ", when x = 4, y = 5 and z = 2"
void drawValues(Example& example) {
    std::vector<std::string> names;
    for (const char c : example.keys) {
        const std::string name(1, c);
        if (IsLetter(name) && example.values.emplace(name, "").second) names.push_back(name);
    }
    for (const std::string& name : names) {
        const bool first = name == names.front();
        example.values[name] = textOf(RandInt2to9());
        example.suffix += first ? ", when " : name == names.back() ? " and " : ", ";
        example.suffix += name + " = " + example.values[name];
    }
}

bool isControl(const std::string& key) {
    return key.size() == 1 && key[0] >= 0 && key[0] < ' ';
}

std::vector<RefusedKey> typeOnPaper(std::string_view text) {
    int at = 0;
    for (const std::string& key : characters(text)) {
        // Enter and Backspace are commands of a keyboard and no part of a text.
        if (isControl(key)) return {{at, key, ""}};
        const KeyOutcome outcome = Form_KeyPress(key);
        if (outcome == KeyOutcome::Refused) return {{at, key, ws.ExplainOverrideText}};
        if (outcome != KeyOutcome::Accepted) return {{at, key, ""}};
        if (frmMain.mnuPencil.Checked) platform.windows->redraw("frmPaper");
        ++at;
    }
    return {};
}

void addTestLine(std::string_view text) {
    ws.TestProblems[ws.TestCount] = textOf(ws.TestNumber + 1) + ") " + std::string(text) + ws.TestSuffix;
    ws.TestCount += 1;
    ws.TestNumber += 1;
}

}  // namespace

std::string create_example(std::string_view pattern) {
    std::map<char, std::string> digits;
    std::string problem;
    for (const char c : pattern) {
        if (c < 'A' || c > 'Z') {
            problem += c;
            continue;
        }
        const auto known = digits.find(c);
        problem += known != digits.end() ? known->second : digits.emplace(c, textOf(RandInt2to9())).first->second;
    }
    return problem;
}

Example GenerateExample(int type, bool forTest, int level) {
    Example example = makeUp(type, level);
    if (forTest) {
        if (type == evaluatingTopic) drawValues(example);
        if (!example.suffix.empty()) ws.TestSuffix = example.suffix;
        ExampleChop(example.line, true);
    } else {
        fillWorksheet(example.boxes, example.combos);
        ExampleChop(example.keys, false);
    }
    return example;
}

void seedExample(int type, int level, std::uint64_t seed) {
    ws.RecentExamples.clear();
    // There are so many expressions that hardly two are the same.
    if (isExpressionTopic(type)) return seedDraws(seed);
    seedDraws(seed / examplesInARow);
    for (std::uint64_t before = seed % examplesInARow; before > 0; --before) (void)drawExample(type, level);
}

std::vector<RefusedKey> ExampleChop(std::string_view text, bool forTest) {
    if (forTest) {
        addTestLine(text);
        return {};
    }
    std::vector<RefusedKey> refused;
    if (isOnPaper(ws.ProblemType)) refused = typeOnPaper(text);
    if (refused.empty() && frmMain.mnuSolve.Enabled) compute_Click();
    return refused;
}

std::optional<RefusedKey> firstRefusedKey(std::string_view text) {
    emptyPaper();
    std::optional<RefusedKey> refused;
    int at = 0;
    for (const std::string& key : characters(text)) {
        ws.ExplainOverrideText.clear();
        if (isControl(key) || !typeQuietly(key)) refused = RefusedKey{at, key, ws.ExplainOverrideText};
        if (refused) break;
        ++at;
    }
    emptyPaper();
    return refused;
}

Example example_Click() {
    emptyPaper();
    ws.ProblemText.clear();
    resetLight();
    disableSolvedCommands();
    clearBoxes();
    clearDesk();
    ws.InputOpen = true;
    return GenerateExample(ws.ProblemType, false, ws.ComplexExamples);
}

void fillWorksheet(const std::array<std::string, 6>& boxes, const std::array<int, 3>& combos) {
    for (int number = 1; number <= 3; ++number)
        frmPaper.combo(number).ListIndex = combos[static_cast<std::size_t>(number - 1)];
    for (int number = 1; number <= 6; ++number) setBoxText(number, boxes[static_cast<std::size_t>(number - 1)]);
}

}  // namespace ordwise
