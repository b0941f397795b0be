// Pages of the printer: planned for all sheets at once, drawn one by one when they are looked at or
// printed. A plan is words and places; so the pages that nobody looks at cost next to nothing.
#pragma once

#include "Platform.hpp"
#include "PrintWindows.hpp"

#include <string>
#include <vector>

namespace ordwise {

// The pages of all sheets; each sheet begins on a page of its own and counts its pages. At the foot of
// each stand what it is, its version, "Answer Key" on one, the number of the page and the seed.
[[nodiscard]] std::vector<PagePlan> planPages(const std::vector<PrintSheet>& sheets, const PaperSize& paper);

// Draws a page. The graph is that of the open graph window.
[[nodiscard]] PrintedPage drawPage(const PagePlan& plan, const PaperSize& paper);

// Sends the sheets to the printer as one job. False where nothing was printed; the status line then
// says why. A fault on the way abandons the job.
bool printSheets(const std::string& title, const std::vector<PrintSheet>& sheets);

}  // namespace ordwise
