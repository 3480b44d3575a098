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
    // A long printout is a file a page: the first and the last stand for the
    // rest, so the message still fits the screen.
    constexpr std::size_t mostListed = 4;
    if (files.size() <= mostListed) {
        for (const std::string& file : files)
            text += file + "\n";
    } else {
        text += files.front() + "\n...\n" + files.back() + "\n(" + std::to_string(files.size()) +
                " files, one for each page)\n";
    }
    text += "\nOpen a file to see it, or print it on a computer that has a printer.";
    ui.showMessage({text, "Printout Saved", MessageIcon::Information});
}

} // namespace purrlodge
