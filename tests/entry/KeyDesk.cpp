#include "KeyDesk.hpp"

#include "CanonicalRewrite.hpp"
#include "Catalogue.hpp"
#include "GuidedInput.hpp"
#include "TextTools.hpp"
#include "Windows.hpp"
#include "WorksheetLayout.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"

namespace ordwise::test {

void chooseFresh(std::string_view topic) {
    ws = Workspace{};
    ResetWindows();
    TreeViewSelect(topic);
    Form_Load();
}

std::vector<std::string> keysOf(std::string_view text) {
    std::vector<std::string> keys = characters(text);
    for (std::size_t i = 0; i + 1 < keys.size(); ++i) {
        if (keys[i] != "<" || keys[i + 1] != "-") continue;
        keys[i] = backspaceKey;
        keys.erase(keys.begin() + static_cast<std::ptrdiff_t>(i) + 1);
    }
    return keys;
}

std::string typedText() {
    return ImplodeInput();
}

std::string shownMarkup() {
    return ImplodeCanon();
}

bool solveEnabled() {
    return frmMain.mnuSolve.Enabled;
}

std::string afterKeys(std::string_view topic, std::string_view keys) {
    chooseFresh(topic);
    std::string firstRefusal;
    int refused = 0;
    for (const std::string& key : keysOf(keys)) {
        if (Form_KeyPress(key) != KeyOutcome::Refused) continue;
        const std::string shownKey = key == backspaceKey ? "<-" : key;
        if (++refused == 1) firstRefusal = " | \"" + shownKey + "\" refused: " + trimmed(ws.ExplainOverrideText);
    }
    if (refused > 1) firstRefusal += " (and " + std::to_string(refused - 1) + " more)";

    const auto shown = [](const std::string& text) { return text.empty() ? "(empty)" : text; };
    return shown(typedText()) + " | " + shown(shownMarkup()) + (solveEnabled() ? " | Solve" : " | no Solve") +
           firstRefusal;
}

}  // namespace ordwise::test
