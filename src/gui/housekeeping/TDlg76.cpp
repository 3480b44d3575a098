#include "gui/housekeeping/TDlg76.h"

#include <array>

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/HelpPage.h"
#include "gui/clients/TabbedListBox.h"

namespace purrlodge {

namespace {

// The name and its count, in dialog units.
constexpr std::array<int, 2> nameTabStops{8, 72};
constexpr int listRows = 18;

} // namespace

TDlg76::TDlg76(const std::vector<std::string>& lines, std::function<void()> fileTheList,
               QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("popularNamesDialog"));
    setWindowTitle(QStringLiteral("Most Popular Names"));

    list_ = new TabbedListBox(nameTabStops, this);
    list_->setObjectName(QStringLiteral("namesList"));
    list_->setLines(lines);
    list_->fitToLines(listRows, list_->widthFor(nameTabStops.back() + 32));

    QDialogButtonBox* buttons =
        newButtonBox(this, QDialogButtonBox::Close | QDialogButtonBox::Help);
    QPushButton* print = buttons->addButton(QStringLiteral("&Print"), QDialogButtonBox::ActionRole);
    print->setObjectName(QStringLiteral("printButton"));
    connect(print, &QPushButton::clicked, this, [this] {
        printChosen_ = true;
        accept();
    });
    QPushButton* file =
        buttons->addButton(QStringLiteral("&File the List"), QDialogButtonBox::ActionRole);
    file->setObjectName(QStringLiteral("fileListButton"));
    file->setAutoDefault(false);
    connect(file, &QPushButton::clicked, this, std::move(fileTheList));
    // Return closes the list: printing is never a slip of the key.
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    print->setAutoDefault(false);
    connectHelp(this, buttons, [this] { showHelp(); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(list_, 1);
    layout->addWidget(buttons);

    list_->setFocus();
}

void TDlg76::showHelp()
{
    HelpPage help(QStringLiteral("popularNamesHelpDialog"), QStringLiteral("Cat Names Help"),
                  QStringLiteral("The list shows the names of the cats of your current clients "
                                 "with how many cats carry each name, the most common first.\n\n"
                                 "Print prints the names that occur more than once, 30 to a "
                                 "page.\n"
                                 "File the List saves the list as a text file in your data "
                                 "folder, to open in any word processor.\n"
                                 "Close returns to the main window."),
                  50, this);
    help.exec();
}

} // namespace purrlodge
