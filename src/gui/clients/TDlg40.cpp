#include "gui/clients/TDlg40.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"
#include "gui/RadioButtons.h"
#include "gui/Text1252.h"
#include "gui/clients/TDlg56.h"

namespace purrlodge {

TDlg40::TDlg40(const std::string& text, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("clientDeletionDialog"));
    setWindowTitle(QStringLiteral("Client Record Deletion"));

    QLabel* textLabel = newStaticLabel(QStringLiteral("textLabel"), this);
    textLabel->setText(fromWindows1252(text));

    // Nothing is ticked at first: either way is a step the person takes on purpose.
    choices_ = new QButtonGroup(this);
    QRadioButton* remove =
        newRadioButton(QStringLiteral("&Permanently remove all this client's files"),
                       QStringLiteral("removeRadioButton"), choices_, this,
                       static_cast<int>(ClientDeletionChoice::RemoveForGood));
    QRadioButton* transfer =
        newRadioButton(QStringLiteral("&Transfer this client to the 'Hidden Clients' list."),
                       QStringLiteral("transferRadioButton"), choices_, this,
                       static_cast<int>(ClientDeletionChoice::Transfer));
    keepOneTabStop(choices_);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                                       QDialogButtonBox::Help);
    QPushButton* doIt = buttons->button(QDialogButtonBox::Ok);
    doIt->setText(QStringLiteral("&Do it"));
    doIt->setObjectName(QStringLiteral("doItButton"));
    doIt->setDefault(true);
    connectHelp(this, buttons, [this] { showHelp(); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(textLabel);
    layout->addSpacing(8);
    layout->addWidget(remove);
    layout->addWidget(transfer);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    remove->setFocus();
}

std::optional<ClientDeletionChoice> TDlg40::choice() const
{
    const int checked = choices_->checkedId();
    if (checked < 0)
        return std::nullopt;
    return static_cast<ClientDeletionChoice>(checked);
}

void TDlg40::accept()
{
    if (choice())
        QDialog::accept();
}

void TDlg40::showHelp()
{
    TDlg56 help(this);
    help.exec();
}

} // namespace purrlodge
