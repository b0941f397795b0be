#include "Motion.hpp"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QFile>
#include <QSettings>
#include <QStandardPaths>
#include <QStyle>
#include <QStyleHints>

namespace ordwise {
namespace {

QVariant configValue(const QString& file, const QString& key) {
    const QString path = QStandardPaths::locate(QStandardPaths::ConfigLocation, file);
    return path.isEmpty() ? QVariant() : QSettings(path, QSettings::IniFormat).value(key);
}

// Asking for a bus where there is none would start one.
bool sessionBusRuns() {
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") || QFile::exists(runtime + QStringLiteral("/bus"));
}

}  // namespace

std::optional<bool> animationsByPortal(const QDBusConnection& bus) {
    constexpr int patienceMilliseconds = 300;
    QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"), QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("Read"));
    question << QStringLiteral("org.gnome.desktop.interface") << QStringLiteral("enable-animations");
    const QDBusMessage answer = bus.call(question, QDBus::Block, patienceMilliseconds);
    if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty()) return std::nullopt;
    QVariant value = answer.arguments().constFirst();
    while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();  // one lies in another
    if (value.typeId() != QMetaType::Bool) return std::nullopt;
    return value.toBool();
}

bool reducedMotionWanted() {
    if (sessionBusRuns() && !animationsByPortal(QDBusConnection::sessionBus()).value_or(true)) return true;
    if (QGuiApplication::styleHints()->cursorFlashTime() <= 0) return true;
    if (QApplication::style()->styleHint(QStyle::SH_Widget_Animate) == 0) return true;
    const QVariant gtk =
        configValue(QStringLiteral("gtk-3.0/settings.ini"), QStringLiteral("Settings/gtk-enable-animations"));
    if (gtk.isValid() && !gtk.toBool()) return true;
    const QVariant kde = configValue(QStringLiteral("kdeglobals"), QStringLiteral("KDE/AnimationDurationFactor"));
    return kde.isValid() && kde.toDouble() == 0;
}

}  // namespace ordwise
