// The branches of the graphing topics.
#include "SolveDispatch.hpp"

#include "NumberText.hpp"
#include "Platform.hpp"
#include "StatisticsSolvers.hpp"
#include "TextTools.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <string>
#include <vector>

namespace ordwise {
namespace {

void enableGraph() {
    frmMain.Toolbar1[MainWindow::buttonGraph].Enabled = true;
    frmMain.mnuGraph.Enabled = true;
}

// "(3,4)-(5,6)" -> "3", "4", "5", "6". Fault 9 for fewer values than asked for.
std::vector<std::string> coordinates(std::string problem, std::size_t count) {
    problem = replaced(problem, ")-(", ",");
    problem = replaced(replaced(problem, "(", ""), ")", "");
    std::vector<std::string> values = split(problem, ',');
    if (values.size() < count) raise(FaultNumber::Subscript);
    return values;
}

}  // namespace

void solvePointsOfLine(const std::string& problem) {
    enableGraph();
    const std::vector<std::string> values = coordinates(problem, 4);
    ws.GraphX1 = valueOf(values[0]);
    ws.GraphY1 = valueOf(values[1]);
    ws.GraphX2 = valueOf(values[2]);
    ws.GraphY2 = valueOf(values[3]);
    ws.GraphKind = 2;
    platform.windows->show("frmGraph");
}

void solveQuadrantOfPoint(const std::string& problem) {
    enableGraph();
    const std::vector<std::string> values = coordinates(problem, 2);
    ws.GraphX1 = valueOf(values[0]);
    ws.GraphY1 = valueOf(values[1]);
    ws.GraphKind = 1;
    Quadrant(values[0], values[1]);
}

void solvePoint(const std::string& problem) {
    enableGraph();
    const std::vector<std::string> values = coordinates(problem, 2);
    ws.GraphX1 = valueOf(values[0]);
    ws.GraphY1 = valueOf(values[1]);
    ws.GraphKind = 1;
    platform.windows->show("frmGraph");
}

}  // namespace ordwise
