#include "QtPlatform.hpp"

#include "Art.hpp"

#include <QDateTime>
#include <QInputDialog>
#include <QLocale>
#include <QMessageBox>

namespace ordwise {

MessageAnswer QtDialogs::messageBox(std::string_view text, std::string_view caption, MessageButtons buttons) {
    if (beforeDialog) beforeDialog();
    const bool asks = buttons == MessageButtons::OkCancel;
    QMessageBox box(asks ? QMessageBox::Question : QMessageBox::Information, qstringOf(caption), qstringOf(text),
                    asks ? QMessageBox::Ok | QMessageBox::Cancel : QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    return box.exec() == QMessageBox::Ok ? MessageAnswer::Ok : MessageAnswer::Cancel;
}

std::string QtDialogs::inputBox(std::string_view prompt, std::string_view caption) {
    if (beforeDialog) beforeDialog();
    return QInputDialog::getText(parent, qstringOf(caption), qstringOf(prompt)).toStdString();
}

int QtClock::minuteAndSecond() const {
    const QTime now = QTime::currentTime();
    return now.minute() * 100 + now.second();
}

std::string QtClock::today() const {
    const QLocale locale;
    QString format = locale.dateFormat(QLocale::ShortFormat);
    if (!format.contains(QStringLiteral("yyyy"))) format.replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
    return locale.toString(QDate::currentDate(), format).toStdString();
}

std::string QtClock::todayForFile() const {
    return QDate::currentDate().toString(QStringLiteral("MM-dd-yy")).toStdString();
}

}  // namespace ordwise
