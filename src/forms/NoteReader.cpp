// Finding the mathematics in a sentence. The words of a note stand between blanks; each is looked at
// by itself first, then beside its neighbours.
#include "MarkupCharacters.hpp"
#include "MarkupReader.hpp"

#include <algorithm>
#include <array>

namespace ordwise {
namespace {

enum class ChunkKind { Text, Number, Operator, Formula };

// What stands between two blanks: the core, and the punctuation in front of and behind it.
struct Chunk {
    std::string before;
    std::string core;
    std::string after;
    ChunkKind kind = ChunkKind::Text;
};

// The short words of the notes; any other two or three small letters in a topic of variables are a
// product of them.
constexpr std::array<std::string_view, 45> shortWords{
    "add", "all", "an",  "and", "any", "are", "as",  "at", "be",  "but", "by",  "can", "do",  "e.g", "ex",
    "far", "for", "get", "has", "how", "if",  "in",  "is", "it",  "its", "let", "new", "no",  "not", "now",
    "odd", "of",  "on",  "one", "or",  "out", "six", "so", "sum", "ten", "the", "to",  "two", "up",  "we"};

// What follows a letter that is meant, and not the article: "Add a and 2a", "Subtract a from 3".
constexpr std::array<std::string_view, 8> behindVariable{"and", "from", "to", "by", "using", "with", "is", "on"};

template <std::size_t Count>
bool isOneOf(const std::array<std::string_view, Count>& words, std::string_view word) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

bool allOf(std::string_view text, bool (*is)(char)) {
    return !text.empty() && std::all_of(text.begin(), text.end(), is);
}

// Where a construct that opens at `i` ends, behind its closing mark; `i` for any other character.
std::size_t constructEnd(std::string_view text, std::size_t i) {
    if (text[i] != '#' && text[i] != '^' && text[i] != '~') return i;
    const std::size_t end = text.find(text[i], i + 1);
    return end == std::string_view::npos ? i : end + 1;
}

std::size_t chunkEnd(std::string_view note, std::size_t i) {
    while (i < note.size() && note[i] != ' ') i = std::max(i + 1, constructEnd(note, i));
    return i;
}

int depthOf(std::string_view text) {
    return static_cast<int>(std::count(text.begin(), text.end(), '(') - std::count(text.begin(), text.end(), ')'));
}

// The parenthesis in front belongs to the sentence when it is not closed in the word or closes at its end.
bool openingIsAside(std::string_view core) {
    if (core.empty() || core.front() != '(') return false;
    if (depthOf(core) > 0) return true;
    int depth = 0;
    for (std::size_t i = 0; i < core.size(); ++i) {
        if (core[i] == '(') ++depth;
        if (core[i] == ')' && --depth == 0) return i + 1 == core.size();
    }
    return true;
}

Chunk chunkOf(std::string_view text) {
    Chunk chunk;
    std::string_view core = text;
    for (bool more = true; more && !core.empty();) {
        more = true;
        const bool closes = core.back() == ')' && depthOf(core) < 0;
        if (isPunctuation(core.back()) || closes) {
            core.remove_suffix(1);
        } else if (core.size() > 2 && core.substr(core.size() - 2) == "'s") {
            core.remove_suffix(2);
        } else {
            more = false;
        }
    }
    std::string_view before;
    if (openingIsAside(core)) {
        before = core.substr(0, 1);
        core.remove_prefix(1);
        if (depthOf(core) < 0) core.remove_suffix(1);
    }
    chunk.before = before;
    chunk.core = core;
    chunk.after = text.substr(static_cast<std::size_t>(core.data() + core.size() - text.data()));
    return chunk;
}

bool isOperator(std::string_view core) {
    return core.size() == 1 && std::string_view("=+-/").find(core[0]) != std::string_view::npos;
}

// A sign between two of "cube/box" or "step-by-step" is none of mathematics.
bool hasInnerSign(std::string_view core) {
    for (std::size_t i = 0; i < core.size(); ++i) {
        if (std::string_view("=+-/").find(core[i]) == std::string_view::npos) continue;
        const bool behindWord = i > 0 && isAsciiLetter(core[i - 1]) && i > 1 && isAsciiLetter(core[i - 2]);
        if (!behindWord) return true;
    }
    return false;
}

bool isTerm(std::string_view core, Letters letters) {
    const std::size_t digits = numberEnd(core, 0);
    if (digits > 0) return letters == Letters::Variables && allOf(core.substr(digits), isAsciiLetter);
    if (core.size() > 1 && isAsciiLetter(core[0]) && allOf(core.substr(1), isAsciiDigit)) return true;  // a1
    if (letters != Letters::Variables || core.size() < 2 || core.size() > 3) return false;
    const bool small = std::none_of(core.begin(), core.end(), isCapital) && allOf(core, isAsciiLetter);
    return small && !isOneOf(shortWords, core);
}

ChunkKind kindOf(std::string_view core, Letters letters) {
    if (core.empty()) return ChunkKind::Text;
    if (core.find_first_of("*<>|^#~`\\{$[]") != std::string_view::npos) return ChunkKind::Formula;
    if (numberEnd(core, 0) == core.size()) return ChunkKind::Number;
    if (isOperator(core)) return ChunkKind::Operator;
    if (isTerm(core, letters) || hasInnerSign(core)) return ChunkKind::Formula;
    return ChunkKind::Text;
}

// One letter alone is a variable, unless it is the article or the unit of the number before it.
bool isVariable(const std::vector<Chunk>& chunks, std::size_t i, Letters letters) {
    const Chunk& chunk = chunks[i];
    if (chunk.core.size() != 1 || !isAsciiLetter(chunk.core[0]) || !chunk.before.empty()) return false;
    if (letters == Letters::Words && i > 0 && chunks[i - 1].kind == ChunkKind::Number) return false;
    if (chunk.core != "a" && chunk.core != "A") return true;
    if (!chunk.after.empty() || i + 1 == chunks.size()) return true;
    return chunks[i + 1].kind == ChunkKind::Operator || isOneOf(behindVariable, chunks[i + 1].core);
}

std::vector<Chunk> chunksOf(std::string_view note, Letters letters) {
    std::vector<Chunk> chunks;
    for (std::size_t i = 0; i < note.size();) {
        if (note[i] == ' ') {
            ++i;
            continue;
        }
        const std::size_t end = chunkEnd(note, i);
        chunks.push_back(chunkOf(note.substr(i, end - i)));
        chunks.back().kind = kindOf(chunks.back().core, letters);
        i = end;
    }
    for (std::size_t i = 0; i < chunks.size(); ++i) {
        if (chunks[i].kind == ChunkKind::Text && isVariable(chunks, i, letters)) chunks[i].kind = ChunkKind::Formula;
    }
    return chunks;
}

// The sign that a formula goes on with: a bare operator, or one of those that are formulas by themselves.
bool isJoint(const Chunk& chunk) {
    const bool strong =
        chunk.core.size() == 1 && std::string_view("*<>{$").find(chunk.core[0]) != std::string_view::npos;
    return strong || (chunk.kind != ChunkKind::Text && isOperator(chunk.core));
}

bool touch(const Chunk& left, const Chunk& right) {
    return left.after.empty() && right.before.empty();
}

// An operator belongs to a formula with what stands on both of its sides: "6 + #2/3#", and "5 + 3"
// between numbers; "12 inches = 1 foot" stays a sentence.
void growFormulas(std::vector<Chunk>& chunks) {
    for (std::size_t i = 0; i < chunks.size(); ++i) {
        if (!isJoint(chunks[i])) continue;
        Chunk* left = i > 0 && touch(chunks[i - 1], chunks[i]) ? &chunks[i - 1] : nullptr;
        Chunk* right = i + 1 < chunks.size() && touch(chunks[i], chunks[i + 1]) ? &chunks[i + 1] : nullptr;
        if (left == nullptr || right == nullptr) continue;
        const bool formula = chunks[i].kind == ChunkKind::Formula || left->kind == ChunkKind::Formula ||
                             right->kind == ChunkKind::Formula;
        const bool numbers = left->kind == ChunkKind::Number && right->kind == ChunkKind::Number;
        const bool words = left->kind == ChunkKind::Text || right->kind == ChunkKind::Text;
        if (!(formula || numbers) || (words && chunks[i].kind != ChunkKind::Formula)) continue;
        for (Chunk* part : {left, &chunks[i], right}) part->kind = ChunkKind::Formula;
    }
}

class NoteParts {
public:
    explicit NoteParts(Letters letters) : letters_(letters) {}

    void say(std::string_view words) {
        if (words.empty()) return;
        endFormula();
        if (parts_.empty() || parts_.back().formula) parts_.emplace_back();
        parts_.back().text += words;
    }

    void write(std::string_view formula) { formula_ += formula; }
    [[nodiscard]] bool inFormula() const { return !formula_.empty(); }

    std::vector<NotePart> take() {
        endFormula();
        return std::move(parts_);
    }

private:
    void endFormula() {
        if (formula_.empty()) return;
        parts_.push_back({true, "", readMarkup(formula_, letters_)});
        formula_.clear();
    }

    Letters letters_;
    std::string formula_;
    std::vector<NotePart> parts_;
};

}  // namespace

std::vector<NotePart> readNote(std::string_view note, Letters letters) {
    std::vector<Chunk> chunks = chunksOf(note, letters);
    growFormulas(chunks);
    NoteParts parts(letters);
    std::size_t at = 0;
    for (std::size_t i = 0; i < chunks.size(); ++i) {
        const Chunk& chunk = chunks[i];
        const std::size_t start = note.find_first_not_of(' ', at);
        const std::string_view blanks = note.substr(at, start - at);
        const bool formula = chunk.kind == ChunkKind::Formula;
        const bool goesOn =
            formula && parts.inFormula() && touch(chunks[i - 1], chunk) && (isJoint(chunk) || isJoint(chunks[i - 1]));
        goesOn ? parts.write(blanks) : parts.say(blanks);
        parts.say(chunk.before);
        formula ? parts.write(chunk.core) : parts.say(chunk.core);
        parts.say(chunk.after);
        at = start + chunk.before.size() + chunk.core.size() + chunk.after.size();
    }
    parts.say(note.substr(at));
    return parts.take();
}

}  // namespace ordwise
