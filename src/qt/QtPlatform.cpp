#include "QtPlatform.hpp"

#include "Art.hpp"

#include <QApplication>
#include <QColorDialog>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QLocale>
#include <QMessageBox>
#include <QUrl>

namespace ordwise {
namespace {

// "Ordwise files (.hvx)|*.hvx" -> "Ordwise files (*.hvx)"
QString nameFilter(const std::string& filter) {
    const QString text = qstringOf(filter);
    const QString description = text.section(QLatin1Char('|'), 0, 0).section(QStringLiteral(" ("), 0, 0);
    return description + QStringLiteral(" (") + text.section(QLatin1Char('|'), 1, 1) + QLatin1Char(')');
}

std::optional<std::string> chosen(QFileDialog& dialog, const FileQuestion& question) {
    dialog.setWindowTitle(qstringOf(question.title));
    dialog.setNameFilter(nameFilter(question.filter));
    dialog.setDefaultSuffix(qstringOf(question.defaultExtension));
    const QString place = qstringOf(question.directory);
    dialog.setDirectory(!place.isEmpty() && QDir(place).exists() ? place : QDir::homePath());
    if (!question.proposedName.empty()) dialog.selectFile(qstringOf(question.proposedName));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    return QFile::encodeName(dialog.selectedFiles().constFirst()).toStdString();
}

}  // namespace

QWidget* windowInUse(QWidget* frame) {
    QWidget* active = QApplication::activeWindow();
    return active != nullptr ? active : frame;
}

std::optional<std::string> QtFileDialogs::fileToSave(const FileQuestion& question) {
    QFileDialog dialog(windowInUse(parent));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    return chosen(dialog, question);
}

std::optional<std::string> QtFileDialogs::fileToOpen(const FileQuestion& question) {
    QFileDialog dialog(windowInUse(parent));
    dialog.setFileMode(QFileDialog::ExistingFile);
    return chosen(dialog, question);
}

MessageAnswer QtDialogs::messageBox(std::string_view text, std::string_view caption, MessageButtons buttons) {
    if (beforeDialog) beforeDialog();
    const bool asks = buttons == MessageButtons::OkCancel;
    QMessageBox box(asks ? QMessageBox::Question : QMessageBox::Information, qstringOf(caption), qstringOf(text),
                    asks ? QMessageBox::Ok | QMessageBox::Cancel : QMessageBox::Ok, windowInUse(parent));
    box.setTextFormat(Qt::PlainText);
    return box.exec() == QMessageBox::Ok ? MessageAnswer::Ok : MessageAnswer::Cancel;
}

std::string QtDialogs::inputBox(std::string_view prompt, std::string_view caption) {
    if (beforeDialog) beforeDialog();
    return QInputDialog::getText(windowInUse(parent), qstringOf(caption), qstringOf(prompt)).toStdString();
}

std::optional<Colour> QtColours::chooseColour(Colour current) {
    const QColor chosen =
        QColorDialog::getColor(QColor(current.red, current.green, current.blue), windowInUse(nullptr));
    if (!chosen.isValid()) return std::nullopt;
    const auto part = [](int value) { return static_cast<std::uint8_t>(value); };
    return Colour{part(chosen.red()), part(chosen.green()), part(chosen.blue())};
}

bool QtBrowser::open(const std::string& address) {
    return QDesktopServices::openUrl(QUrl(qstringOf(address)));
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

std::string QtClock::todayForPrograms() const {
    return QDate::currentDate().toString(Qt::ISODate).toStdString();
}

std::string QtClock::todayForFile() const {
    return QDate::currentDate().toString(QStringLiteral("MM-dd-yy")).toStdString();
}

}  // namespace ordwise
