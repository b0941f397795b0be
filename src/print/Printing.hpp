// Printing a solved problem: frmPrintSetup, the solution and the graph.
#pragma once

namespace ordwise {

void frmPrintSetup_Load();   // the heading, and what there is to print
void frmPrintSetup_Paint();  // the printer's name
void frmPrintSetup_Check1_Click();
void frmPrintSetup_Check2_Click();
void frmPrintSetup_Command1_Click();  // Cancel
// OK: prints. The window stays open when that failed, and a solution that was printed before its graph
// failed is unchecked.
void frmPrintSetup_Command2_Click();
void frmPrintSetup_Command3_Click();  // Setup...
void frmPrintSetup_Command4_Click();  // Preview...: the pages of all that is checked

// The steps under the heading of frmPrintSetup, each with its explanation in blue under it if asked
// for. False when nothing was printed.
bool printSolution(bool withExplanations);

// The picture of the open graph window, under the heading and the problem, on a page and in a job of
// its own. False when nothing was printed.
bool PrintTheGraph();

}  // namespace ordwise
