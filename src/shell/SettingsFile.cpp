#include "SettingsFile.hpp"

#include "Platform.hpp"
#include "SettingsTable.hpp"
#include "TextTools.hpp"

#include <filesystem>

namespace ordwise {
namespace {

constexpr std::string_view section = "[Ordwise]";

void takeLine(std::string_view line) {
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) return;
    std::string reason;  // a line that says nothing to us leaves the default
    (void)applySetting(trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1)), reason);
}

}  // namespace

void takeSettings(std::string_view text) {
    for (const SettingRow& row : settingsTable()) (void)row.write(row.fallback);
    bool ours = false;
    for (const std::string& raw : split(replaced(std::string(text), "\r", ""), '\n')) {
        const std::string line = trimmed(raw);
        if (line.starts_with('[')) ours = line == section;
        if (ours) takeLine(line);
    }
}

std::string settingsText() {
    std::string text = std::string(section) + "\n";
    for (const SettingRow& row : settingsTable()) text += std::string(row.key) + "=" + row.read() + "\n";
    return text;
}

void readSettings() {
    takeSettings(platform.files->read(platform.folders.settingsFile).value_or(""));
}

std::string writeSettings() {
    const std::string& file = platform.folders.settingsFile;
    if (file.empty()) return "There is no directory for the settings of this user.";
    platform.files->createDirectory(std::filesystem::path(file).parent_path().string());
    return platform.files->write(file, settingsText());
}

}  // namespace ordwise
