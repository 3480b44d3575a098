#include "print/PrinterJobs.h"

#include <vector>

#include "ports/Printer.h"
#include "ports/Ui.h"
#include "print/PageLayout.h"
#include "print/PrintBuffer.h"

namespace purrlodge {

bool PrinterJobs::run(const std::string& title, bool prompt, PrintBuffer& buffer)
{
    return printer_.printPage(title, prompt, [&buffer](Canvas& canvas) {
        renderPage(buffer, canvas);
    }) == PrintOutcome::Printed;
}

void tellWherePrintoutsWent(Printer& printer, Ui& ui)
{
    const std::vector<std::string> files = printer.takeSavedFiles();
    if (files.empty())
        return;
    std::string text = files.size() == 1
                           ? "There is no printer installed, so the printout was saved as a PDF "
                             "file:\n\n"
                           : "There is no printer installed, so the printouts were saved as PDF "
                             "files:\n\n";
    for (const std::string& file : files)
        text += file + "\n";
    text += "\nOpen a file to see it, or print it on a computer that has a printer.";
    ui.showMessage({text, "Printout Saved", MessageIcon::Information});
}

} // namespace purrlodge
