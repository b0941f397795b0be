#include "ExportCommand.hpp"

#include "Art.hpp"
#include "Catalogue.hpp"
#include "DiskFiles.hpp"
#include "FreshProgram.hpp"
#include "GuidedInput.hpp"
#include "PagePainter.hpp"
#include "PlainPlatform.hpp"
#include "PrintWindows.hpp"
#include "Printing.hpp"
#include "QtPlatform.hpp"
#include "SavedProblems.hpp"
#include "SheetExport.hpp"
#include "SolveDriver.hpp"
#include "TextTools.hpp"
#include "WindowRoutines.hpp"
#include "Windows.hpp"
#include "WorksheetBoxes.hpp"
#include "Workspace.hpp"

#include <QFile>

namespace ordwise {
namespace {

CommandEnd refused(const QString& reason) {
    return {CommandEnd::Refused, reason};
}

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

CommandEnd notComplete() {
    return refused(QStringLiteral("The problem is not complete.  ") + qstringOf(ws.HintText));
}

CommandEnd solveTyped(const ExportRequest& request) {
    TreeViewSelect(request.topic.toStdString());
    if (ws.ProblemType == 0) return refused(QStringLiteral("'%1' is no problem type.").arg(request.topic));
    loadWindow("frmPaper");
    QString reason;
    if (!typeProblem(request.problem, reason) || !fillBoxes(request, reason)) return refused(reason);
    if (!frmMain.mnuSolve.Enabled) return notComplete();
    compute_Click();
    return {};
}

CommandEnd solveSaved(const QString& file) {
    const std::optional<std::string> text = DiskFiles().read(QFile::encodeName(file).toStdString());
    if (!text) return {CommandEnd::Unreadable, QStringLiteral("'%1' cannot be read.").arg(file)};
    const std::optional<SavedProblem> problem = problemOfText(*text);
    if (!problem || refusedKeyOf(*problem))
        return {CommandEnd::Unreadable, QStringLiteral("'%1' holds no problem of Ordwise.").arg(file)};
    openProblem(*problem);
    return ws.InputOpen ? notComplete() : CommandEnd{};
}

CommandEnd solve(const ExportRequest& request, const PlainDialogs& dialogs) {
    frmMain.mnuShowStep.Checked = false;  // the whole solution at once
    try {
        const bool saved = request.topic.endsWith(QStringLiteral(".hvx"), Qt::CaseInsensitive);
        CommandEnd end = saved ? solveSaved(request.topic) : solveTyped(request);
        if (end.status == CommandEnd::Done && !dialogs.messages.empty())
            end = refused(qstringOf(dialogs.messages.back().text));
        return end;
    } catch (const NoAnswerLeft& question) {
        return refused(QStringLiteral("The solve asks: ") + QString::fromUtf8(question.what()));
    }
}

// As OK of the window does it: a problem that is only drawn has its graph open by now.
CommandEnd printSolved(const ExportRequest& request, PlainPlatform& outside) {
    if (request.graph) {
        if (!frmMain.mnuGraph.Enabled) return refused(QStringLiteral("The problem has no graph."));
        platform.windows->show("frmGraph");
    }
    outside.printer.size = *request.paper;
    frmPrintSetup_Load();
    frmPrintSetup.Check3.Checked = request.explanations;
    frmPrintSetup_Command2_Click();
    if (frmPrintSetup.Loaded) return refused(qstringOf(frmMain.StatusText));
    if (!outside.dialogs.messages.empty()) return refused(qstringOf(outside.dialogs.messages.back().text));
    return writePages(request.file, outside.printer.jobs);
}

}  // namespace

CommandEnd writePages(const QString& file, const std::vector<PrintJob>& jobs) {
    const QByteArray bytes = pagesAsPdf(jobs);
    const std::string trouble = DiskFiles().write(QFile::encodeName(file).toStdString(),
                                                  {bytes.constData(), static_cast<std::size_t>(bytes.size())});
    return trouble.empty() ? CommandEnd{} : refused(qstringOf(trouble));
}

CommandEnd runExport(const ExportRequest& request) {
    startFreshProgram();
    PlainPlatform outside;
    UnseenWindows windows;
    platform.windows = &windows;
    outside.clock.date = QtClock().today();
    for (const QString& answer : request.answers) outside.dialogs.answers.push_back(answer.toStdString());
    const CommandEnd solved = solve(request, outside.dialogs);
    if (solved.status != CommandEnd::Done) return solved;
    if (request.paper) return printSolved(request, outside);
    QString reason;
    return exportSheets(request.file, reason) ? CommandEnd{} : refused(reason);
}

}  // namespace ordwise
