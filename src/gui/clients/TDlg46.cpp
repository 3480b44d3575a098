#include "gui/clients/TDlg46.h"

namespace purrlodge {

TDlg46::TDlg46(QWidget* parent)
    : HelpPage(QStringLiteral("noteBookHelpDialog"), QStringLiteral("Help on Notes"),
               QStringLiteral("The notes are one page for each client: write anything about "
                              "the client or the cats that you want to keep, such as special "
                              "needs, medicines or habits. Lines that are too long for the page "
                              "are carried over and kept as separate lines.\n\n"
                              "Blank lines at the end of the page should be deleted before you "
                              "press OK: a page that ends in a blank line is not kept."),
               50, parent)
{}

} // namespace purrlodge
