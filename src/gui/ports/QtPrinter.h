#pragma once

#include <memory>
#include <string>
#include <vector>

#include <QPageLayout>
#include <QPointer>
#include <QString>
#include <QWidget>

#include "ports/Printer.h"

class QPrinter;

namespace purrlodge {

// The printers of this machine, as CUPS reports them. Jobs keep the printer
// and the page set up last. With no printer installed every job is saved as
// a PDF file at 600 dots per inch, named after the job and the time, in the
// printouts folder.
class QtPrinter : public Printer {
public:
    // printoutsFolder: where PDF files go; empty means "Purrlodge Printouts"
    // in the user's documents folder.
    explicit QtPrinter(QString printoutsFolder = {});
    ~QtPrinter() override;
    QtPrinter(const QtPrinter&) = delete;
    QtPrinter& operator=(const QtPrinter&) = delete;

    // The window the print dialogs belong to when no dialog is open.
    void setMainWindow(QWidget* window) { mainWindow_ = window; }

    [[nodiscard]] bool hasPrinter() const override;
    PrintOutcome printPage(const std::string& title, bool prompt,
                           const std::function<void(Canvas&)>& drawPage) override;
    [[nodiscard]] std::vector<std::string> takeSavedFiles() override;
    void setUp() override;

    [[nodiscard]] QString printoutsFolder() const;

private:
    PrintOutcome saveAsPdf(const std::string& title, const std::function<void(Canvas&)>& drawPage);
    QPrinter& printer();

    QPointer<QWidget> mainWindow_;
    QString printoutsFolder_;
    std::unique_ptr<QPrinter> printer_; // made at the first job
    QPageLayout pdfLayout_;
    std::vector<std::string> savedFiles_;
};

} // namespace purrlodge
