#include "Motion.hpp"

#include <QApplication>
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

}  // namespace

bool reducedMotionWanted() {
    if (QGuiApplication::styleHints()->cursorFlashTime() <= 0) return true;
    if (QApplication::style()->styleHint(QStyle::SH_Widget_Animate) == 0) return true;
    const QVariant gtk =
        configValue(QStringLiteral("gtk-3.0/settings.ini"), QStringLiteral("Settings/gtk-enable-animations"));
    if (gtk.isValid() && !gtk.toBool()) return true;
    const QVariant kde = configValue(QStringLiteral("kdeglobals"), QStringLiteral("KDE/AnimationDurationFactor"));
    return kde.isValid() && kde.toDouble() == 0;
}

}  // namespace ordwise
