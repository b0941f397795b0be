// The eleven settings of the per-user store: key, default and where each lands.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace ordwise {

struct SettingRow {
    std::string_view key;                   // in the store, e.g. "RoundVar"
    std::string_view fallback;              // the default, as text
    bool (*write)(std::string_view value);  // false, and nothing changed, for a value it cannot take
    std::string (*read)();
};

// In the order in which they are written.
[[nodiscard]] std::span<const SettingRow> settingsTable();

// Takes one setting over. False for a key that is no setting; `reason` then says what is wrong, as
// it does for a value that the setting cannot take. e.g. ("RoundVar", "3")
[[nodiscard]] bool applySetting(std::string_view key, std::string_view value, std::string& reason);

}  // namespace ordwise
