// `ordwise --export FILE TOPIC [PROBLEM]`: solves a problem, or a saved one, and draws its sheets into
// a file or prints it into a PDF, without a window and without a display.
#pragma once

#include "Platform.hpp"

#include <QString>
#include <QStringList>

#include <optional>
#include <utility>
#include <vector>

namespace ordwise {

// How a command without a window ended; unless it is done, `reason` is the sentence that says why.
struct CommandEnd {
    enum Status { Done = 0, Refused = 1, Unreadable = 2 };

    Status status = Done;
    QString reason = {};
};

struct ExportRequest {
    QString file = {};
    QString topic = {};  // or the path of a saved problem, which ends in ".hvx"
    QString problem = {};
    std::vector<std::pair<int, QString>> boxes = {};
    std::vector<std::pair<int, int>> combos = {};
    QStringList answers = {};             // to the questions that a solve asks, in their order
    std::optional<PaperSize> paper = {};  // prints the pages, instead of drawing the sheets
    bool explanations = false;            // on the printed pages, each under its step
    bool graph = false;                   // on a printed page of its own
};

// Types the problem key by key, solves it and writes the file. Refused: a name that is no topic, a
// refused key, a problem that is not complete, a solve that ended in a message, a problem without a
// graph, a file that cannot be written. Unreadable: a file that holds no saved problem.
[[nodiscard]] CommandEnd runExport(const ExportRequest& request);

// Writes the pages of the jobs into a PDF, whatever the ending of its name.
[[nodiscard]] CommandEnd writePages(const QString& file, const std::vector<PrintJob>& jobs);

}  // namespace ordwise
