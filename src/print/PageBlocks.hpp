// What belongs together on paper: the lines of a sheet as blocks that the page breaks go around.
#pragma once

#include "PageFlow.hpp"
#include "PrintWindows.hpp"

#include <vector>

namespace ordwise {

// A block with the lines of each of its pieces, placed as if the pen stood at y 0.
struct PrintBlock {
    FlowBlock flow;
    std::vector<std::vector<PlannedLine>> lines;  // piece by piece
};

// A test: each problem, the first one of a section with its heading. Answers: each numbered line with
// those below it. A solution: all of its steps, each with its explanation. A line that cannot be drawn
// is told in a message box and takes the room of what was drawn of it.
[[nodiscard]] std::vector<PrintBlock> blocksOf(const PrintSheet& sheet, const PaperSize& paper);

}  // namespace ordwise
