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
    .belowFraction = {0, 0},
    .breakAt = 750,
    .breakX = 67,
    .breakDown = {0, 46},
    .breakDownFraction = {0, 46},
    .pageFull = 589,
    .pageTestFirst = false,
    .exponentSize = 8,
    .exponentRaise = {0.2, 0},
    .numeratorRaise = {0.6, 0},
    .denominatorDrop = {1.7, 0},
};

const SurfaceOffsets explanationOffsets{
    .indentBlanks = 0,
    .indent = 0,
    .moveDown = {0, 3},
    .moveDownFraction = {1, 0},
    .belowFraction = {0.75, 0},
    .breakAt = never,
    .breakX = 0,
    .breakDown = {0, 0},
    .breakDownFraction = {0, 0},
    .pageFull = never,
    .pageTestFirst = false,
    .exponentSize = 8,
    .exponentRaise = {0.2, 0},
    .numeratorRaise = {0.6, 0},
    .denominatorDrop = {1.7, 0},
};

// For 12 points on portrait paper, where a unit across is about 0.9 and one down 1.6 of a letter's
// units. Fractions follow the font, since explanations print at 10 points.
const SurfaceOffsets printerOffsets{
    .indentBlanks = 0,
    .indent = 12,
    .moveDown = {0, 12},
    .moveDownFraction = {0, 12},
    .belowFraction = {0, 0},
    .breakAt = 765,
    .breakX = 15,
    .breakDown = {0, 12},
    .breakDownFraction = {27.0 / 12, 0},
    .pageFull = 560,
    .pageTestFirst = true,
    .exponentSize = 8,
    .exponentRaise = {0, 1},
    .numeratorRaise = {5.0 / 12, 0},
    .denominatorDrop = {14.0 / 12, 0},
};

SurfaceOffsets closedUp(double closer) {
    SurfaceOffsets offsets = worksheetOffsets;
    offsets.moveDown.fixed -= closer;
    offsets.moveDownFraction.fixed -= closer;
    return offsets;
}

}  // namespace ordwise
