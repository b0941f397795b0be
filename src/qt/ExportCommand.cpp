#include "ExportCommand.hpp"

#include "Art.hpp"
#include "Catalogue.hpp"
#include "FreshProgram.hpp"
#include "GuidedInput.hpp"
#include "PlainPlatform.hpp"
#include "QtPlatform.hpp"
#include "SheetExport.hpp"
#include "SolveDriver.hpp"
#include "TextTools.hpp"
#include "WindowRoutines.hpp"
#include "Windows.hpp"
#include "WorksheetBoxes.hpp"
#include "Workspace.hpp"

namespace ordwise {
namespace {

bool typeProblem(const QString& problem, QString& reason) {
    for (const std::string& key : characters(problem.toStdString())) {
        const KeyOutcome outcome = key == " " ? KeyOutcome::Accepted : Form_KeyPress(key);
        if (outcome == KeyOutcome::Accepted) continue;
        reason = outcome == KeyOutcome::Refused
                     ? qstringOf(ws.ExplainOverrideText)
                     : QStringLiteral("The key '%1' cannot be typed there.").arg(qstringOf(key));
        return false;
    }
    return true;
}

bool fillBoxes(const ExportRequest& request, QString& reason) {
    for (const auto& [number, text] : request.boxes) {
        if (number >= 1 && number <= 6 && typeIntoBox(number, text.toStdString())) continue;
        reason = number >= 1 && number <= 6 ? qstringOf(ws.ExplainOverrideText)
                                            : QStringLiteral("Boxes are numbered 1 to 6.");
        return false;
    }
    for (const auto& [number, index] : request.combos) {
        if (number >= 1 && number <= 3 && selectInCombo(number, index)) continue;
        reason = number >= 1 && number <= 3 ? qstringOf(ws.ExplainOverrideText)
                                            : QStringLiteral("Lists are numbered 1 to 3.");
        return false;
    }
    return true;
}

bool solve(QString& reason, PlainDialogs& dialogs) {
    if (!frmMain.mnuSolve.Enabled) {
        reason = QStringLiteral("The problem is not complete.  ") + qstringOf(ws.HintText);
        return false;
    }
    frmMain.mnuShowStep.Checked = false;  // the whole solution at once
    try {
        compute_Click();
    } catch (const NoAnswerLeft& question) {
        reason = QStringLiteral("The solve asks: ") + QString::fromUtf8(question.what());
        return false;
    }
    if (dialogs.messages.empty()) return true;
    reason = qstringOf(dialogs.messages.back().text);
    return false;
}

}  // namespace

bool runExport(const ExportRequest& request, QString& reason) {
    startFreshProgram();
    PlainPlatform outside;
    outside.clock.date = QtClock().today();
    for (const QString& answer : request.answers) outside.dialogs.answers.push_back(answer.toStdString());
    TreeViewSelect(request.topic.toStdString());
    if (ws.ProblemType == 0) {
        reason = QStringLiteral("'%1' is no problem type.").arg(request.topic);
        return false;
    }
    loadWindow("frmPaper");
    return typeProblem(request.problem, reason) && fillBoxes(request, reason) && solve(reason, outside.dialogs) &&
           exportSheets(request.file, reason);
}

}  // namespace ordwise
