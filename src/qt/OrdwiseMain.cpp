// ordwise, the desktop program.
#include "DiskFiles.hpp"
#include "EndingSignals.hpp"
#include "FrameWindow.hpp"
#include "FreshProgram.hpp"
#include "HeadlessCommands.hpp"
#include "SettingsFile.hpp"
#include "StartStop.hpp"

#include <QApplication>
#include <QCommandLineParser>
#include <QSessionManager>

#include <cstdlib>
#include <optional>

namespace {

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
    ordwise::prepareProcess();
    if (ordwise::needsNoDisplay(argc, argv)) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        // What is said on standard error is ours, not a remark about a desktop that is not needed.
        if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES")) qputenv("QT_LOGGING_RULES", "default.warning=false");
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Ordwise"));
    QApplication::setOrganizationName(QStringLiteral("Halvern"));
    QApplication::setApplicationVersion(QStringLiteral(ORDWISE_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("ordwise"));

    QCommandLineParser parser;
    ordwise::addOptions(parser);
    parser.process(application);
    if (const std::optional<int> status = ordwise::runHeadless(parser)) return *status;
    return runDesk(parser.positionalArguments());
}
