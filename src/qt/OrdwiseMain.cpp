// ordwise, the desktop program.
#include "EndingSignals.hpp"
#include "ExportCommand.hpp"
#include "FrameWindow.hpp"
#include "FreshProgram.hpp"
#include "SettingsFile.hpp"
#include "StartStop.hpp"

#include <QApplication>
#include <QCommandLineParser>
#include <QSessionManager>
#include <QTextStream>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <string_view>

namespace {

// Pictures and words about the program need a painter and fonts, but no display.
bool needsNoDisplay(int argc, char** argv) {
    constexpr std::string_view words[] = {"--export", "--help", "--help-all", "-h", "--version", "-v"};
    return std::any_of(argv + 1, argv + argc, [&](std::string_view argument) {
        const std::string_view name = argument.substr(0, argument.find('='));
        return std::find(std::begin(words), std::end(words), name) != std::end(words);
    });
}

// "2=3.5" -> 2, "3.5"; false without a number before the "=".
bool readPair(const QString& text, int& number, QString& value) {
    const qsizetype equals = text.indexOf(QLatin1Char('='));
    bool valid = false;
    number = text.left(equals).toInt(&valid);
    value = text.mid(equals + 1);
    return equals > 0 && valid;
}

bool readRequest(const QCommandLineParser& parser, ordwise::ExportRequest& request, QString& reason) {
    const QStringList words = parser.positionalArguments();
    if (words.isEmpty() || words.size() > 2) {
        reason = QStringLiteral("--export takes a problem type and a problem.");
        return false;
    }
    request.file = parser.value(QStringLiteral("export"));
    request.topic = words[0];
    request.problem = words.value(1);
    request.answers = parser.values(QStringLiteral("answer"));
    int number = 0;
    QString value;
    for (const QString& text : parser.values(QStringLiteral("box"))) {
        if (!readPair(text, number, value)) {
            reason = QStringLiteral("--box takes N=TEXT.");
            return false;
        }
        request.boxes.emplace_back(number, value);
    }
    for (const QString& text : parser.values(QStringLiteral("combo"))) {
        bool valid = readPair(text, number, value);
        const int index = value.toInt(&valid);
        if (!valid) {
            reason = QStringLiteral("--combo takes N=INDEX.");
            return false;
        }
        request.combos.emplace_back(number, index);
    }
    return true;
}

// 0 done, 1 the problem was refused, 2 the command line could not be read.
int exportFromCommandLine(const QCommandLineParser& parser) {
    QTextStream complaint(stderr);
    ordwise::ExportRequest request;
    QString reason;
    if (!readRequest(parser, request, reason)) {
        complaint << reason << Qt::endl;
        return 2;
    }
    if (ordwise::runExport(request, reason)) return 0;
    complaint << reason << Qt::endl;
    return 1;
}

// Ends the program when its session ends, as closing the frame does. A routine that waits for an
// answer would go on to the next question without one, so then nothing is gone back to.
void endSession(QWidget& frame) {
    const bool inDialog = QApplication::activeModalWidget() != nullptr;
    frame.close();
    ordwise::shutDown();
    if (inDialog) std::_Exit(EXIT_SUCCESS);
    QApplication::exit();
}

int runDesk(const QStringList& arguments) {
    ordwise::startFreshProgram();
    ordwise::FrameWindow frame;
    ordwise::EndingSignals signals;
    signals.whenAsked = [&frame] { endSession(frame); };
    // A session that ends may yet be kept open, so only the settings are made safe.
    QObject::connect(qGuiApp, &QGuiApplication::commitDataRequest, &frame,
                     [](QSessionManager&) { ordwise::writeSettings(); });
    ordwise::startUp(arguments.isEmpty() ? std::string() : arguments.constFirst().toStdString());
    frame.showChanges();
    frame.show();
    const int status = signals.asked() ? EXIT_SUCCESS : QApplication::exec();
    ordwise::shutDown();
    return status;
}

}  // namespace

int main(int argc, char** argv) {
    if (needsNoDisplay(argc, argv)) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Ordwise"));
    QApplication::setOrganizationName(QStringLiteral("Halvern"));
    QApplication::setApplicationVersion(QStringLiteral(ORDWISE_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("ordwise"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Desktop tutor and solver for school mathematics."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions(
        {{QStringLiteral("export"), QStringLiteral("Draw the solved sheets into FILE (.png, .svg, .pdf)."),
          QStringLiteral("FILE")},
         {QStringLiteral("box"), QStringLiteral("Fill box N of a box topic."), QStringLiteral("N=TEXT")},
         {QStringLiteral("combo"), QStringLiteral("Select entry INDEX of list N."), QStringLiteral("N=INDEX")},
         {QStringLiteral("answer"), QStringLiteral("Answer the next question of the solve."), QStringLiteral("TEXT")}});
    parser.addPositionalArgument(QStringLiteral("topic"),
                                 QStringLiteral("A saved problem to open; with --export, a problem type."));
    parser.addPositionalArgument(QStringLiteral("problem"),
                                 QStringLiteral("The problem as it is typed, with --export."));
    parser.process(application);
    if (parser.isSet(QStringLiteral("export"))) return exportFromCommandLine(parser);

    return runDesk(parser.positionalArguments());
}
