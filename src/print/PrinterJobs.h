#pragma once

#include <string>

#include "print/PrintJobRunner.h"

namespace purrlodge {

class Printer;
class Ui;

// Runs print jobs on the printer: each job draws the buffer as its one page.
class PrinterJobs : public PrintJobRunner {
public:
    explicit PrinterJobs(Printer& printer) : printer_(printer) {}

    // Whether the page printed (or was saved as a PDF file).
    bool run(const std::string& title, bool prompt, PrintBuffer& buffer) override;

private:
    Printer& printer_;
};

// Tells the person where the printouts of a command went when there is no
// printer to print them: one message for all the PDF files the command saved.
// Says nothing when none were saved.
void tellWherePrintoutsWent(Printer& printer, Ui& ui);

} // namespace purrlodge
