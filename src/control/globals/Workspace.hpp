// The shared state of the logic: one instance, `ws`, its variables by their names, in groups that
// say how long a value lives.
//
//   process  set at start or by a command, survives every problem
//   problem  from the choice of a topic or the last Erase until the next one; see ResetEngine
//   solve    rewritten by each run of compute_Click
//
// Routines communicate through it. Every subscript is checked (fault 9) and every counter is 16
// bits wide and faults when it runs over (fault 6). Nothing here is re-entrant; there is one thread.
#pragma once

#include "BoundedArray.hpp"
#include "ExprStore.hpp"
#include "Int16.hpp"
#include "SlotArray.hpp"

#include <array>
#include <cstdint>
#include <deque>
#include <string>
#include <vector>

namespace ordwise {

inline constexpr int lastStep = 200;      // the highest step
inline constexpr int lastTestLine = 200;  // the highest line of a practice test
inline constexpr int lastLevel = 20;      // the deepest parenthesis
inline constexpr int noStepClass = 99;    // StepClassOf a step that CommitStep has not recorded

// What the student has chosen. Written by TreeViewSelect only; outlives Erase.
struct ProblemIdentity {
    Int16 ProblemType;           // the code of the topic, 0 none
    Int16 PreviousProblemType;   // as it was when the last choice completed
    std::string TopicName;       // a catalogue name
    Int16 InputMask;             // the classes of characters that may be typed, 0 to 16383
    Int16 MaxDigits;             // MaxDigits - 1 digits is the longest number
    Int16 EquationMode;          // how many different variables may be typed
    Int16 GraphableTopic;        // 1 once "Graphing A Linear Equation" was chosen
    std::string HintText;        // "Enter ..."
    bool ChooserClosed = false;  // the chooser was left, by a choice or by a cancel
};

// What the student has typed and its rewrite. Life: problem.
struct TypedInput {
    TokenArray InputTokens;  // one character a slot, letters in lower case
    Int16 InputLast;         // the next free slot, 0 for an empty paper
    TokenArray CanonTokens;  // the rewrite: cells of markup, the first at slot 4
    Int16 CanonLast;         // the number of cells, and after a RewritePass the slot behind the last
    TokenArray CanonIn;      // spaced copy that the rewrite reads, a cell every fourth slot
    TokenArray CanonOut;     // spaced result, with the gaps in which closing marks are put
    KnownText CanonSource;   // while CanonTokens hold a line of the engine: what it was made from
    std::string CanonLine;   // and its text
    Int16 CanonWrite;        // write position in CanonOut
    BoundedArray<Int16, lastLevel> CanonGroupStart;  // by level: where its current term began
    bool CanonFractionOpen = false;                  // a fraction mark is open in the rewrite
    Int16 CanonFractionStart;
    std::string ProblemText;                 // the typed problem without blanks
    BoundedArray<std::string, 25> VarNames;  // distinct letters from slot 1 in order of appearance
    Int16 VarCount;                          // one above their number
    bool CharAccepted = false;               // the last key was accepted
};

// How far the typed text has come. Life: problem. Owned by the input check.
struct SyntaxState {
    bool RootOpen = false;
    bool BarOpen = false;
    Int16 BarDepth;    // open bars; Solve is refused above 0; only a rebuilt worksheet resets it
    Int16 ParenDepth;  // open parentheses
    BoundedArray<BoundedArray<bool, lastLevel>, 1> ParenTable;  // open at side (0 numerator), depth
    Int16 ParenSide;                                            // 0 numerator, 1 denominator
    bool SavedParenSide = false;
    bool FractionOpen = false;  // a "/" was typed and its denominator is being typed
    Int16 FractionDepth;        // ParenDepth at that "/"
    bool EqualsTyped = false;
    bool ExponentOpen = false;
    bool LineWorked = false;          // a line of the student's own solution is typed, no problem
    bool ExplainOverride = false;     // the explanation window shows the text below
    std::string ExplainOverrideText;  // the reason of the last refusal
    bool InputOpen = true;            // keys are taken; false from Solve until Erase
};

// What was typed, at one moment: on the paper with its state, or in the boxes.
struct TypedMoment {
    std::string Keys;  // of the paper, a character a key
    SyntaxState Syntax;
    std::array<std::string, 6> Boxes;
};

// The moments that can be gone back to and come back from. Life: problem, until it is solved.
struct TypingHistory {
    std::vector<TypedMoment> UndoMoments;  // each before a key that was taken, the latest last
    std::vector<TypedMoment> RedoMoments;  // those that were gone back from, the latest undone last
};

// The solution. Lines live for a solve, notes for a problem.
struct Steps {
    BoundedArray<std::string, lastStep> StepLines;  // forms of the problem in markup; 1 restates it
    BoundedArray<std::string, lastStep> StepNotes;  // the explanation of each
    BoundedArray<Int16, lastStep> StepClassOf;      // the class that each was recorded with, or 99
    Int16 StepCount = 1;                            // the next free step
    std::string CurrentNote;                        // waiting for the next CommitStep
};

// The expression being worked on. Life: problem; LastLine: solve; LastTermCount: process.
struct ExpressionEngine : ExprStore {
    TokenArray TokenBuffer;  // the text, one token a slot; the master of the store
    Int16 TokenLast;
    TokenArray SpareTokens;        // what a merge or a normalisation writes before the two change places
    bool ReductionStable = false;  // the last commit changed nothing
    bool KeepReducing = false;     // a rule's rewrite must not end the chain
    Int16 StepClass;               // the class that the next recorded step takes
    std::string LastLine;          // the line of the last recorded step
    Int16 LastTermCount;
    bool RadicalMode = false;  // the last number text is a root form
    Int16 RadicalSeen;
    std::string RootValue;
    std::string RootText;
    std::string RootKey;
    BoundedArray<bool, lastLevel> LeadingTermHintShown;  // by level

    // Written by the solve driver for the engine. Life: solve.
    bool PlainSum = false;     // an equation's sides are reduced group by group
    bool UseDecimals = false;  // always the opposite of UseFractions; nothing reads it
};

// What the topic solvers hand to one another. Life: solve.
struct SolverResults {
    bool IsPrimeResult = false;             // Factors found only 1 and the number itself
    std::int32_t LargestCommonDivisor = 0;  // of SimplifyFractionText; -1 for a zero denominator
};

// Where the display stands. Life: problem.
struct DisplayState {
    Int16 CurrentSheet;      // the sheet being written, 0 to 9
    Int16 ShownStep;         // the step that the explanation command refers to
    std::string LineInView;  // the line of the solution drawn last, "" while none of it is
    double LineEndX = 0;     // end of the last line drawn
    double TypedEndX = 0;    // end of the typed line by the measure of what may be typed; stops it at 730
    double LineEndY = 0;
    Int16 DenominatorEndX;  // end of the last denominator drawn
    bool LineEndsInFraction = false;
};

// Life: process; read at start and written at exit. The first values are the settings' defaults.
struct Settings {
    Int16 AssistantChoice = 1;
    std::string AssistantKey = "wiz1";
    Int16 RoundPlaces = 2;      // decimal digits of results
    Int16 ComplexExamples = 0;  // 2 draws harder examples
    bool ClickNotify = true;
    Int16 ExpDetail = 3;       // as the settings window shows it; StepDetail is 4 less this
    bool UseFractions = true;  // results as fractions or as decimals
    Int16 StepDetail = 1;      // every StepDetail-th step is kept
    Int16 NormalPointer;       // the mouse pointer that start-up found
    std::string OpenedFilePath;
};

// What the graph window draws. Life: solve.
struct GraphHandOver {
    Int16 GraphKind;  // 1 a point, 2 a line through two points, 3 a solved equation, 0 nothing
    double GraphX1 = 0;
    double GraphY1 = 0;
    double GraphX2 = 0;
    double GraphY2 = 0;
    TokenArray GraphValues;  // the pieces of a solved equation, one number, sign or letter a slot
};

// The practice test being made up. Life: until its window closes.
struct PracticeTest {
    BoundedArray<std::string, lastTestLine> TestProblems;  // the lines, headings and blank lines included
    Int16 TestCount;                                       // the next free line
    Int16 TestNumber;                                      // the problems so far, through all sections
    std::string TestHeading;
    std::string TestSuffix;  // stands behind the next problem
};

// What has been made up lately, so that it does not come again at once. Life: process.
struct MadeUpProblems {
    std::deque<std::string> RecentExamples;  // topic and problem, the latest last
};

// The preview of what is to be printed. Life: while frmPrintPreview is open.
struct PreviewPages {
    Int16 PreviewPage;       // the page in view
    Int16 PreviewPageCount;  // the last page
};

struct Workspace : ProblemIdentity,
                   TypedInput,
                   SyntaxState,
                   TypingHistory,
                   Steps,
                   ExpressionEngine,
                   SolverResults,
                   DisplayState,
                   Settings,
                   GraphHandOver,
                   PracticeTest,
                   MadeUpProblems,
                   PreviewPages {
    // As the process starts.
    Workspace();
};

extern Workspace ws;

// The reset of a problem: typed input, engine and, if asked, steps return to their start. BarDepth,
// ParenSide, FractionDepth and LastLine stay.
void ResetEngine(bool withSteps);
// Empties all notes.
void clearExplain();
// Empties InputTokens.
void ClearInput();

}  // namespace ordwise
