#include "gui/clients/TDlg53.h"

#include <array>

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"
#include "gui/HelpPage.h"
#include "gui/Text1252.h"
#include "gui/clients/TabbedListBox.h"

namespace purrlodge {

namespace {

// Name, cats, address and code, in dialog units.
constexpr std::array<int, 3> pastClientTabStops{60, 150, 250};
constexpr int listRows = 16;
// Room after the last stop for the client code.
constexpr int codeLetters = 12;

} // namespace

TDlg53::TDlg53(const std::string& caption, const std::vector<std::string>& lines, QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("pastClientsDialog"));
    setWindowTitle(fromWindows1252(caption));

    QLabel* heading = newStaticLabel(QStringLiteral("headingLabel"), this);
    heading->setText(fromWindows1252(caption));
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);

    list_ = new TabbedListBox(pastClientTabStops, this);
    list_->setObjectName(QStringLiteral("pastClientsList"));
    list_->setLines(lines);
    const int width =
        list_->widthFor(pastClientTabStops.back()) + fontMetrics().averageCharWidth() * codeLetters;
    list_->fitToLines(listRows, width);
    list_->setMinimumSize(width / 2, fontMetrics().height() * 6);
    connect(list_, &QListWidget::itemDoubleClicked, this,
            [this] { choose(PastClientAction::ShowDetails); });

    QDialogButtonBox* buttons =
        newButtonBox(this, QDialogButtonBox::Close | QDialogButtonBox::Help);
    const auto addAction = [&](const QString& text, const QString& objectName,
                               PastClientAction action) {
        QPushButton* button = buttons->addButton(text, QDialogButtonBox::ActionRole);
        button->setObjectName(objectName);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, action] { choose(action); });
        return button;
    };
    addAction(QStringLiteral("&Delete Client"), QStringLiteral("deleteButton"),
              PastClientAction::Delete);
    addAction(QStringLiteral("&Restore Client"), QStringLiteral("restoreButton"),
              PastClientAction::Restore);
    QPushButton* details =
        addAction(QStringLiteral("Show De&tails"), QStringLiteral("detailsButton"),
                  PastClientAction::ShowDetails);
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    // Return on a line shows it: the one choice that changes nothing.
    details->setDefault(true);
    connectHelp(this, buttons, [this] { showHelp(); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(heading);
    layout->addWidget(list_, 1);
    layout->addWidget(buttons);

    list_->setFocus();
}

void TDlg53::choose(PastClientAction action)
{
    const QList<QListWidgetItem*> selected = list_->selectedItems();
    choice_ = PastClientChoice{action, selected.isEmpty() ? -1 : list_->row(selected.first())};
    accept();
}

void TDlg53::showHelp()
{
    HelpPage help(QStringLiteral("pastClientsHelpDialog"), QStringLiteral("Past Clients Help"),
                  QStringLiteral("These are the clients transferred out of your client list by "
                                 "Delete Client. Their files are still kept.\n\n"
                                 "Choose a client, then press:\n"
                                 "Show Details to see the client's record;\n"
                                 "Restore Client to put the client back into your client list;\n"
                                 "Delete Client to remove all the client's files for good. This "
                                 "cannot be undone."),
                  50, this);
    help.exec();
}

} // namespace purrlodge
