#include "ExplanationWindow.hpp"

#include "ExplainWindow.hpp"
#include "Platform.hpp"
#include "ShownLines.hpp"
#include "SpokenForm.hpp"
#include "Workspace.hpp"
#include "basFPrint.hpp"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace ordwise {
namespace {

constexpr double besideLine = 54;
constexpr double hintLeft = 70;
constexpr double hintTop = 255;
constexpr double footSizes = 3.5;  // of the window below its text, in font sizes
constexpr std::string_view lessDetail = "Select 'High' step-by-step detail for explanations.";

struct Explanation {
    std::string text;
    bool plain = false;  // no mathematics in it: a "/" is just a character
};

// The end of the line that is explained.
struct PlaceInView {
    int sheet;
    double endX;
    double endY;
};

PlaceInView placeInView() {
    if (frmPaper.ChosenLine < 0) return {ws.CurrentSheet, ws.LineEndX, ws.LineEndY};
    const ShownLine& line = frmPaper.Lines[static_cast<std::size_t>(frmPaper.ChosenLine)];
    return {line.Sheet, line.EndX, line.EndY};
}

Explanation pickExplanation() {
    if (ws.ExplainOverride) {
        ws.ExplainOverride = false;
        return {ws.ExplainOverrideText, true};
    }
    const std::string& note = noteInView();
    const bool always = note == ws.HintText || note == ws.ExplainOverrideText;
    if (ws.StepDetail > 1 && !always) return {std::string(lessDetail), false};
    return {note, false};
}

// Reasons of refusals are plain words: a "^" or "~" in them is a key that the student typed.
double write(DrawingSurface& surface, std::string_view line, bool plain) {
    MathLineRenderer renderer(surface, explanationOffsets, blue,
                              [&surface](bool) -> DrawingSurface& { return surface; });
    if (plain) {
        renderer.words(line);
    } else {
        renderer.line(line);
    }
    return renderer.lineWidth();
}

// What a text is wrapped on.
struct Page {
    DrawingSurface& surface;
    double width;
};

// As drawn, since a fraction takes less room than its characters.
double widthOf(const Page& page, std::string_view text, bool plain) {
    DrawingSurface beside = page.surface.trial();
    return write(beside, text, plain);
}

// The blanks at which a text may break: those not within a fraction, an exponent or a radical.
std::vector<std::size_t> breaksOf(std::string_view text, bool plain) {
    std::vector<std::size_t> blanks;
    char openMark = '\0';
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const bool mark = !plain && (c == '#' || c == '^' || c == '~');
        if (mark && c == openMark) {
            openMark = '\0';
        } else if (mark && openMark == '\0') {
            openMark = c;
        }
        if (c == ' ' && openMark == '\0') blanks.push_back(i);
    }
    return blanks;
}

// How much of a word without a blank goes on one line; a construct stays whole.
std::size_t cutOf(const Page& page, std::string_view text, bool plain) {
    std::size_t fits = 0;
    for (std::size_t i = 0; i < text.size();) {
        const bool mark = !plain && (text[i] == '#' || text[i] == '^' || text[i] == '~');
        const std::size_t close = mark ? text.find(text[i], i + 1) : i;
        i = std::min(close, text.size() - 1) + 1;
        if (fits > 0 && widthOf(page, text.substr(0, i), plain) > page.width) break;
        fits = i;
    }
    return fits;
}

// How many characters of `text` go on one line.
std::size_t lineOf(const Page& page, std::string_view text, bool plain) {
    if (widthOf(page, text, plain) <= page.width) return text.size();
    const std::vector<std::size_t> blanks = breaksOf(text, plain);
    std::size_t fits = 0;
    for (const std::size_t blank : blanks) {
        if (widthOf(page, text.substr(0, blank), plain) > page.width) break;
        fits = blank;
    }
    return fits > 0 ? fits : cutOf(page, text.substr(0, blanks.empty() ? text.size() : blanks.front()), plain);
}

void drawWrapped(const Page& page, std::string_view text, bool plain) {
    while (!text.empty()) {
        const std::size_t length = lineOf(page, text, plain);
        write(page.surface, text.substr(0, length), plain);
        text.remove_prefix(length);
        text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    }
}

}  // namespace

void drawNote(DrawingSurface& surface, std::string_view note, double width) {
    drawWrapped({surface, width}, note, false);
}

void LoadExplanation() {
    const PlaceInView place = placeInView();
    Sheet& sheet = frmPaper.Paper[place.sheet];
    sheet.Order = ++frmPaper.FrontOrder;
    frmPaper.clickMe.Enabled = false;
    frmPaper.Click.Visible = false;
    frmExplain = ExplainWindow{};
    frmExplain.Left = sheet.Left + place.endX + besideLine;
    frmExplain.Top = sheet.Top + place.endY + 2 * frmExplain.Height;
    frmExplain.Loaded = true;
}

void ShowExplanation() {
    const Explanation explanation = pickExplanation();
    if (explanation.text == ws.HintText) {
        const Sheet& sheet = frmPaper.Paper[ws.CurrentSheet];
        frmExplain.Left = sheet.Left + hintLeft;
        frmExplain.Top = sheet.Top + hintTop;
    }
    frmExplain.cls();
    frmExplain.Spoken = explanation.plain ? explanation.text : spokenNote(explanation.text, lettersOf(ws.ProblemType));
    try {
        drawWrapped({frmExplain, frmExplain.Width}, explanation.text, explanation.plain);
    } catch (const RunTimeFault&) {
        platform.dialogs->messageBox("An error occurred while displaying information.", "Ordwise", MessageButtons::Ok);
    }
    frmExplain.Height = frmExplain.CurrentY + footSizes * frmExplain.FontSize;
}

}  // namespace ordwise
