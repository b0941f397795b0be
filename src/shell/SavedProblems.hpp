// Saved problems: what the student typed and chose, not the solution. Loading writes the problem
// on a fresh worksheet and solves it again.
//
// A file ("hvx") is one line of twelve fields joined by " BB ", ended by CR LF:
//
//   0 topic   1 typed problem   2 to 7 Text1 to Text6   8 to 10 entries of Combo1 to Combo3, -1 for
//   a list without entries   11 ProblemType
//
// e.g. Solving Equations BB x+3=12 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 101
#pragma once

#include "Examples.hpp"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ordwise {

struct SavedProblem {
    std::string topic;
    std::string typed;
    std::array<std::string, 6> boxes;
    std::array<int, 3> combos = {-1, -1, -1};
    int type = 0;

    bool operator==(const SavedProblem&) const = default;
};

// The problem on the worksheet.
[[nodiscard]] SavedProblem problemOnDesk();

[[nodiscard]] std::string textOfProblem(const SavedProblem& problem);
// Any bytes may be asked for: nothing but a problem that could have been saved is one. Its topic is
// in the catalogue under its type, its boxes hold what can be typed there, its lists have the
// entries. Whether the paper takes the typed text is asked by refusedKeyOf.
[[nodiscard]] std::optional<SavedProblem> problemOfText(std::string_view bytes);

// The first key of the typed text that the paper would not take, tried without touching the desk.
[[nodiscard]] std::optional<RefusedKey> refusedKeyOf(const SavedProblem& problem);

// The sentence for a file that could not be read: whether it is missing.
[[nodiscard]] std::string whyUnread(const std::string& path);

// Puts the problem on a fresh worksheet and solves it. Returns the keys refused, one at most.
std::vector<RefusedKey> openProblem(const SavedProblem& problem);

// The same with the text of a file, which then is the one of the problem on the desk. Leaves everything
// as it was, and names the file in the status bar, when it holds no problem.
void openProblemText(const std::string& path, std::string_view text);

// The name under which a problem is offered to be saved.
// e.g. ("Area of a Square/Rectangle", "03-14-02") -> "Area of a Square-Rectangle 03-14-02.hvx"
[[nodiscard]] std::string proposedFileName(std::string_view topic, std::string_view date);

// Asks for a name and writes the text there. Cancelling does nothing; a file that cannot be written
// is told in the status bar.
void SaveDialog(std::string_view text, std::string_view name);
// The whole text of OpenedFilePath the first time, then and where that is empty of the file asked for;
// "" for a file that cannot be read or a cancelled dialog. `path` becomes the file's, "" for a cancelled dialog.
[[nodiscard]] std::string LoadDialog(std::string& path);

// The commands. The file of the command line is opened without a question, once.
void mnuSave_Click();
void mnuLoad_Click();

}  // namespace ordwise
