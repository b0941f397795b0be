#include "ExplanationWindow.hpp"

#include "ExplainWindow.hpp"
#include "Platform.hpp"
#include "SpokenForm.hpp"
#include "Workspace.hpp"
#include "basFPrint.hpp"

#include <algorithm>
#include <string>
#include <string_view>

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

Explanation pickExplanation() {
    if (ws.ExplainOverride) {
        ws.ExplainOverride = false;
        return {ws.ExplainOverrideText, true};
    }
    const std::string& note = ws.StepNotes[ws.ShownStep];
    const bool always = note == ws.HintText || note == ws.ExplainOverrideText;
    if (ws.StepDetail > 1 && !always) return {std::string(lessDetail), false};
    return {note, false};
}

double widthOf(std::string_view text) {
    return textWidth(frmExplain.FontFace, text, frmExplain.FontSize);
}

// What the fraction whose "/" stands at `slash` gives back of its measured width, as a row of narrow
// letters: the bar stands for the "/", and the denominator goes below the numerator.
std::string creditOf(std::string_view text, std::size_t slash) {
    const std::size_t end = std::min(text.find('#', slash), text.size());
    return std::string(3 + (end - slash - 1), 'i');
}

// How many characters of `text` go on one line, and where the rest begins. Breaks at the last blank
// that fits and is not within a fraction, an exponent or a radical; without one, inside the word.
struct LineBreak {
    std::size_t length;
    std::size_t rest;
};

LineBreak breakOf(std::string_view text, bool plain) {
    std::size_t lastBlank = std::string_view::npos;
    std::string credit;
    char openMark = '\0';
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (!plain && c == '/') credit += creditOf(text, i);
        if (!plain && (c == openMark || (openMark == '\0' && (c == '#' || c == '^' || c == '~'))))
            openMark = c == openMark ? '\0' : c;
        if (c == ' ' && openMark == '\0') lastBlank = i;
        const bool fits = widthOf(text.substr(0, i + 1)) - widthOf(credit) <= frmExplain.Width;
        if (fits || i == 0) continue;
        if (lastBlank != std::string_view::npos) return {lastBlank, lastBlank};
        return {i, i};
    }
    return {text.size(), text.size()};
}

// Reasons of refusals are plain words: a "^" or "~" in them is a key that the student typed.
void drawLine(std::string_view line, bool plain) {
    if (plain) {
        frmExplain.ForeColor = blue;
        frmExplain.CurrentY += explanationOffsets.moveDown.at(frmExplain.FontSize);
        frmExplain.printLine(line);
        return;
    }
    MathLineRenderer renderer(frmExplain, explanationOffsets, blue, [](bool) -> DrawingSurface& { return frmExplain; });
    renderer.line(line);
}

void drawWrapped(const Explanation& explanation) {
    std::string_view text = explanation.text;
    while (!text.empty()) {
        const LineBreak found = breakOf(text, explanation.plain);
        drawLine(text.substr(0, found.length), explanation.plain);
        text.remove_prefix(found.rest);
        text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    }
}

}  // namespace

void LoadExplanation() {
    Sheet& sheet = frmPaper.Paper[ws.CurrentSheet];
    sheet.Order = ++frmPaper.FrontOrder;
    frmPaper.clickMe.Enabled = false;
    frmPaper.Click.Visible = false;
    frmExplain = ExplainWindow{};
    frmExplain.Left = sheet.Left + ws.LineEndX + besideLine;
    frmExplain.Top = sheet.Top + ws.LineEndY + 2 * frmExplain.Height;
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
        drawWrapped(explanation);
    } catch (const RunTimeFault&) {
        platform.dialogs->messageBox("An error occurred while displaying information.", "Ordwise", MessageButtons::Ok);
    }
    frmExplain.Height = frmExplain.CurrentY + footSizes * frmExplain.FontSize;
}

}  // namespace ordwise
