// The run-time fault: the one way in which a limit of the program makes itself felt.
//
// Nothing tests limits beforehand. A counter that overflows, a subscript out of bounds, a division
// by zero and text that is no number raise a RunTimeFault with its number, from any depth. It is
// caught where a run began and nowhere else: compute_Click, the line renderers, the print jobs, a
// point of the graph, load and save. A refused key is no fault.
#pragma once

#include <exception>

namespace ordwise {

enum class FaultNumber {
    Overflow = 6,         // e.g. a 16-bit counter at 32768, a double beyond its range
    Subscript = 9,        // e.g. StepLines[201]
    DivisionByZero = 11,  // e.g. 5/0 in an expression
    TypeMismatch = 13     // e.g. valueOf("|5|")
};

class RunTimeFault : public std::exception {
public:
    explicit RunTimeFault(FaultNumber number) noexcept : number_(number) {}

    [[nodiscard]] FaultNumber number() const noexcept { return number_; }
    // English, for a log or a debugger; students read the sentences of compute_Click instead.
    [[nodiscard]] const char* what() const noexcept override;

private:
    FaultNumber number_;
};

[[noreturn]] void raise(FaultNumber number);

// a / b, with the division-by-zero fault in place of an infinity and the overflow fault for a
// quotient beyond the range.
[[nodiscard]] double divided(double a, double b);

// The value itself, unless it is infinite or no number: then the overflow fault.
[[nodiscard]] double inRange(double value);

}  // namespace ordwise
