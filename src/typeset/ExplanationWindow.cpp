#include "ExplanationWindow.hpp"

#include "ExplainWindow.hpp"
#include "Platform.hpp"
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

// As drawn, since a fraction takes less room than its characters.
double widthOf(std::string_view text, bool plain) {
    DrawingSurface beside = frmExplain.trial();
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
std::size_t cutOf(std::string_view text, bool plain) {
    std::size_t fits = 0;
    for (std::size_t i = 0; i < text.size();) {
        const bool mark = !plain && (text[i] == '#' || text[i] == '^' || text[i] == '~');
        const std::size_t close = mark ? text.find(text[i], i + 1) : i;
        i = std::min(close, text.size() - 1) + 1;
        if (fits > 0 && widthOf(text.substr(0, i), plain) > frmExplain.Width) break;
        fits = i;
    }
    return fits;
}

// How many characters of `text` go on one line.
std::size_t lineOf(std::string_view text, bool plain) {
    if (widthOf(text, plain) <= frmExplain.Width) return text.size();
    const std::vector<std::size_t> blanks = breaksOf(text, plain);
    std::size_t fits = 0;
    for (const std::size_t blank : blanks) {
        if (widthOf(text.substr(0, blank), plain) > frmExplain.Width) break;
        fits = blank;
    }
    return fits > 0 ? fits : cutOf(text.substr(0, blanks.empty() ? text.size() : blanks.front()), plain);
}

void drawWrapped(const Explanation& explanation) {
    std::string_view text = explanation.text;
    while (!text.empty()) {
        const std::size_t length = lineOf(text, explanation.plain);
        write(frmExplain, text.substr(0, length), explanation.plain);
        text.remove_prefix(length);
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
