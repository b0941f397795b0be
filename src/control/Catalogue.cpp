#include "Catalogue.hpp"

#include "ChooserWindow.hpp"
#include "NumberText.hpp"
#include "Platform.hpp"
#include "RandomDraws.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"

#include <algorithm>

namespace ordwise {

const TopicRow* findTopic(std::string_view name) {
    const auto rows = topicTable();
    const auto row = std::find_if(rows.begin(), rows.end(), [&](const TopicRow& r) { return r.name == name; });
    return row == rows.end() ? nullptr : &*row;
}

std::vector<std::string_view> topicNames() {
    std::vector<std::string_view> names;
    for (const TreeRow& row : topicTree()) {
        if (row.key.empty()) names.push_back(row.text);
    }
    return names;
}

std::vector<std::string_view> indexList() {
    std::vector<std::string_view> names = topicNames();
    std::sort(names.begin(), names.end(),
              [](std::string_view a, std::string_view b) { return lowered(a) < lowered(b); });
    return names;
}

std::string hintOf(int code) {
    for (const HintRow& row : hintTable()) {
        if (std::find(std::begin(row.codes), std::end(row.codes), code) != std::end(row.codes))
            return std::string(row.text);
    }
    const int number = RandInt() + RandInt();
    return "Enter a number.  Example: " + textOf(number);
}

void TreeViewSelect(std::string_view name, bool lookupOnly) {
    ws.MaxDigits = 5;
    ws.EquationMode = 0;
    ws.ProblemType = 0;
    if (const TopicRow* row = findTopic(name)) {
        ws.ProblemType = row->code;
        if (!row->mask.empty()) ws.InputMask = MaskValue(row->mask);
        ws.MaxDigits = row->maxDigits;
        ws.EquationMode = row->equationMode;
        if (row->graphable) ws.GraphableTopic = 1;
        if (!lookupOnly) {
            ws.HintText = hintOf(row->code);
            ws.TopicName = name;
            frmSelect.Cancelled = false;
            platform.windows->unload("frmSelect");
        }
    }
    ws.PreviousProblemType = ws.ProblemType;
}

}  // namespace ordwise
