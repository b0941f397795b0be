#include "SettingsTable.hpp"

#include "NumberText.hpp"
#include "TextTools.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <algorithm>
#include <optional>

namespace ordwise {
namespace {

std::optional<int> wholeNumber(std::string_view value, int least, int most) {
    if (!IsNumeric(value)) return std::nullopt;
    const double number = valueOf(value);
    if (number < least || number > most || number != static_cast<double>(static_cast<int>(number))) return std::nullopt;
    return static_cast<int>(number);
}

// "1", "-1" and "True" are true, "0" and "False" are false, whatever the case.
std::optional<bool> truth(std::string_view value) {
    const std::string word = lowered(value);
    if (word == "true" || word == "1" || word == "-1") return true;
    if (word == "false" || word == "0") return false;
    return std::nullopt;
}

template <Int16 Settings::*Field, int Least, int Most>
bool writeNumber(std::string_view value) {
    const auto number = wholeNumber(value, Least, Most);
    if (number) ws.*Field = *number;
    return number.has_value();
}

template <Int16 Settings::*Field>
std::string readNumber() {
    return textOf(static_cast<int>(ws.*Field));
}

template <bool Settings::*Field>
bool writeFlag(std::string_view value) {
    const auto flag = truth(value);
    if (flag) ws.*Field = *flag;
    return flag.has_value();
}

std::string textOfFlag(bool flag) {
    return flag ? "True" : "False";
}

template <bool Settings::*Field>
std::string readFlag() {
    return textOfFlag(ws.*Field);
}

template <Control MainWindow::*Menu>
bool writeCheck(std::string_view value) {
    const auto flag = truth(value);
    if (flag) (frmMain.*Menu).Checked = *flag;
    return flag.has_value();
}

template <Control MainWindow::*Menu>
std::string readCheck() {
    return textOfFlag((frmMain.*Menu).Checked);
}

bool writeAssistant(std::string_view value) {
    if (!writeNumber<&Settings::AssistantChoice, 1, 3>(value)) return false;
    ws.AssistantKey = "wiz" + textOf(static_cast<int>(ws.AssistantChoice));
    return true;
}

// 2 draws harder examples, 0 plain ones; there is nothing between.
bool writeComplexExamples(std::string_view value) {
    return value != "1" && writeNumber<&Settings::ComplexExamples, 0, 2>(value);
}

// clang-format off
const SettingRow rows[] = {
    {"whichAssistant", "1", writeAssistant,                              readNumber<&Settings::AssistantChoice>},
    {"RoundVar",       "2", writeNumber<&Settings::RoundPlaces, 0, 15>,  readNumber<&Settings::RoundPlaces>},
    {"ComplexEx",      "0", writeComplexExamples,                        readNumber<&Settings::ComplexExamples>},
    {"ClickNotify",    "1", writeFlag<&Settings::ClickNotify>,           readFlag<&Settings::ClickNotify>},
    {"ExpDetail",      "3", writeNumber<&Settings::ExpDetail, 1, 3>,     readNumber<&Settings::ExpDetail>},
    {"use_fraction",   "1", writeFlag<&Settings::UseFractions>,          readFlag<&Settings::UseFractions>},
    {"detail",         "1", writeNumber<&Settings::StepDetail, 1, 3>,    readNumber<&Settings::StepDetail>},
    {"mnuPencil",      "1", writeCheck<&MainWindow::mnuPencil>,          readCheck<&MainWindow::mnuPencil>},
    {"mnuShowStep",    "1", writeCheck<&MainWindow::mnuShowStep>,        readCheck<&MainWindow::mnuShowStep>},
    {"mnuHideWiz",     "1", writeCheck<&MainWindow::mnuHideWiz>,         readCheck<&MainWindow::mnuHideWiz>},
    {"mnuShowLight",   "1", writeCheck<&MainWindow::mnuShowLight>,       readCheck<&MainWindow::mnuShowLight>},
};
// clang-format on

}  // namespace

std::span<const SettingRow> settingsTable() {
    return rows;
}

bool applySetting(std::string_view key, std::string_view value, std::string& reason) {
    const auto row = std::find_if(std::begin(rows), std::end(rows), [&](const SettingRow& r) { return r.key == key; });
    if (row == std::end(rows)) {
        reason = "There is no setting \"" + std::string(key) + "\".";
        return false;
    }
    if (!row->write(value)) {
        reason = "The setting \"" + std::string(key) + "\" can't be \"" + std::string(value) + "\".";
        return false;
    }
    return true;
}

}  // namespace ordwise
