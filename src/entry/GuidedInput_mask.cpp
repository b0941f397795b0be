#include "InputMaskCheck.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"

namespace ordwise {

namespace {

struct MaskRow {
    std::string_view keys;
    int bit;                   // of InputMask; 0 is never set
    std::string_view refusal;  // "<c>" is the key; the topic's name follows
};

// clang-format off
constexpr MaskRow maskRows[] = {
    {"0123456789",                  1, "Numbers are not allowed in '"},
    {"+-",                          2, "The '<c>' sign is not allowed in '"},
    {"*",                           4, "The '<c>' is not allowed in '"},
    {"/",                           8, "The division symbol is not allowed in '"},
    {"^",                          16, "Exponents are not allowed in '"},
    {"()",                         32, "The '<c>' is not allowed in '"},
    {"=",                          64, "The '<c>' is not allowed in '"},
    {"abcdefghijklmnopqrstuvwxyz", 128, "Variables are not allowed in '"},
    {"ABCDEFGHIJKLMNOPQRSTUVWXYZ", 128, "Variables are not allowed in '"},
    {"~",                         256, "Square roots (~ ~) are not allowed in '"},
    {"|",                         512, "Absolute Values (|) are not allowed in '"},
    {".",                        1024, "Decimals (.) are not allowed in '"},
    {",",                        2048, "Commas (,) are not allowed in '"},
    {":",                        4096, "Ratios (:) are not allowed in '"},
    {"%",                        8192, "Percents (%) are not allowed in '"},
    {"[#]",                         0, "This symbol is not allowed in '"},
};
constexpr MaskRow anyOtherKey =
    {"",                            0, "The '<c>' is not allowed in '"};
// clang-format on

constexpr int signBit = 2;

// What the solver of a topic writes and its problems do not have.
struct SolversKeys {
    int type;
    int bits;
};

// clang-format off
constexpr SolversKeys solversKeys[] = {
    { 76, 32},         // #(3+2)/6#
    { 81, 32 | 1024},  // 1.6
    { 84, 4},          // 2*180
    { 91, 32},
    {101, 8 | 1024},   // #2x/2#=#4/2#, x=0.33
    {102, 1024},
    {103, 1024 | 8},
    {105, 8 | 1024},
    {120, 32},
    {121, 1024},
    {150, 1024},
};
// clang-format on

int keysAllowed() {
    int bits = ws.InputMask;
    if (!ws.LineWorked) return bits;
    for (const SolversKeys& row : solversKeys) {
        if (row.type == ws.ProblemType) bits |= row.bits;
    }
    return bits;
}

// "$", the sign that says that the sides of an equation differ.
bool isUnequalSign(std::string_view key) {
    return key == "$" && ws.LineWorked && (ws.InputMask & 64) != 0;
}

const MaskRow& rowOf(std::string_view key) {
    for (const MaskRow& row : maskRows) {
        if (key.size() == 1 && contains(row.keys, key)) return row;
    }
    return anyOtherKey;
}

}  // namespace

std::optional<std::string> maskRefusal(std::string_view key) {
    if (ws.InputMask <= 0 || isUnequalSign(key)) return std::nullopt;
    const MaskRow& row = rowOf(key);
    if ((keysAllowed() & row.bit) != 0) return std::nullopt;
    const std::string advice = row.bit == signBit ? "'.  Enter a number without using + or -." : "'.";
    return replaced(std::string(row.refusal), "<c>", key) + ws.TopicName + advice +
           "  Click the Assistant Wiz for details.";
}

}  // namespace ordwise
