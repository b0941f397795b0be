// Pages for the printer, laid out to the end before anything is sent.
//
// The pen of a page counts 800 across and 600 down over the printable area, whatever the paper; the
// letters keep their size. Portrait paper makes a unit down nearly twice as long as one across.
#pragma once

#include "DrawingSurface.hpp"
#include "Platform.hpp"

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace ordwise {

inline constexpr double pageUnitsAcross = 800;
inline constexpr double pageUnitsDown = 600;

// The page being written; those before it are finished.
class PageSurface : public DrawingSurface {
public:
    // HalvernFont at 12 points, the pen at the top.
    explicit PageSurface(const PaperSize& paper);

    void NewPage() override;

    std::string Foot;  // small print at the end of every page; may be empty

    // All pages, the one being written included. The surface is used up.
    [[nodiscard]] std::vector<DisplayList> finished();

private:
    void finishPage();

    std::vector<DisplayList> pages_;
};

// Draws one line of markup at the pen, in blue if asked for, and goes to fresh pages where one is
// full. A line that cannot be drawn ends in a message box, and the next line goes on below it.
// `surface` may be any surface of a page; its NewPage is called.
void PrintLine(std::string_view line, DrawingSurface& surface, bool inBlue);

// The same with room above the line for what stands higher than a letter, for lines that follow one
// another closely.
void PrintCloseLine(std::string_view line, PageSurface& page);

// Three blank lines and the heading below them. What somebody types there is no mathematics.
void printHeading(PageSurface& page, const std::array<std::string, 3>& heading);

// A fresh page with the pen where the first line of a page begins.
void beginPage(PageSurface& page);

// Lays out pages by `layOut` and sends them to the printer as one job. A fault on the way abandons
// the job. Where nothing was printed, the answer is false and the status line says why.
bool printPages(const std::string& title, const std::function<void(PageSurface&)>& layOut);

}  // namespace ordwise
