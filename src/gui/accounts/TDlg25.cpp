#include "gui/accounts/TDlg25.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"
#include "gui/Text1252.h"
#include "gui/clients/TabbedListBox.h"

namespace purrlodge {

namespace {

// Ten accounts, the blank line and the total.
constexpr int listRows = 12;
constexpr int listLetters = 72;

} // namespace

TDlg25::TDlg25(const ClientAccountsList& list, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("clientAccountsDialog"));
    setWindowTitle(QStringLiteral("This Client's Accounts"));

    QLabel* title = newStaticLabel(QStringLiteral("titleLabel"), this);
    title->setText(fromWindows1252(list.title));
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);

    list_ = new TabbedListBox({}, this);
    list_->setObjectName(QStringLiteral("accountsList"));
    list_->setLines(list.lines);
    list_->fitToLines(listRows, fontMetrics().averageCharWidth() * listLetters);
    connect(list_, &QListWidget::itemDoubleClicked, this,
            [this] { choose(PastAccountAction::Summary); });

    QLabel* guide = newStaticLabel(QStringLiteral("guideLabel"), this);
    guide->setText(QStringLiteral("Choose an account, then press Summary to see it, Reprint to "
                                  "print it again as a past account, or Delete to take it out of "
                                  "the book."));
    guide->setWordWrap(true);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Close);
    const auto addAction = [&](const QString& text, const QString& objectName,
                               PastAccountAction action) {
        QPushButton* button = buttons->addButton(text, QDialogButtonBox::ActionRole);
        button->setObjectName(objectName);
        connect(button, &QPushButton::clicked, this, [this, action] { choose(action); });
        return button;
    };
    QPushButton* summary = addAction(QStringLiteral("&Summary"), QStringLiteral("summaryButton"),
                                     PastAccountAction::Summary);
    addAction(QStringLiteral("&Reprint"), QStringLiteral("reprintButton"),
              PastAccountAction::Reprint)
        ->setAutoDefault(false);
    addAction(QStringLiteral("&Delete"), QStringLiteral("deleteButton"), PastAccountAction::Delete)
        ->setAutoDefault(false);
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    // Return on a line shows it: the one choice that changes nothing.
    summary->setDefault(true);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(title);
    layout->addWidget(list_, 1);
    layout->addWidget(guide);
    layout->addWidget(buttons);

    list_->setFocus();
}

void TDlg25::choose(PastAccountAction action)
{
    const QList<QListWidgetItem*> selected = list_->selectedItems();
    choice_ = PastAccountChoice{action, selected.isEmpty() ? -1 : list_->row(selected.first())};
    accept();
}

} // namespace purrlodge
