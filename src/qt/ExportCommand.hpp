// `ordwise --export FILE TOPIC [PROBLEM]`: solves a problem and draws its sheets into a file, without
// a window and without a display.
#pragma once

#include <QCoreApplication>
#include <QStringList>

#include <utility>
#include <vector>

namespace ordwise {

struct ExportRequest {
    QString file = {};
    QString topic = {};
    QString problem = {};
    std::vector<std::pair<int, QString>> boxes = {};
    std::vector<std::pair<int, int>> combos = {};
    QStringList answers = {};  // to the questions that a solve asks, in their order
};

// Types the problem key by key, solves it and writes the sheets. False with a sentence in `reason`:
// a name that is no topic, a refused key, a problem that is not complete, a solve that ended in a
// message, a file that cannot be written.
[[nodiscard]] bool runExport(const ExportRequest& request, QString& reason);

}  // namespace ordwise
