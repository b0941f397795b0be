#include "Fault.hpp"

#include <cmath>

namespace ordwise {

const char* RunTimeFault::what() const noexcept {
    switch (number_) {
        case FaultNumber::Overflow: return "overflow";
        case FaultNumber::Subscript: return "subscript out of range";
        case FaultNumber::DivisionByZero: return "division by zero";
        case FaultNumber::TypeMismatch: return "type mismatch";
    }
    return "fault";
}

void raise(FaultNumber number) {
    throw RunTimeFault(number);
}

double divided(double a, double b) {
    if (b == 0.0) raise(FaultNumber::DivisionByZero);
    return inRange(a / b);
}

double inRange(double value) {
    if (!std::isfinite(value)) raise(FaultNumber::Overflow);
    return value;
}

}  // namespace ordwise
