#include "DroppedKeys.hpp"

#include "GlyphMetrics.hpp"
#include "NumberText.hpp"
#include "TextTools.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <algorithm>

namespace ordwise {
namespace {

constexpr Colour markColour{196, 60, 40};
constexpr double boxPoints = 14.7;  // in which the boxes are lettered
constexpr double boxMargin = 6;

int typedInto(int box) {
    return box == 0 ? static_cast<int>(ws.InputLast) : static_cast<int>(frmPaper.box(box).Text.size());
}

struct Place {
    double x = 0;
    double y = 0;
};

// A wedge that points at a gap from below, as a reader marks that something is missing.
void addMark(DisplayList& marks, const Place& place) {
    constexpr double half = 4;
    constexpr double height = 6;
    constexpr double width = 1.6;
    marks.push_back(Stroke{place.x - half, place.y + height, place.x, place.y, width, markColour});
    marks.push_back(Stroke{place.x, place.y, place.x + half, place.y + height, width, markColour});
}

// Typed marks of markup are not drawn as they are typed.
bool isDrawn(std::string_view token) {
    return token != "/" && token != "^" && token != "~";
}

// Goes through what was drawn of the line, glyph by glyph, in the order of the keys.
class DrawnGlyphs {
public:
    explicit DrawnGlyphs(const DisplayList& drawn) : drawn_(drawn) {}

    // Goes on to the next glyph of that key and tells where it ends; false if there is none.
    bool find(std::string_view key, Place& end) {
        for (; operation_ < drawn_.size(); ++operation_, glyph_ = 0) {
            const auto* run = std::get_if<Glyphs>(&drawn_[operation_]);
            if (run == nullptr) continue;
            const std::size_t found = run->text.find(key, glyph_);
            if (found == std::string::npos) continue;
            glyph_ = found + key.size();
            end.x = run->x + textWidth(run->face, run->text.substr(0, glyph_), run->size);
            end.y = run->y + lineHeightOf(run->face, run->size);
            return true;
        }
        return false;
    }

private:
    const DisplayList& drawn_;
    std::size_t operation_ = 0;
    std::size_t glyph_ = 0;
};

// Behind the last key before it that is to be seen; before the first, where a line begins.
Place placeOnPaper(int at) {
    const Sheet& paper = frmPaper.Paper[0];
    const double indent = textWidth(paper.FontFace, std::string(17, ' '), paper.FontSize);
    Place place{indent, 81 + 2.4 * paper.FontSize + lineHeightOf(paper.FontFace, paper.FontSize)};
    DrawnGlyphs glyphs(paper.drawn());
    for (int i = 0; i < at && i < ws.InputLast; ++i) {
        const std::string& key = ws.InputTokens[i];
        if (isDrawn(key) && !glyphs.find(key, place)) break;
    }
    return place;
}

Place placeAtBox(const DroppedKey& dropped) {
    const Control& box = frmPaper.box(dropped.Box);
    const std::string before = box.Text.substr(0, static_cast<std::size_t>(dropped.At));
    return {box.Left + boxMargin + textWidth(Face::Halvern, before, boxPoints), box.Top + box.Height + 2};
}

bool lightTells(const DroppedKey& dropped) {
    return frmPaper.Light.Image == "light3" && dropped.Reason == ws.ExplainOverrideText;
}

}  // namespace

void rememberDroppedKey(std::string_view key, int box) {
    const int at = typedInto(box);
    const bool known = std::any_of(frmPaper.DroppedKeys.begin(), frmPaper.DroppedKeys.end(),
                                   [&](const DroppedKey& k) { return k.Key == key && k.Box == box && k.At == at; });
    if (!known) frmPaper.DroppedKeys.push_back({std::string(key), ws.ExplainOverrideText, box, at});
}

void forgetKeysGoneBackOver(int box) {
    const int typed = typedInto(box);
    std::erase_if(frmPaper.DroppedKeys, [&](const DroppedKey& key) { return key.Box == box && key.At >= typed; });
}

void forgetDroppedKeys() {
    frmPaper.DroppedKeys.clear();
    frmPaper.Paper[0].Marks.clear();
    frmPaper.BoxMarks.clear();
}

void markDroppedKeys() {
    frmPaper.Paper[0].Marks.clear();
    frmPaper.BoxMarks.clear();
    for (const DroppedKey& key : frmPaper.DroppedKeys) {
        if (key.Box == 0) {
            addMark(frmPaper.Paper[0].Marks, placeOnPaper(key.At));
        } else {
            addMark(frmPaper.BoxMarks, placeAtBox(key));
        }
    }
}

std::string droppedKeysSentence() {
    const std::vector<DroppedKey>& keys = frmPaper.DroppedKeys;
    if (keys.empty()) return "";
    const auto told = std::find_if(keys.begin(), keys.end(), lightTells);
    const DroppedKey& key = told == keys.end() ? keys.front() : *told;
    std::string sentence = "'" + key.Key + "' was not taken: " + key.Reason;
    const int others = static_cast<int>(keys.size()) - 1;
    if (others == 1) sentence += "  1 other key was not taken either.";
    if (others > 1) sentence += "  " + textOf(others) + " other keys were not taken either.";
    return sentence;
}

}  // namespace ordwise
