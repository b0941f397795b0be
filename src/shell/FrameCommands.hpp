// The commands of the frame, as its menus and its toolbar give them. Each reaches the worksheet
// through the worksheet's own routines.
#pragma once

#include <string_view>

namespace ordwise {

// New Problem: lets the student choose, and lays out a fresh worksheet unless the chooser was
// cancelled.
void mnuNew_Click();
// Close Problem: the problem goes from the desk, and Open Recent offers it again.
void mnuClose_Click();
// One key back on the paper or in the boxes, or forward again.
void mnuUndo_Click();
void mnuRedo_Click();
// Solve, Example, Erase and Explanation of the worksheet.
void mnuSolve_Click();
void mnuExample_Click();
void mnuErase_Click();
void mnuExp_Click();

// The commands that open a window of their own.
void mnuPrint_Click();
void mnuPrintSetup_Click();  // the printer's own dialog; nothing where there is no printer
void mnuGraph_Click();
void mnuPracticeTest_Click();
void mnuChange_Click();  // the settings

// Inserts a character as if it were typed: "~", "^", "|", "+", "-", "*" or "/".
void insertCharacter(std::string_view character);

// Results as fractions or as decimals, from the next solve on; the button shows which.
void mnuConvertDF_Click();

void mnuPencil_Click();     // the pencil writes along, or lies still
void mnuShowStep_Click();   // one step at a time, or the whole solution
void notesWished(bool on);  // explanations beside the lines or not: says so where none are given
void mnuHideWiz_Click();    // the assistant on the desk or away
void mnuShowLight_Click();  // the light of the guided input on the desk or away

// Help Topics opens the guide, the next three a page of the maker in the browser.
void mnuHelpTopics_Click();
void mnuAlgSol_Click();
void mnuHomePage_Click();
void mnuOnlineSupport_Click();
void mnuShortcuts_Click();  // the list of all keys
void mnuAbout_Click();

// The pop-up menus of the desk. Hiding what is away already changes nothing.
void mnuHide_Click();         // the assistant goes
void mnuHideOptions_Click();  // the settings, where another figure can be chosen
void mnuUsePencil_Click();
void mnuHideLight_Click();

}  // namespace ordwise
