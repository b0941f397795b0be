#include "SavedProblems.hpp"

#include "Catalogue.hpp"
#include "DeskKeeper.hpp"
#include "Fault.hpp"
#include "NumberText.hpp"
#include "Platform.hpp"
#include "RecentProblems.hpp"
#include "TextTools.hpp"
#include "Windows.hpp"
#include "WorksheetBoxes.hpp"
#include "WorksheetLayout.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"

#include <filesystem>

namespace ordwise {
namespace {

constexpr std::string_view separator = " BB ";
constexpr std::size_t fieldCount = 12;
constexpr std::size_t firstBox = 2;
constexpr std::size_t firstCombo = 8;
constexpr std::size_t typeField = 11;
constexpr int hourglass = 11;

constexpr const char* filter = "Ordwise files (.hvx)|*.hvx";
constexpr const char* extension = "hvx";

std::string_view withoutLineEnd(std::string_view bytes) {
    if (bytes.ends_with('\n')) bytes.remove_suffix(1);
    if (bytes.ends_with('\r')) bytes.remove_suffix(1);
    return bytes;
}

// A file of a million separators has a million fields, and is none of ours after the thirteenth.
std::vector<std::string> fieldsOf(std::string_view bytes) {
    std::vector<std::string> fields;
    std::size_t start = 0;
    while (fields.size() <= fieldCount) {
        const std::size_t end = bytes.find(separator, start);
        fields.emplace_back(bytes.substr(start, end - start));
        if (end == std::string_view::npos) break;
        start = end + separator.size();
    }
    return fields;
}

// A number as it is written to a file: digits with at most a "-" before them.
std::optional<int> wholeNumber(std::string_view field) {
    const std::string text = trimmed(field);
    const std::string digits = text.starts_with('-') ? text.substr(1) : text;
    const bool spelled = !digits.empty() && digits.size() <= 4 && digits.find_first_not_of("0123456789") == digits.npos;
    if (!spelled) return std::nullopt;
    return longOf(text);
}

// How many entries a list has in a topic; Combo3 has its entries in all of them.
int entriesOf(int type, std::size_t combo) {
    if (combo == 2) return static_cast<int>(roundingChoices().size());
    return type == metersTopic || type == gramsTopic ? static_cast<int>(unitsOf(type).size()) : 0;
}

// A list with entries has one of them selected. Of a list without any nothing is wanted but a number
// that could have been there.
bool isEntry(int type, std::size_t combo, int index) {
    const int entries = entriesOf(type, combo);
    return entries == 0 ? index == -1 || index == 0 : index >= 0 && index < entries;
}

bool isLegal(const SavedProblem& problem) {
    const TopicRow* topic = findTopic(problem.topic);
    if (topic == nullptr || topic->code != problem.type) return false;
    for (std::size_t i = 0; i < problem.boxes.size(); ++i) {
        if (!isBoxText(problem.type, static_cast<int>(i) + 1, problem.boxes[i])) return false;
    }
    for (std::size_t i = 0; i < problem.combos.size(); ++i) {
        if (!isEntry(problem.type, i, problem.combos[i])) return false;
    }
    return true;
}

void sayNoProblem(const std::string& path) {
    frmMain.StatusText = "\"" + std::filesystem::path(path).filename().string() + "\" holds no problem of Ordwise.";
}

// What loading would do, with the desk as it was if the file is none of ours.
bool loadText(std::string_view text) {
    const std::optional<SavedProblem> problem = problemOfText(text);
    if (!problem || refusedKeyOf(*problem)) return false;
    openProblem(*problem);
    return true;
}

}  // namespace

SavedProblem problemOnDesk() {
    SavedProblem problem;
    problem.topic = ws.TopicName;
    problem.typed = isOnPaper(ws.ProblemType) ? ImplodeInput() : "";
    for (int i = 1; i <= 6; ++i) problem.boxes[static_cast<std::size_t>(i - 1)] = frmPaper.box(i).Text;
    problem.type = ws.ProblemType;
    for (std::size_t i = 0; i < problem.combos.size(); ++i) {
        const int index = frmPaper.combo(static_cast<int>(i) + 1).ListIndex;
        problem.combos[i] = entriesOf(problem.type, i) == 0 ? -1 : index;
    }
    return problem;
}

std::string textOfProblem(const SavedProblem& problem) {
    std::vector<std::string> fields = {problem.topic, problem.typed};
    fields.insert(fields.end(), problem.boxes.begin(), problem.boxes.end());
    for (const int index : problem.combos) fields.push_back(textOf(index));
    fields.push_back(textOf(problem.type));
    return joined(fields, separator) + "\r\n";
}

std::optional<SavedProblem> problemOfText(std::string_view bytes) {
    const std::vector<std::string> fields = fieldsOf(withoutLineEnd(bytes));
    if (fields.size() != fieldCount) return std::nullopt;
    SavedProblem problem;
    problem.topic = fields[0];
    problem.typed = fields[1];
    for (std::size_t i = 0; i < problem.boxes.size(); ++i)
        problem.boxes[i] = replaced(fields[firstBox + i], "#", "");  // older files carry these marks
    for (std::size_t i = 0; i < problem.combos.size(); ++i) {
        const std::optional<int> index = wholeNumber(fields[firstCombo + i]);
        if (!index) return std::nullopt;
        problem.combos[i] = *index;
    }
    const std::optional<int> type = wholeNumber(fields[typeField]);
    if (!type) return std::nullopt;
    problem.type = *type;
    if (!isLegal(problem)) return std::nullopt;
    return problem;
}

std::optional<RefusedKey> refusedKeyOf(const SavedProblem& problem) {
    if (!isOnPaper(problem.type)) return std::nullopt;
    const DeskKeeper keeper;
    TreeViewSelect(problem.topic, true);
    return firstRefusedKey(problem.typed);
}

std::vector<RefusedKey> openProblem(const SavedProblem& problem) {
    frmMain.MousePointer = hourglass;
    TreeViewSelect(problem.topic);
    platform.windows->unload("frmPaper");
    platform.windows->show("frmPaper");
    std::array<int, 3> combos = problem.combos;
    for (int& index : combos) index = index < 0 ? 0 : index;
    fillWorksheet(problem.boxes, combos);
    std::vector<RefusedKey> refused = ExampleChop(problem.typed, false);
    frmMain.MousePointer = ws.NormalPointer;
    return refused;
}

std::string whyUnread(const std::string& path) {
    std::error_code trouble;
    const bool there = std::filesystem::exists(path, trouble) || trouble;
    return there ? "\"" + path + "\" can't be read." : "There is no file \"" + path + "\".";
}

void openProblemText(const std::string& path, std::string_view text) {
    keepLastProblem();
    try {
        if (loadText(text)) {
            rememberProblemFile(path, text);
            return;
        }
    } catch (const RunTimeFault&) {
        // A problem that faults is no problem that could have been saved.
    }
    sayNoProblem(path);
}

std::string proposedFileName(std::string_view topic, std::string_view date) {
    const std::string name = std::string(topic) + " " + std::string(date) + "." + extension;
    return replaced(replaced(name, "/", "-"), "*", "x");
}

void SaveDialog(std::string_view text, std::string_view name) {
    const std::optional<std::string> path = platform.fileDialogs->fileToSave(
        {"Save Problem As", filter, extension, platform.folders.savedProblems, std::string(name)});
    if (!path) return;
    const std::string trouble = platform.files->write(*path, text);
    const std::string shortName = std::filesystem::path(*path).filename().string();
    frmMain.StatusText = trouble.empty() ? "Saved as \"" + shortName + "\"." : trouble;
    if (trouble.empty()) rememberProblemFile(*path, text);
}

std::string LoadDialog(std::string& path) {
    path = frmMain.CommandLineOpened ? "" : replaced(ws.OpenedFilePath, "\"", "");
    frmMain.CommandLineOpened = true;
    if (path.empty()) {
        path = platform.fileDialogs->fileToOpen({"Load Problem", filter, extension, platform.folders.savedProblems, ""})
                   .value_or("");
    }
    return path.empty() ? "" : platform.files->read(path).value_or("");
}

void mnuSave_Click() {
    SaveDialog(textOfProblem(problemOnDesk()), proposedFileName(ws.TopicName, platform.clock->todayForFile()));
}

void mnuLoad_Click() {
    std::string path;
    const std::string text = LoadDialog(path);
    if (path.empty()) return;
    if (text.empty() && !platform.files->read(path)) {
        frmMain.StatusText = whyUnread(path);
    } else {
        openProblemText(path, text);
    }
}

}  // namespace ordwise
