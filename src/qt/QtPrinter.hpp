// The printer of the desktop: the one chosen in the platform's dialog, and where there is none a PDF
// under a name that the user is asked for with every job.
#pragma once

#include "Platform.hpp"

#include <QString>

#include <memory>

class QPrinter;
class QWidget;

namespace ordwise {

class QtPrinter : public Printer {
public:
    // Without devices every job becomes a PDF, until another choice is made in the dialog.
    enum class Devices { Any, None };

    explicit QtPrinter(Devices devices = Devices::Any);
    ~QtPrinter() override;

    QWidget* parent = nullptr;  // of the dialog

    // "PDF file" where no printer is chosen.
    [[nodiscard]] std::string DeviceName() const override;
    [[nodiscard]] PaperSize paper() const override;
    // Where it went is told in the status line.
    [[nodiscard]] std::string print(const PrintJob& job) override;
    void setup() override;

private:
    [[nodiscard]] QPrinter& device() const;
    [[nodiscard]] bool printsToFile() const;
    [[nodiscard]] std::string printToFile(const PrintJob& job);
    [[nodiscard]] std::string printToDevice(const PrintJob& job);

    Devices devices_;
    // Looking for printers takes time on some networks: not before one is needed.
    mutable std::unique_ptr<QPrinter> device_;
    QString chosenFile_;  // named in the dialog, to be proposed for the next job
};

}  // namespace ordwise
