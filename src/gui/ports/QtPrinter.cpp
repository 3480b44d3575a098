#include "gui/ports/QtPrinter.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>

#include "gui/FrontWindow.h"
#include "gui/Text1252.h"
#include "gui/print/PdfPage.h"

namespace purrlodge {

namespace {

// A name the file system takes, made from the job's title.
QString fileNameOf(const std::string& title)
{
    QString name = fromWindows1252(title);
    for (QChar& c : name) {
        if (c == u'/' || c == u'\\' || c == u':' || c.unicode() < 0x20)
            c = u'-';
    }
    return name;
}

} // namespace

QtPrinter::QtPrinter(QString printoutsFolder)
    : printoutsFolder_(std::move(printoutsFolder)), pdfLayout_(defaultPdfLayout())
{}

QtPrinter::~QtPrinter() = default;

bool QtPrinter::hasPrinter() const
{
    return !QPrinterInfo::availablePrinters().isEmpty();
}

QString QtPrinter::printoutsFolder() const
{
    if (!printoutsFolder_.isEmpty())
        return printoutsFolder_;
    QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (documents.isEmpty())
        documents = QDir::homePath();
    return documents + QStringLiteral("/Purrlodge Printouts");
}

QPrinter& QtPrinter::printer()
{
    if (!printer_)
        printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    return *printer_;
}

PrintOutcome QtPrinter::printPage(const std::string& title, bool prompt,
                                  const std::function<void(Canvas&)>& drawPage)
{
    if (!hasPrinter())
        return saveAsPdf(title, drawPage);
    QPrinter& job = printer();
    job.setDocName(fromWindows1252(title));
    job.setOutputFileName({});
    if (prompt) {
        QPrintDialog dialog(&job, frontWindow(mainWindow_));
        // Every job is one page: there is no range to choose.
        dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
        dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
        dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
        dialog.setMinMax(0, 0);
        if (dialog.exec() != QDialog::Accepted)
            return PrintOutcome::Cancelled;
    }
    return drawOnePage(job, drawPage);
}

PrintOutcome QtPrinter::saveAsPdf(const std::string& title,
                                  const std::function<void(Canvas&)>& drawPage)
{
    const QString folder = printoutsFolder();
    if (!QDir().mkpath(folder))
        return PrintOutcome::Failed;
    const QString stem =
        folder + QLatin1Char('/') + fileNameOf(title) + QLatin1Char(' ') +
        QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh.mm.ss"));
    QString path = stem + QStringLiteral(".pdf");
    for (int n = 2; QFileInfo::exists(path); ++n)
        path = stem + QStringLiteral(" (%1).pdf").arg(n);

    const PrintOutcome outcome = writePdfPage(path, pdfLayout_, fromWindows1252(title), drawPage);
    if (outcome != PrintOutcome::Printed)
        return outcome;
    savedFiles_.push_back(toWindows1252(QDir::toNativeSeparators(path)));
    return PrintOutcome::Printed;
}

std::vector<std::string> QtPrinter::takeSavedFiles()
{
    return std::exchange(savedFiles_, {});
}

void QtPrinter::setUp()
{
    if (!hasPrinter()) {
        // Without a printer the page set-up still says how PDF files are laid out.
        QPrinter pdf(QPrinter::HighResolution);
        pdf.setOutputFormat(QPrinter::PdfFormat);
        pdf.setPageLayout(pdfLayout_);
        QPageSetupDialog dialog(&pdf, frontWindow(mainWindow_));
        dialog.setWindowTitle(QStringLiteral("Page Set-up (no printer installed)"));
        if (dialog.exec() == QDialog::Accepted)
            pdfLayout_ = pdf.pageLayout();
        return;
    }
    QPrintDialog choose(&printer(), frontWindow(mainWindow_));
    choose.setWindowTitle(QStringLiteral("Setup Printer"));
    choose.setOption(QAbstractPrintDialog::PrintPageRange, false);
    if (choose.exec() != QDialog::Accepted)
        return;
    QPageSetupDialog page(&printer(), frontWindow(mainWindow_));
    page.exec();
}

} // namespace purrlodge
