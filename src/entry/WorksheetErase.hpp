// Erase: the worksheet as the topic had it when it was opened.
#pragma once

namespace ordwise {

// The Erase command: asks first; Cancel leaves all as it was.
void clear_Click();

// What Erase does once it is agreed to. An open absolute value bar is not forgotten (BarDepth): only
// a worksheet that is laid out anew forgets it.
void eraseWorksheet();

// The input light before any key: no refusal to be explained, no key dropped or to be undone.
void resetLight();
// Nothing to solve, print, save or graph.
void disableSolvedCommands();

}  // namespace ordwise
