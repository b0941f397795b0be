#include "basOrdwise.hpp"

#include "StepDisplay.hpp"
#include "Windows.hpp"

#include <utility>

namespace ordwise {

void AddStep(std::string line, std::string note) {
    ws.StepLines[ws.StepCount] = std::move(line);
    ws.StepNotes[ws.StepCount] = std::move(note);
    ws.StepCount += 1;
}

void complain(std::string line, std::string note) {
    AddStep(std::move(line), std::move(note));
    ShowSteps();
}

double rounded(double x) {
    return Round(x, ws.RoundPlaces);
}

std::pair<std::string, std::string> halves(const std::string& both, char separator) {
    const std::size_t at = both.find(separator);
    if (at == std::string::npos) raise(FaultNumber::Subscript);
    return {both.substr(0, at), both.substr(at + 1)};
}

void startLinesAt(double y) {
    frmPaper.Paper[0].CurrentY = y;
}

}  // namespace ordwise
