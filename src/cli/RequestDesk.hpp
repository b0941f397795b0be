// What every request does to the worksheet before anything is solved.
#pragma once

#include "Examples.hpp"
#include "JsonText.hpp"
#include "Requests.hpp"

#include <map>
#include <string>
#include <vector>

namespace ordwise {

[[nodiscard]] bool solveEnabled();

// A fresh program with the settings of the request.
void startProgram(const std::map<std::string, std::string>& settings);
// The same with the worksheet of the topic open.
void openWorksheet(const std::string& topic, const std::map<std::string, std::string>& settings);

struct KeyResult {
    bool accepted = false;
    std::string reason;  // none for a key that was dropped: it was not even looked at
};

// Enter is no character of a problem, and here it is no command either.
KeyResult press(const std::string& key);

// Types the problem; a refused key ends it unless refused keys are to be dropped.
[[nodiscard]] std::vector<RefusedKey> typeProblem(const SolveRequest& request);
void selectCombos(const std::map<int, int>& combos);
// Fills the boxes through their key rule; the first text that a box refuses ends it.
void fillBoxes(const std::map<int, std::string>& boxes, std::vector<RefusedKey>& refused);

// All of it: a worksheet with the problem of the request on it.
[[nodiscard]] std::vector<RefusedKey> putOnWorksheet(const SolveRequest& request);

void writeRefused(JsonText& answer, const std::vector<RefusedKey>& refused);

}  // namespace ordwise
