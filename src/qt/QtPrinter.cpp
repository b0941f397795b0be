#include "QtPrinter.hpp"

#include "Art.hpp"
#include "PagePainter.hpp"
#include "QtPlatform.hpp"
#include "TextTools.hpp"
#include "Windows.hpp"

#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QStandardPaths>

namespace ordwise {
namespace {

// e.g. "Area of a Square/Rectangle" -> "Area of a Square-Rectangle.pdf"
std::string fileNameOf(const std::string& title) {
    return replaced(replaced(title, "/", "-"), "*", "x") + ".pdf";
}

// In the user's folder for documents.
QString documentNamed(const std::string& name) {
    return QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)).filePath(qstringOf(name));
}

}  // namespace

QtPrinter::QtPrinter(Devices devices) : devices_(devices) {}
QtPrinter::~QtPrinter() = default;

QPrinter& QtPrinter::device() const {
    if (device_ == nullptr) {
        device_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
        if (devices_ == Devices::None) device_->setOutputFormat(QPrinter::PdfFormat);
        device_->setPageLayout(localPaper());
    }
    return *device_;
}

bool QtPrinter::printsToFile() const {
    return device().outputFormat() == QPrinter::PdfFormat || device().printerName().isEmpty();
}

std::string QtPrinter::DeviceName() const {
    return printsToFile() ? "PDF file" : device().printerName().toStdString();
}

PaperSize QtPrinter::paper() const {
    return paperOf(device().pageLayout());
}

std::string QtPrinter::print(const PrintJob& job) {
    return printsToFile() ? printToFile(job) : printToDevice(job);
}

std::string QtPrinter::printToFile(const PrintJob& job) {
    const QFileInfo proposed(chosenFile_.isEmpty() ? documentNamed(fileNameOf(job.title)) : chosenFile_);
    chosenFile_.clear();
    const std::optional<std::string> path =
        platform.fileDialogs->fileToSave({"Print to PDF", "PDF files (.pdf)|*.pdf", "pdf",
                                          proposed.path().toStdString(), proposed.fileName().toStdString()});
    if (!path) return "Printing was cancelled.";
    const QByteArray bytes = pagesAsPdf({job});
    std::string trouble = platform.files->write(*path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
    if (trouble.empty()) frmMain.StatusText = "Printed to \"" + *path + "\".";
    return trouble;
}

std::string QtPrinter::printToDevice(const PrintJob& job) {
    device().setDocName(qstringOf(job.title));
    if (!paintPages(device(), {job}) || device().printerState() == QPrinter::Error)
        return "The printer \"" + DeviceName() + "\" did not take the pages.";
    frmMain.StatusText = "Printed on \"" + DeviceName() + "\".";
    return "";
}

void QtPrinter::setup() {
    if (printsToFile()) device().setOutputFileName(documentNamed("Ordwise.pdf"));
    QPrintDialog dialog(&device(), windowInUse(parent));
    dialog.setObjectName(QStringLiteral("PrintDialog"));
    dialog.setWindowTitle(QStringLiteral("Print Setup"));
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
    // What is chosen here holds for the jobs to come; nothing is printed yet.
    if (auto* buttons = dialog.findChild<QDialogButtonBox*>()) {
        if (QPushButton* accept = buttons->button(QDialogButtonBox::Ok)) accept->setText(QStringLiteral("&OK"));
    }
    if (dialog.exec() != QDialog::Accepted) return;
    chosenFile_ = printsToFile() ? device().outputFileName() : QString();
}

}  // namespace ordwise
