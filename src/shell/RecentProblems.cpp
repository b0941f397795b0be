#include "RecentProblems.hpp"

#include "Platform.hpp"
#include "SavedProblems.hpp"
#include "TextTools.hpp"
#include "Windows.hpp"

#include <algorithm>
#include <filesystem>

namespace ordwise {
namespace {

constexpr const char* listName = "recent-problems";
constexpr const char* lastProblemName = "last-problem.hvx";

// The file of the folder of what is remembered; "" where there is no such folder.
std::string stateFile(const char* name) {
    return platform.folders.state.empty() ? "" : platform.folders.state + "/" + name;
}

// What is remembered is a comfort: a trouble with its file is not worth a sentence.
void writeState(const std::string& file, std::string_view text) {
    if (file.empty()) return;
    platform.files->createDirectory(platform.folders.state);
    (void)platform.files->write(file, text);
}

void writeRecentProblems() {
    std::string text;
    for (const std::string& path : frmMain.RecentProblems) text += path + "\n";
    writeState(stateFile(listName), text);
}

void forget(const std::string& path) {
    std::erase(frmMain.RecentProblems, path);
    writeRecentProblems();
}

bool holdsNothing(const SavedProblem& problem) {
    return problem.typed.empty() &&
           std::all_of(problem.boxes.begin(), problem.boxes.end(), [](const std::string& box) { return box.empty(); });
}

}  // namespace

void readRecentProblems() {
    frmMain.RecentProblems.clear();
    const std::string file = stateFile(listName);
    if (file.empty()) return;
    for (const std::string& path : split(platform.files->read(file).value_or(""), '\n')) {
        const bool listed = std::find(frmMain.RecentProblems.begin(), frmMain.RecentProblems.end(), path) !=
                            frmMain.RecentProblems.end();
        if (path.empty() || listed || frmMain.RecentProblems.size() == mostRecentProblems) continue;
        frmMain.RecentProblems.push_back(path);
    }
}

void rememberProblemFile(const std::string& path, std::string_view text) {
    const bool kept = path == stateFile(lastProblemName);
    frmMain.ProblemFile = kept ? "" : path;
    frmMain.ProblemFileText = text;
    if (kept || path.find('\n') != std::string::npos) return;
    std::error_code trouble;
    const std::string whole = std::filesystem::absolute(path, trouble).string();
    std::erase(frmMain.RecentProblems, whole);
    frmMain.RecentProblems.insert(frmMain.RecentProblems.begin(), whole);
    if (frmMain.RecentProblems.size() > mostRecentProblems) frmMain.RecentProblems.resize(mostRecentProblems);
    writeRecentProblems();
}

std::string problemFileOnDesk() {
    if (!frmPaper.Loaded || frmMain.ProblemFile.empty()) return "";
    return problemOfText(frmMain.ProblemFileText) == problemOnDesk() ? frmMain.ProblemFile : "";
}

void openProblemFile(const std::string& path) {
    const std::optional<std::string> text = platform.files->read(path);
    if (text) {
        openProblemText(path, *text);
        return;
    }
    frmMain.StatusText = whyUnread(path);
    forget(path);
}

void mnuClearRecent_Click() {
    frmMain.RecentProblems.clear();
    writeRecentProblems();
    if (!lastProblemFile().empty()) writeState(lastProblemFile(), "");
}

void keepLastProblem() {
    if (!frmPaper.Loaded || !problemFileOnDesk().empty()) return;
    const SavedProblem problem = problemOnDesk();
    if (!holdsNothing(problem)) writeState(stateFile(lastProblemName), textOfProblem(problem));
}

std::string lastProblemFile() {
    const std::string file = stateFile(lastProblemName);
    return file.empty() || platform.files->read(file).value_or("").empty() ? "" : file;
}

}  // namespace ordwise
