// Where pages break, as figures: what is to be printed comes as blocks of pieces with their heights, and
// each piece gets its page and its place there. Nothing is drawn or measured here.
//
// A block is a problem, with its steps where they are printed, or a heading with what follows it. One
// that fits on a page is kept whole if that leaves less than a third of a page empty. Any other breaks
// between its pieces, with at least two of them on each side.
#pragma once

#include <cstddef>
#include <vector>

namespace ordwise {

// What is never divided: a line, or a step with its explanation. All figures count from the pen's
// place before the piece, downwards.
struct FlowPiece {
    double top = 0;      // where its drawing begins
    double bottom = 0;   // and where it ends
    double advance = 0;  // where the pen stands for the next piece, unless the two would meet
};

struct FlowBlock {
    std::vector<FlowPiece> pieces;
    double before = 0;      // free room above it; none at the top of a page
    double after = 0;       // room below it that is its own, to be worked in
    std::size_t leads = 0;  // so many first pieces are headings of the others
};

// A page from where its first line may begin to where the last must have ended.
struct FlowPage {
    double firstTop = 0;  // of the first page, below the heading
    double top = 0;       // of all others
    double bottom = 0;
};

struct FlowPlace {
    int page = 0;  // from 0
    double y = 0;  // of the pen
};

// The places of all pieces, block by block. A piece that is higher than a page has one of its own.
[[nodiscard]] std::vector<std::vector<FlowPlace>> flowOf(const std::vector<FlowBlock>& blocks, const FlowPage& page);

}  // namespace ordwise
