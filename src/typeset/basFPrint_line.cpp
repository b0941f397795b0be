// The line routine: walks the markup, breaks long lines, turns full pages.
#include "basFPrint.hpp"

#include "Fault.hpp"

#include <algorithm>
#include <string>

namespace ordwise {
namespace {

constexpr std::size_t longestLine = 3000;
constexpr double lineEndGap = 4;  // of what stands behind a line

bool opensConstruct(char c) {
    return c == '#' || c == '^' || c == '~';
}

bool isColourMark(char c) {
    return c == '[' || c == ']';
}

}  // namespace

MathLineRenderer::MathLineRenderer(DrawingSurface& surface, const SurfaceOffsets& offsets, Colour normal,
                                   NextPage nextPage)
    : surface_(&surface), offsets_(offsets), normal_(normal), nextPage_(std::move(nextPage)) {}

void MathLineRenderer::begin(bool hasFraction) {
    surface_->ForeColor = normal_;
    surface_->print(std::string(static_cast<std::size_t>(offsets_.indentBlanks), ' '));
    surface_->CurrentX += offsets_.indent;
    surface_->CurrentY += (hasFraction ? offsets_.moveDownFraction : offsets_.moveDown).at(surface_->FontSize);
    baseline_ = surface_->CurrentY;
    begun_ = true;
    endsInFraction_ = false;
    overfull_ = false;
}

void MathLineRenderer::end() {
    lineEndX_ = surface_->CurrentX - lineEndGap;
    lineEndY_ = surface_->CurrentY;
    newLine();
}

double MathLineRenderer::lineWidth() const {
    return lineEndX_ + lineEndGap;
}

void MathLineRenderer::words(std::string_view text) {
    begin(false);
    for (std::size_t i = 0; i < text.size(); ++i) glyph(text, i);
    end();
}

void MathLineRenderer::line(std::string_view s) {
    if (!offsets_.pageTestFirst && surface_->CurrentY > offsets_.pageFull) turnPage(false);
    if (s.size() > longestLine) raise(FaultNumber::Subscript);
    begin(s.find('/') != std::string_view::npos);
    hasFractions_ = s.find('#') != std::string_view::npos;
    for (std::size_t i = 0; i < s.size();) {
        const char c = s[i];
        if (opensConstruct(c)) {
            const std::size_t end = s.find(c, i + 1);
            if (end == std::string_view::npos) raise(FaultNumber::Subscript);
            if (overfull_) breakLine();
            turnFullPage();  // a line may hold nothing but a fraction
            construct(c, s.substr(i + 1, end - i - 1));
            surface_->CurrentY = baseline_;
            i = end + 1;
        } else if (isColourMark(c)) {
            colour(c);
            ++i;
        } else {
            plain(s, i);
            ++i;
        }
    }
    end();
    if (hasFractions_) surface_->CurrentY += offsets_.belowFraction.at(surface_->FontSize);
}

void MathLineRenderer::newLine() {
    if (!begun_) return;
    surface_->CurrentY = baseline_;
    surface_->printLine(" ");
    begun_ = false;
}

void MathLineRenderer::construct(char mark, std::string_view text) {
    endsInFraction_ = mark == '#';
    if (mark == '#') {
        PrintFraction(text);
    } else if (mark == '^') {
        PrintExponent(text);
    } else {
        PrintRadical(text);
    }
}

// A line breaks before what comes behind the character that went too far, and not when nothing does.
void MathLineRenderer::plain(std::string_view s, std::size_t at) {
    endsInFraction_ = false;
    if (overfull_ && s[at] == ' ') return;
    if (overfull_) breakLine();
    turnFullPage();
    glyph(s, at);
    overfull_ = surface_->CurrentX > offsets_.breakAt;
}

void MathLineRenderer::breakLine() {
    overfull_ = false;
    surface_->print("...");
    surface_->CurrentX = offsets_.breakX;
    baseline_ += (hasFractions_ ? offsets_.breakDownFraction : offsets_.breakDown).at(surface_->FontSize);
    if (!offsets_.pageTestFirst && surface_->CurrentY > offsets_.pageFull) {
        turnPage(true);
        surface_->CurrentX = offsets_.breakX;
    }
    surface_->CurrentY = baseline_;
}

void MathLineRenderer::turnFullPage() {
    if (offsets_.pageTestFirst && baseline_ > offsets_.pageFull) turnPage(false);
    surface_->CurrentY = baseline_;
}

void MathLineRenderer::turnPage(bool afterBreak) {
    const Colour colourInForce = surface_->ForeColor;
    surface_ = &nextPage_(afterBreak);
    surface_->ForeColor = colourInForce;
    baseline_ = surface_->CurrentY;
}

void MathLineRenderer::colour(char mark) {
    surface_->ForeColor = mark == '[' ? red : normal_;
}

}  // namespace ordwise
