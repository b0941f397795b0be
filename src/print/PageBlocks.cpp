#include "PageBlocks.hpp"

#include "Platform.hpp"
#include "PrintedLines.hpp"

#include <algorithm>
#include <string>
#include <utility>

namespace ordwise {
namespace {

// In units down the page.
constexpr double emptyLine = 22;  // as high as a line with the room above it
constexpr double emptySmallLine = 10;
constexpr double smallestGap = 4;
constexpr double closerRows = 6;  // the rows of one line

// In units across.
constexpr double secondColumn = pageUnitsAcross / 2;
constexpr double widestShort = secondColumn - 24;

// e.g. "12) x+3=5"
bool isNumbered(const std::string& line) {
    const std::size_t digits = line.find_first_not_of("0123456789");
    return digits != 0 && digits != std::string::npos && line.compare(digits, 2, ") ") == 0;
}

class BlockMaker {
public:
    BlockMaker(const PrintSheet& sheet, const PaperSize& paper) : sheet_(sheet), paper_(paper) {}

    std::vector<PrintBlock> make() {
        switch (sheet_.What) {
            case PrintSheet::Kind::Test: test(); break;
            case PrintSheet::Kind::Answers: answers(); break;
            case PrintSheet::Kind::Solution:
            case PrintSheet::Kind::Graph: solution(); break;
        }
        return std::move(blocks_);
    }

private:
    LineRoom measured(const PlannedLine& line) const {
        const LineRoom room = roomOf(line, paper_);
        if (!room.drawable) {
            platform.dialogs->messageBox("An error occurred while displaying information.", "Ordwise",
                                         MessageButtons::Ok);
        }
        return room;
    }

    void add(PrintBlock& block, std::vector<PlannedLine> lines, const FlowPiece& room) const {
        block.flow.pieces.push_back(room);
        block.lines.push_back(std::move(lines));
    }

    // The rows of a line that is too long are pieces of their own.
    void addLine(PrintBlock& block, const std::string& text, double gapBelow = 0) const {
        for (const PlannedLine& row : rowsOf({PlannedLine::Kind::Math, text}, paper_)) {
            FlowPiece room = measured(row).down;
            room.advance -= closerRows;
            add(block, {row}, room);
        }
        block.flow.pieces.back().advance += closerRows + gapBelow;
    }

    // ---- a test

    // A blank line begins a section; its heading is what follows without a number.
    void test() {
        for (std::size_t i = 0; i < sheet_.Lines.size();) {
            const bool begins = sheet_.Lines[i].empty();
            while (i < sheet_.Lines.size() && sheet_.Lines[i].empty()) ++i;
            const bool headed = begins && i < sheet_.Lines.size() && !isNumbered(sheet_.Lines[i]);
            const std::string heading = headed ? sheet_.Lines[i++] : "";
            const std::size_t first = i;
            while (i < sheet_.Lines.size() && !sheet_.Lines[i].empty()) ++i;
            section(heading, {sheet_.Lines.begin() + static_cast<std::ptrdiff_t>(first),
                              sheet_.Lines.begin() + static_cast<std::ptrdiff_t>(i)});
        }
    }

    void section(const std::string& heading, const std::vector<std::string>& problems) {
        PrintBlock block;
        block.flow.before = 3 * emptyLine;
        if (!heading.empty()) {
            addLine(block, heading, emptyLine);
            block.flow.leads = block.lines.size();
        }
        const std::size_t columns = columnsFor(problems);
        for (std::size_t i = 0; i < problems.size(); i += columns) {
            addProblems(block,
                        {problems.begin() + static_cast<std::ptrdiff_t>(i),
                         problems.begin() + static_cast<std::ptrdiff_t>(std::min(i + columns, problems.size()))});
            block.flow.after = sheet_.Space * emptyLine;
            blocks_.push_back(std::exchange(block, {}));
            block.flow.before = emptyLine;
        }
        if (!block.lines.empty()) blocks_.push_back(std::move(block));
    }

    std::size_t columnsFor(const std::vector<std::string>& problems) const {
        const bool isShort = std::all_of(problems.begin(), problems.end(), [&](const std::string& problem) {
            return roomOf({PlannedLine::Kind::Math, problem}, paper_).right < widestShort;
        });
        return sheet_.Columns == 2 && isShort && problems.size() > 1 ? 2 : 1;
    }

    void addProblems(PrintBlock& block, const std::vector<std::string>& problems) const {
        if (problems.size() == 1) return addLine(block, problems.front());
        std::vector<PlannedLine> lines;
        FlowPiece row;
        for (const std::string& problem : problems) {
            lines.push_back({PlannedLine::Kind::Math, problem, lines.empty() ? 0 : secondColumn, 0});
            const FlowPiece room = measured(lines.back()).down;
            row = lines.size() == 1 ? room
                                    : FlowPiece{std::min(row.top, room.top), std::max(row.bottom, room.bottom),
                                                std::max(row.advance, room.advance)};
        }
        add(block, std::move(lines), row);
    }

    // ---- its key

    void answers() {
        bool parted = false;
        for (const std::string& line : sheet_.Lines) {
            if (line.empty()) {
                parted = true;
                continue;
            }
            if (parted || isNumbered(line) || blocks_.empty()) {
                blocks_.emplace_back();
                blocks_.back().flow.before = parted ? emptyLine : 0;
            }
            addLine(blocks_.back(), line);
            parted = false;
        }
    }

    // ---- the solution of one problem

    void solution() {
        PrintBlock block;
        for (std::size_t i = 0; i < sheet_.Lines.size(); ++i) {
            if (sheet_.Notes.empty()) {
                addLine(block, sheet_.Lines[i]);
            } else {
                addExplained(block, sheet_.Lines[i], i < sheet_.Notes.size() ? sheet_.Notes[i] : "");
            }
        }
        if (!block.lines.empty()) blocks_.push_back(std::move(block));
    }

    // The explanation of a step stands under it and goes with it.
    void addExplained(PrintBlock& block, const std::string& line, const std::string& note) const {
        std::vector<PlannedLine> lines;
        FlowPiece step;
        addBelow({PlannedLine::Kind::Math, line}, lines, step);
        if (!note.empty()) addBelow({PlannedLine::Kind::Note, note}, lines, step);
        step.advance += emptySmallLine;
        add(block, std::move(lines), step);
    }

    void addBelow(const PlannedLine& line, std::vector<PlannedLine>& lines, FlowPiece& step) const {
        for (PlannedLine& row : rowsOf(line, paper_)) {
            const FlowPiece room = measured(row).down;
            const double closer = row.Continued ? closerRows : 0;
            row.Y = lines.empty() ? 0 : std::max(step.advance - closer, step.bottom + smallestGap - room.top);
            step.top = lines.empty() ? room.top : step.top;
            step.bottom = std::max(step.bottom, row.Y + room.bottom);
            step.advance = row.Y + room.advance;
            lines.push_back(std::move(row));
        }
    }

    const PrintSheet& sheet_;
    const PaperSize& paper_;
    std::vector<PrintBlock> blocks_;
};

}  // namespace

std::vector<PrintBlock> blocksOf(const PrintSheet& sheet, const PaperSize& paper) {
    return BlockMaker(sheet, paper).make();
}

}  // namespace ordwise
