#include "gui/clients/TDlg38.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/Text1252.h"
#include "gui/clients/TabbedListBox.h"

namespace purrlodge {

namespace {

// The list shows at least the names, the field and its tag; what lies further
// right is reached by scrolling on a small screen.
constexpr int visibleDialogUnits = 300;
constexpr int listRows = 12;

} // namespace

TDlg38::TDlg38(const GlobalSearchResult& result, ShowDetails showDetails, QWidget* parent)
    : QDialog(parent), showDetails_(std::move(showDetails))
{
    setObjectName(QStringLiteral("globalSearchResultsDialog"));
    setWindowTitle(QStringLiteral("Matching Entries (Global Search)"));

    list_ = new TabbedListBox(globalSearchTabStops, this);
    list_->setObjectName(QStringLiteral("resultsList"));
    list_->setLines(result.lines);
    list_->fitToLines(listRows, list_->widthFor(visibleDialogUnits));
    list_->setMinimumSize(list_->widthFor(visibleDialogUnits) / 2, fontMetrics().height() * 8);
    auto* heading = new TabbedHeading(QStringLiteral("Surname\tFirst name\tFound in"), list_, this);
    heading->setObjectName(QStringLiteral("resultsHeading"));
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    showDetailsButton_ =
        buttons->addButton(QStringLiteral("Show &Details"), QDialogButtonBox::ActionRole);
    showDetailsButton_->setObjectName(QStringLiteral("showDetailsButton"));
    showDetailsButton_->setAutoDefault(false);
    showDetailsButton_->setVisible(result.showDetails);
    showDetailsButton_->setEnabled(false);
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    connect(showDetailsButton_, &QPushButton::clicked, this, &TDlg38::showSelectedDetails);

    if (result.showDetails) {
        // Details are for a line that names a client: one must be selected.
        connect(list_, &QListWidget::itemSelectionChanged, this,
                [this] { showDetailsButton_->setEnabled(!list_->selectedItems().isEmpty()); });
        connect(list_, &QListWidget::itemDoubleClicked, this, &TDlg38::showSelectedDetails);
    }

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(heading);
    layout->addWidget(list_, 1);
    layout->addWidget(buttons);
}

void TDlg38::showSelectedDetails()
{
    const QList<QListWidgetItem*> selected = list_->selectedItems();
    if (selected.isEmpty())
        return;
    showDetails_(toWindows1252(selected.first()->text()));
}

} // namespace purrlodge
