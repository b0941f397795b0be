// The constants of the four surfaces, one column of figures each.
#include "basFPrint.hpp"

#include <limits>

namespace ordwise {
namespace {

constexpr double never = std::numeric_limits<double>::infinity();

}  // namespace

const SurfaceOffsets worksheetOffsets{
    .indentBlanks = 17,
    .indent = 0,
    .moveDown = {2.4, 0},
    .moveDownFraction = {2.4, 0},
    .breakAt = 750,
    .breakX = 67,
    .breakDown = 46,
    .pageFull = 589,
    .pageTestFirst = false,
    .exponentSize = 8,
    .exponentRelative = false,
    .exponentRaise = {0.2, 0},
    .numeratorRaise = {0.6, 0},
    .denominatorDrop = {1.7, 0},
    .radicalBarRaise = {1.5, 0},
    .radicalBarStart = {0.5, 0},
    .tallSignUp = 9,
    .tallSignRight = 2,
    .tallSignDown = 16,
    .tallSignLeft = 14,
};

const SurfaceOffsets explanationOffsets{
    .indentBlanks = 0,
    .indent = 0,
    .moveDown = {0, 3},
    .moveDownFraction = {1, 0},
    .breakAt = never,
    .breakX = 0,
    .breakDown = 0,
    .pageFull = never,
    .pageTestFirst = false,
    .exponentSize = 8,
    .exponentRelative = false,
    .exponentRaise = {0.2, 0},
    .numeratorRaise = {0.6, 0},
    .denominatorDrop = {1.7, 0},
    .radicalBarRaise = {1.5, 0},
    .radicalBarStart = {0.5, 0},
    .tallSignUp = 9,
    .tallSignRight = 2,
    .tallSignDown = 16,
    .tallSignLeft = 14,
};

const SurfaceOffsets printerOffsets{
    .indentBlanks = 0,
    .indent = 12,
    .moveDown = {0, 12},
    .moveDownFraction = {0, 12},
    .breakAt = 765,
    .breakX = 15,
    .breakDown = 12,
    .pageFull = 560,
    .pageTestFirst = true,
    .exponentSize = 8,
    .exponentRelative = false,
    .exponentRaise = {0, 1},
    .numeratorRaise = {0, 5},
    .denominatorDrop = {0, 14},
    .radicalBarRaise = {0, 12},
    .radicalBarStart = {0, 6},
    .tallSignUp = 7,
    .tallSignRight = 1,
    .tallSignDown = 10,
    .tallSignLeft = 14,
};

// As the printer, but for the exponent, which is two points smaller than its surroundings.
const SurfaceOffsets previewOffsets = [] {
    SurfaceOffsets offsets = printerOffsets;
    offsets.exponentSize = 2;
    offsets.exponentRelative = true;
    return offsets;
}();

}  // namespace ordwise
