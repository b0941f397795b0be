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

const MaskRow& rowOf(std::string_view key) {
    for (const MaskRow& row : maskRows) {
        if (key.size() == 1 && contains(row.keys, key)) return row;
    }
    return anyOtherKey;
}

}  // namespace

std::optional<std::string> maskRefusal(std::string_view key) {
    if (ws.InputMask <= 0) return std::nullopt;
    const MaskRow& row = rowOf(key);
    if ((ws.InputMask & row.bit) != 0) return std::nullopt;
    const std::string advice = row.bit == signBit ? "'.  Enter a number without using + or -." : "'.";
    return replaced(std::string(row.refusal), "<c>", key) + ws.TopicName + advice +
           "  Click the Assistant Wiz for details.";
}

}  // namespace ordwise
