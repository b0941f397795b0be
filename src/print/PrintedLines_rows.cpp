// Lines that are longer than the paper is wide.
#include "PrintedLines.hpp"

#include <algorithm>
#include <string_view>

namespace ordwise {
namespace {

constexpr double furtherRowX = 12;  // to the right of the first row

bool isMark(char c) {
    return c == '#' || c == '^' || c == '~';
}

// What is drawn in one piece: a character or a construct, with the exponent behind it.
std::string_view pieceAt(std::string_view text, std::size_t at) {
    std::size_t end = at;
    do {
        const std::size_t close = isMark(text[end]) ? text.find(text[end], end + 1) : end;
        end = std::min(close, text.size() - 1) + 1;
    } while (end < text.size() && text[end] == '^');
    return text.substr(at, end - at);
}

bool isSign(char c) {
    return std::string_view("+-=*{<>$").find(c) != std::string_view::npos;
}

class RowBreaker {
public:
    RowBreaker(const PlannedLine& line, const PaperSize& paper) : line_(line), paper_(paper) {}

    std::vector<PlannedLine> rows() {
        std::string rest = line_.Text;
        while (!fits(rest, "")) {
            const std::size_t end = endOfRow(rest);
            const bool atBlank = rest[end] == ' ';
            const std::string row = rest.substr(0, end);
            rest.erase(0, atBlank ? end + 1 : end);
            // A highlight goes on in the next row.
            const bool highlighted = row.rfind('[') != std::string::npos &&
                                     (row.rfind(']') == std::string::npos || row.rfind(']') < row.rfind('['));
            add(row + (highlighted ? "]" : "") + (atBlank ? "" : "..."));
            if (highlighted) rest.insert(0, "[");
        }
        add(rest);
        if (rows_.size() > 1) rows_.front().Whole = line_.Text;
        return std::move(rows_);
    }

private:
    void add(const std::string& text) {
        PlannedLine row = line_;
        row.Text = text;
        if (!rows_.empty()) row.X += furtherRowX;
        row.Continued = !rows_.empty();
        rows_.push_back(std::move(row));
    }

    [[nodiscard]] bool fits(const std::string& text, const char* behind) const {
        PlannedLine row = line_;
        row.Text = text + behind;
        return roomOf(row, paper_).right <= pageUnitsAcross - (rows_.empty() ? 0 : furtherRowX);
    }

    // Behind the last piece that has room; before a sign or at a blank where the row is half full by then.
    [[nodiscard]] std::size_t endOfRow(const std::string& text) const {
        std::vector<std::size_t> ends;
        for (std::size_t at = 0; at < text.size(); at += pieceAt(text, at).size()) ends.push_back(at);
        const auto last = std::partition_point(ends.begin() + 1, ends.end(), [&](std::size_t end) {
            return fits(text.substr(0, end), text[end] == ' ' ? "" : "...");
        });
        const std::size_t most = last == ends.begin() + 1 ? *last : *(last - 1);
        for (const bool blank : {true, false}) {
            for (auto end = last - 1; end > ends.begin() && *end > most / 2; --end) {
                if (blank ? text[*end] == ' ' : isSign(text[*end])) return *end;
            }
        }
        return most;
    }

    const PlannedLine& line_;
    const PaperSize& paper_;
    std::vector<PlannedLine> rows_;
};

}  // namespace

std::vector<PlannedLine> rowsOf(const PlannedLine& line, const PaperSize& paper) {
    if (!roomOf(line, paper).drawable) return {line};
    return RowBreaker(line, paper).rows();
}

}  // namespace ordwise
