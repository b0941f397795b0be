#include "PageFlow.hpp"

#include <algorithm>
#include <limits>

namespace ordwise {
namespace {

constexpr double smallestGap = 4;    // between the drawings of two pieces
constexpr std::size_t together = 2;  // so many pieces stand on each side of a break

// Where the next piece can stand.
struct Pen {
    int page = 0;
    double y = 0;
    double inked = -std::numeric_limits<double>::infinity();  // the foot of the piece above
    bool fresh = true;                                        // nothing stands on the page
};

class Flow {
public:
    explicit Flow(const FlowPage& page) : page_(page) { pen_.y = page.firstTop; }

    std::vector<FlowPlace> place(const FlowBlock& block) {
        std::vector<FlowPlace> places;
        const std::size_t count = block.pieces.size();
        for (std::size_t from = 0; from < count;) {
            const std::size_t taken = takenAt(block, from);
            if (taken == 0) {
                turn();
                continue;
            }
            for (std::size_t i = from; i < from + taken; ++i) places.push_back(put(pen_, block, i));
            from += taken;
            if (from < count) turn();
        }
        pen_.y += block.after;
        return places;
    }

private:
    static FlowPlace put(Pen& pen, const FlowBlock& block, std::size_t index) {
        const FlowPiece& piece = block.pieces[index];
        if (!pen.fresh && index == 0) pen.y += block.before;
        pen.y = std::max(pen.y, pen.inked + smallestGap - piece.top);
        const FlowPlace place{pen.page, pen.y};
        pen.inked = pen.y + piece.bottom;
        pen.y += piece.advance;
        pen.fresh = false;
        return place;
    }

    void turn() {
        pen_ = Pen{};
        pen_.page = ++pages_;
        pen_.y = page_.top;
    }

    // How many pieces from this one on have room at the pen.
    [[nodiscard]] std::size_t roomFor(Pen pen, const FlowBlock& block, std::size_t from) const {
        for (std::size_t i = from; i < block.pieces.size(); ++i) {
            put(pen, block, i);
            const bool last = i + 1 == block.pieces.size();
            const double needed = last && block.after > 0 ? std::max(pen.inked, pen.y + block.after) : pen.inked;
            if (needed > page_.bottom) return i - from;
        }
        return block.pieces.size() - from;
    }

    // How many go onto this page; 0 for none, which then go to the next one.
    [[nodiscard]] std::size_t takenAt(const FlowBlock& block, std::size_t from) const {
        const std::size_t all = block.pieces.size() - from;
        const std::size_t room = roomFor(pen_, block, from);
        if (room == all) return all;
        Pen next;
        next.y = page_.top;
        const bool wholeOnNext = roomFor(next, block, from) == all;
        const bool cheap = page_.bottom - pen_.y < (page_.bottom - page_.top) / 3;
        const bool mayTurn = !pen_.fresh || pen_.y > page_.top;
        if (wholeOnNext && cheap && mayTurn) return 0;
        const std::size_t least = from == 0 ? block.leads + together : together;
        const std::size_t most = all > together ? all - together : 0;
        const std::size_t taken = std::min(room, most);
        if (taken >= least) return taken;
        return mayTurn ? 0 : std::max<std::size_t>(room, 1);
    }

    FlowPage page_;
    Pen pen_;
    int pages_ = 0;
};

}  // namespace

std::vector<std::vector<FlowPlace>> flowOf(const std::vector<FlowBlock>& blocks, const FlowPage& page) {
    Flow flow(page);
    std::vector<std::vector<FlowPlace>> places;
    places.reserve(blocks.size());
    for (const FlowBlock& block : blocks) places.push_back(flow.place(block));
    return places;
}

}  // namespace ordwise
