// The topic solvers: fixed scripts that write a worked solution straight into StepLines and
// StepNotes. This header holds what all of them use; each family has a header of its own.
//
// A solver reads like the solution it writes, in one order: restate the problem (index 1, never
// drawn again), the complaints, the steps, ShowSteps. Lines and notes are markup. Arguments arrive
// as the student typed them and print so; results are doubles and print by the number text.
#pragma once

#include "NumberText.hpp"
#include "Workspace.hpp"

#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace ordwise {

namespace detail {
inline std::string pieceOf(std::string_view piece) {
    return std::string(piece);
}
template <class Number>
requires std::is_arithmetic_v<Number> std::string pieceOf(Number number) {
    return textOf(number);
}
}  // namespace detail

// The pieces joined with no blank added; numbers by the number text.
// e.g. text("Diameter = 2 * ", radius) -> "Diameter = 2 * 2.5"
template <class... Pieces>
[[nodiscard]] std::string text(const Pieces&... pieces) {
    return (detail::pieceOf(pieces) + ... + std::string());
}

// Records a step: the line that the student copies and the note that says why. Fault 9 at step 201.
void AddStep(std::string line, std::string note = "");

// Ends a solution that mathematics forbids: the complaint is the last step, and all is shown.
// e.g. complain("Division by 0 is not allowed.", "It is impossible to divide any number by 0.");
void complain(std::string line, std::string note);

// x rounded to RoundPlaces, as results are shown.
[[nodiscard]] double rounded(double x);

// The texts before and behind the first separator; fault 9 where there is none.
// e.g. halves("3/4", '/') -> "3", "4"
[[nodiscard]] std::pair<std::string, std::string> halves(const std::string& both, char separator);

// Puts the pen of sheet 0 below the picture that the worksheet shows above the steps.
inline constexpr double belowFigure = 335;   // a geometry figure
inline constexpr double belowFormula = 243;  // a row of boxes
void startLinesAt(double y);

}  // namespace ordwise
