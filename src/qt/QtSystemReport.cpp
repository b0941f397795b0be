#include "QtSystemReport.hpp"

#include <QApplication>
#include <QLocale>
#include <QScreen>
#include <QStringList>
#include <QStyle>
#include <QSysInfo>

namespace ordwise {
namespace {

QString orUnknown(const QString& text) {
    return text.isEmpty() ? QStringLiteral("unknown") : text;
}

// e.g. "HDMI-1: 1920 x 1080, scale 1.25, 96 dpi"
QString describe(const QScreen& screen) {
    const QSize size = screen.size();
    return QStringLiteral("%1: %2 x %3, scale %4, %5 dpi")
        .arg(orUnknown(screen.name()))
        .arg(size.width())
        .arg(size.height())
        .arg(screen.devicePixelRatio())
        .arg(qRound(screen.logicalDotsPerInch()));
}

}  // namespace

std::string QtSystemReport::text() const {
    QStringList facts = {
        QStringLiteral("Ordwise: ") + QStringLiteral(ORDWISE_VERSION),
        QStringLiteral("System: ") + orUnknown(QSysInfo::prettyProductName()),
        QStringLiteral("Kernel: ") + QSysInfo::kernelType() + QLatin1Char(' ') + QSysInfo::kernelVersion(),
        QStringLiteral("Processor: ") + QSysInfo::currentCpuArchitecture(),
        QStringLiteral("Desktop: ") + orUnknown(qEnvironmentVariable("XDG_CURRENT_DESKTOP")),
        QStringLiteral("Display: ") + QGuiApplication::platformName(),
        QStringLiteral("Qt: %1 (built with %2), style %3")
            .arg(QString::fromLatin1(qVersion()), QStringLiteral(QT_VERSION_STR), QApplication::style()->name()),
    };
    for (const QScreen* screen : QGuiApplication::screens()) facts << QStringLiteral("Screen ") + describe(*screen);
    facts << QStringLiteral("Locale: ") + QLocale().name()
          << QStringLiteral("Settings: ") + orUnknown(QString::fromStdString(platform.folders.settingsFile))
          << QStringLiteral("Saved problems: ") + orUnknown(QString::fromStdString(platform.folders.savedProblems));
    return facts.join(QLatin1Char('\n')).toStdString();
}

}  // namespace ordwise
