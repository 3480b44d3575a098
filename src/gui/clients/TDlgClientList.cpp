#include "gui/clients/TDlgClientList.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/HelpPage.h"
#include "gui/Text1252.h"

namespace purrlodge {

TDlgClientList::TDlgClientList(ClientListChoice initial, ClientListQuestions::ListFor listFor,
                               ClientListQuestions::PrintList print, QWidget* parent)
    : QDialog(parent), listFor_(std::move(listFor))
{
    setObjectName(QStringLiteral("clientListDialog"));
    setWindowTitle(QStringLiteral("List All Clients"));

    choice_ = new QComboBox(this);
    choice_->setObjectName(QStringLiteral("listChoice"));
    for (ClientListChoice each : clientListChoices)
        choice_->addItem(fromWindows1252(clientListName(each)), static_cast<int>(each));
    choice_->setCurrentIndex(choice_->findData(static_cast<int>(initial)));
    auto* choiceLabel = new QLabel(QStringLiteral("&Show:"), this);
    choiceLabel->setBuddy(choice_);

    heading_ = new QLabel(this);
    heading_->setObjectName(QStringLiteral("listHeading"));
    heading_->setTextFormat(Qt::PlainText);

    list_ = new QTreeWidget(this);
    list_->setObjectName(QStringLiteral("clientList"));
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setSelectionMode(QAbstractItemView::NoSelection);
    list_->setFocusPolicy(Qt::StrongFocus);
    const int charWidth = list_->fontMetrics().averageCharWidth();
    list_->setMinimumSize(charWidth * 120, list_->fontMetrics().height() * 28);

    QDialogButtonBox* buttons =
        newButtonBox(this, QDialogButtonBox::Close | QDialogButtonBox::Help);
    QPushButton* printButton =
        buttons->addButton(QStringLiteral("&Print"), QDialogButtonBox::ActionRole);
    printButton->setObjectName(QStringLiteral("printButton"));
    printButton->setAutoDefault(false);
    connect(printButton, &QPushButton::clicked, this,
            [this, print = std::move(print)] { print(choice()); });
    // Return closes the list: printing is never a slip of the key.
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    connectHelp(this, buttons, [this] { showHelp(); });

    auto* top = new QHBoxLayout;
    top->addWidget(choiceLabel);
    top->addWidget(choice_);
    top->addSpacing(charWidth * 2);
    top->addWidget(heading_, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(list_, 1);
    layout->addWidget(buttons);

    connect(choice_, &QComboBox::currentIndexChanged, this, [this] { showList(); });
    showList();
    choice_->setFocus();
}

ClientListChoice TDlgClientList::choice() const
{
    return static_cast<ClientListChoice>(choice_->currentData().toInt());
}

void TDlgClientList::showList()
{
    const ListPages pages = listFor_(choice());
    const ListHeading& heading = pages.heading();
    heading_->setText(fromWindows1252(heading.title + "   " + heading.subtitle) +
                      QStringLiteral("   (%1 printed pages)").arg(pages.pageCount()));

    list_->clear();
    const auto& columns = pages.columns();
    list_->setColumnCount(static_cast<int>(columns.size()));
    QStringList headings;
    for (const ListColumn& column : columns)
        headings << fromWindows1252(column.heading);
    list_->setHeaderLabels(headings);
    list_->setHeaderHidden(headings.join(QString()).isEmpty());

    QList<QTreeWidgetItem*> items;
    if (pages.blocks().empty())
        items << new QTreeWidgetItem(QStringList{fromWindows1252(pages.emptyText())});
    for (const ListBlock& block : pages.blocks()) {
        if (!items.isEmpty())
            items << new QTreeWidgetItem;
        for (std::size_t row = 0; row < block.rows.size(); ++row) {
            QStringList cells;
            for (const std::string& cell : block.rows[row])
                cells << fromWindows1252(cell);
            auto* item = new QTreeWidgetItem(cells);
            if (block.isRed(row))
                for (int column = 0; column < item->columnCount(); ++column)
                    item->setForeground(column, Qt::red);
            items << item;
        }
    }
    list_->addTopLevelItems(items);
    // Columns as wide as they print, in proportion.
    const int charWidth = list_->fontMetrics().averageCharWidth();
    for (std::size_t column = 0; column < columns.size(); ++column)
        list_->setColumnWidth(static_cast<int>(column), columns[column].width * charWidth * 4);
}

void TDlgClientList::showHelp()
{
    HelpPage help(QStringLiteral("clientListHelpDialog"), QStringLiteral("Client Lists Help"),
                  QStringLiteral("Choose which list of your current clients to see:\n"
                                 "People list: names, addresses, telephones and cats.\n"
                                 "Cat list: every cat with its breed, colour, sex, age and "
                                 "owner.\n"
                                 "Full client list: everything held for each client.\n"
                                 "Active clients / Inactive clients: the clients as Mark "
                                 "Inactive Clients last marked them.\n\n"
                                 "Print prints the list shown, with a page number on every "
                                 "page. Close returns to the main window."),
                  50, this);
    help.exec();
}

} // namespace purrlodge
