#include "gui/accounts/TDlg26.h"

#include <array>

#include <QDialogButtonBox>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/clients/TabbedListBox.h"

namespace purrlodge {

namespace {

// The amounts stand in a column after the labels and descriptions.
constexpr std::array<int, 1> summaryTabStops{180};
constexpr int listRows = 20;
constexpr int listLetters = 64;

} // namespace

TDlg26::TDlg26(const std::vector<std::string>& lines, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("accountSummaryDialog"));
    setWindowTitle(QStringLiteral("Account Summary"));

    auto* list = new TabbedListBox(summaryTabStops, this);
    list->setObjectName(QStringLiteral("summaryList"));
    list->setSelectionMode(QAbstractItemView::NoSelection);
    list->setLines(lines);
    list->fitToLines(listRows, fontMetrics().averageCharWidth() * listLetters);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Close);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(list, 1);
    layout->addWidget(buttons);
}

} // namespace purrlodge
