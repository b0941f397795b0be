// The spine: every Solve goes through compute_Click. It selects by ProblemType what is to be done,
// lets the engine or a topic solver fill StepLines and StepNotes, thins the recorded steps and
// leaves the display to ShowSteps. Every run-time fault of a solve ends here, in one of three
// message boxes.
#pragma once

namespace ordwise {

// Solves what stands on the worksheet: ProblemText for a typed problem, the boxes Text1 to Text6
// and Combo1 to Combo3 otherwise. After a clean run Solve is disabled until Erase; after a fault
// Solve stays enabled, the input stays closed and the steps recorded so far stay unshown.
void compute_Click();

// Keeps every StepDetail-th of the steps that CommitStep recorded, and the last one. Solutions of
// the topic solvers, whose steps carry no class, are left whole.
void StepThinning();

// Results come as fractions or as decimals from here on, and the button shows which.
void showResultsAsFractions(bool fractions);

}  // namespace ordwise
