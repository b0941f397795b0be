// The line routine: walks the markup, breaks long lines, turns full pages.
#include "basFPrint.hpp"

#include "Fault.hpp"

#include <algorithm>
#include <string>

namespace ordwise {
namespace {

constexpr std::size_t longestLine = 3000;

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

void MathLineRenderer::line(std::string_view s) {
    if (!offsets_.pageTestFirst && surface_->CurrentY > offsets_.pageFull) turnPage(false);
    if (s.size() > longestLine) raise(FaultNumber::Subscript);
    surface_->ForeColor = normal_;
    surface_->print(std::string(static_cast<std::size_t>(offsets_.indentBlanks), ' '));
    surface_->CurrentX += offsets_.indent;
    const bool hasFraction = s.find('/') != std::string_view::npos;
    surface_->CurrentY += (hasFraction ? offsets_.moveDownFraction : offsets_.moveDown).at(surface_->FontSize);
    baseline_ = surface_->CurrentY;
    begun_ = true;
    endsInFraction_ = false;

    for (std::size_t i = 0; i < s.size();) {
        const char c = s[i];
        if (opensConstruct(c)) {
            const std::size_t end = s.find(c, i + 1);
            if (end == std::string_view::npos) raise(FaultNumber::Subscript);
            turnFullPage();  // a line may hold nothing but a fraction
            construct(c, s.substr(i + 1, end - i - 1));
            surface_->CurrentY = baseline_;
            i = end + 1;
        } else if (isColourMark(c)) {
            colour(c);
            ++i;
        } else {
            plain(c);
            ++i;
        }
    }
    lineEndX_ = surface_->CurrentX - 4;
    lineEndY_ = surface_->CurrentY;
    newLine();
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

void MathLineRenderer::plain(char c) {
    endsInFraction_ = false;
    turnFullPage();
    surface_->print(std::string_view(&c, 1));
    if (surface_->CurrentX > offsets_.breakAt) breakLine();
}

void MathLineRenderer::breakLine() {
    surface_->print("...");
    surface_->CurrentX = offsets_.breakX;
    baseline_ += offsets_.breakDown;
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
