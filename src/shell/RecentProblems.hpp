// The saved problems of the last days, which the frame offers to open again, and the problem that
// was left without being saved.
//
// The list is a text file, a path a line, beside the kept problem in the folder of what the program
// remembers by itself. Where there is no such folder, or it cannot be written, nothing is remembered.
#pragma once

#include <string>
#include <string_view>

namespace ordwise {

inline constexpr std::size_t mostRecentProblems = 8;

// Fills frmMain.RecentProblems, as the program starts.
void readRecentProblems();

// The problem on the desk is now the one of this file: it comes first in the list.
void rememberProblemFile(const std::string& path, std::string_view text);

// The path of the saved problem on the desk; "" as soon as another one stands there.
[[nodiscard]] std::string problemFileOnDesk();

// Opens the file and solves its problem. A file that cannot be read is named in the status bar and
// leaves the list; one that holds no problem changes nothing but the status bar.
void openProblemFile(const std::string& path);

// The list is forgotten, and the kept problem with it.
void mnuClearRecent_Click();

// Keeps the problem on the desk if it is in no file, so that New Problem, Erase or the end of the
// program lose nothing that lastProblemFile could not give back.
void keepLastProblem();
// The file of the kept problem, "" if there is none.
[[nodiscard]] std::string lastProblemFile();

}  // namespace ordwise
