#include "gui/accounts/TDlg60.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/clients/TabbedListBox.h"

namespace purrlodge {

namespace {

constexpr int listRows = 16;
constexpr int listLetters = 64;

} // namespace

TDlg60::TDlg60(const std::vector<std::string>& lines, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("numberedAccountsDialog"));
    setWindowTitle(QStringLiteral("Numbered Accounts"));

    auto* list = new TabbedListBox({}, this);
    list->setObjectName(QStringLiteral("accountsList"));
    list->setSelectionMode(QAbstractItemView::NoSelection);
    list->setLines(lines);
    list->fitToLines(listRows, fontMetrics().averageCharWidth() * listLetters);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Ok);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(list, 1);
    layout->addWidget(buttons);
}

} // namespace purrlodge
