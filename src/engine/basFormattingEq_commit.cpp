// The heartbeat of the engine: a rewritten text becomes tokens, store, line and perhaps a step.
#include "CanonicalRewrite.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"
#include "basFormattingEq.hpp"

#include <algorithm>
#include <string_view>

namespace ordwise {
namespace {

// Topics and notes that the record treats on their own.
constexpr int evaluatingPolynomials = 103;
const std::string removeNote = "Remove the parenthesis.";

bool isHighlight(char c) {
    return c == '[' || c == ']';
}

// e.g. "2+5" and "2+[5]"
bool isWithoutHighlight(std::string_view line, std::string_view highlighted) {
    std::size_t at = 0;
    for (const char c : highlighted) {
        if (isHighlight(c)) continue;
        if (at == line.size() || line[at] != c) return false;
        ++at;
    }
    return at == line.size();
}

// A coefficient 1 in front of the variable is not spoken. e.g. "Add 1x and 2x" -> "Add x and 2x".
// The fraction patterns of the second variable look for the first one and put in the second; a
// step's line has no "#1x" by then, so this shows only in notes that the first pass has not cleaned.
void dropOnes(const std::string& name, const std::string& fractionName) {
    std::string& note = ws.CurrentNote;
    if (name.empty() || note.find('1') == std::string::npos || !contains(note, name)) return;
    if (!contains(note, "1" + name) && !contains(note, "1" + fractionName)) return;  // none of the patterns
    for (const char* front : {" ", "(", " -", "(-"}) note = replaced(note, front + ("1" + name), front + name);
    for (const char* front : {"#", "#-"}) note = replaced(note, front + ("1" + fractionName), front + name);
}

// Rearranging costs the student no line, and removing a parenthesis is a step only if one is gone.
bool isSuppressed(const std::string& line) {
    const auto opened = [](const std::string& text) { return std::count(text.begin(), text.end(), '('); };
    if (ws.StepCount == 1) return false;
    return ws.CurrentNote == reorderNote || (ws.CurrentNote == removeNote && opened(line) >= opened(ws.LastLine));
}

void recordStep(const std::string& line) {
    ws.StepLines[ws.StepCount] = line;
    ws.LastLine = line;
    ws.StepNotes[ws.StepCount] = ws.CurrentNote;
    ws.StepClassOf[ws.StepCount] = ws.StepClass;
    ws.StepCount += 1;
    ws.ReductionStable = false;
}

void decide(const std::string& line, CommitOptions options) {
    const bool sameCount = ws.TermLast[ws.MaxDepth][0] == ws.LastTermCount;
    if ((sameCount && !ws.KeepReducing && options.stopWhenStable) || line == ws.LastLine) {
        ws.ReductionStable = true;
        return;
    }
    // Where values are put in for letters, losing the highlight alone is no step.
    const bool onlyHighlight = ws.ProblemType == evaluatingPolynomials && isWithoutHighlight(line, ws.LastLine);
    const bool suppressed = !options.reordered && isSuppressed(line);
    if (!options.silent && !onlyHighlight && !suppressed) recordStep(line);
}

// Merges and parses the tokens. Two commits of three bring a text that has just been parsed, as the
// last rule wrote it or as the last commit left it: then the tokens are put back as that left them.
void analyse() {
    KnownText* place = &ws.CommitSources[1];
    for (KnownText& source : ws.CommitSources) {
        if (source.is(ws.TokenBuffer, ws.TokenLast, ws.CurrentSide)) {
            if (source.tokens != ws.StoreSource.tokens) ws.TokenBuffer = ws.StoreSource.tokens;
            ws.TokenLast = ws.StoreSource.last;
            return;
        }
        if (!source.isKnown()) place = &source;
    }
    const int last = ws.TokenLast;
    place->remember(ws.TokenBuffer, last, ws.CurrentSide);
    MergeNumbers();
    ParseExpression();
    // A new store has made all sources forgotten; this one is true again.
    place->last = ws.StoreSource.isKnown() ? last : KnownText::unknown;
}

}  // namespace

void CommitStep(CommitOptions options) {
    analyse();
    const std::string& line = CanonicalLine();
    const std::string first = ws.VarNames[1];
    dropOnes(first, first);
    dropOnes(ws.VarNames[2], first);
    decide(line, options);
    ws.LastTermCount = ws.TermLast[ws.MaxDepth][0];
}

}  // namespace ordwise
