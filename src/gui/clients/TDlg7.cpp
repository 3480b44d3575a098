#include "gui/clients/TDlg7.h"

#include "clients/ClientFinder.h"
#include "gui/Text1252.h"

namespace purrlodge {

namespace {

// The person's paragraph, then the cat's.
QString helpText()
{
    const FinderHelpTexts texts = finderHelpTexts();
    return fromWindows1252(texts.person) + QStringLiteral("\n\n") + fromWindows1252(texts.cat);
}

} // namespace

TDlg7::TDlg7(QWidget* parent)
    : HelpPage(QStringLiteral("clientSearchHelpDialog"), QStringLiteral("Client Search Help"),
               helpText(), 56, parent)
{}

} // namespace purrlodge
