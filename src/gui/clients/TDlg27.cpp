#include "gui/clients/TDlg27.h"

#include "clients/ClientFormRules.h"
#include "gui/Text1252.h"

namespace purrlodge {

TDlg27::TDlg27(QWidget* parent)
    : HelpPage(QStringLiteral("newClientHelpDialog"), fromWindows1252(newClientHelpTitle),
               fromWindows1252(newClientHelpText), 70, parent)
{}

} // namespace purrlodge
