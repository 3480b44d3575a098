#include "gui/clients/TDlg55.h"

#include "clients/CatNameChange.h"
#include "gui/Text1252.h"

namespace purrlodge {

TDlg55::TDlg55(QWidget* parent)
    : HelpPage(QStringLiteral("catNameChangeHelpDialog"), fromWindows1252(catNameChangeHelpTitle),
               fromWindows1252(catNameChangeHelpText), 60, parent)
{}

} // namespace purrlodge
