#include "gui/clients/TDlgClientListChoice.h"

#include <QButtonGroup>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/RadioButtons.h"
#include "gui/Text1252.h"

namespace purrlodge {

namespace {

QString buttonName(ClientListChoice choice)
{
    switch (choice) {
    case ClientListChoice::People:
        return QStringLiteral("peopleListButton");
    case ClientListChoice::Cats:
        return QStringLiteral("catListButton");
    case ClientListChoice::Full:
        return QStringLiteral("fullListButton");
    case ClientListChoice::Active:
        return QStringLiteral("activeListButton");
    case ClientListChoice::Inactive:
        break;
    }
    return QStringLiteral("inactiveListButton");
}

} // namespace

TDlgClientListChoice::TDlgClientListChoice(ClientListChoice initial, QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("clientListChoiceDialog"));
    setWindowTitle(QStringLiteral("Client Lists"));

    auto* content = new QWidget(this);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new QLabel(QStringLiteral("Which list do you wish to print?"), content));
    group_ = new QButtonGroup(this);
    for (ClientListChoice choice : clientListChoices) {
        QRadioButton* button =
            newRadioButton(fromWindows1252(clientListName(choice)), buttonName(choice), group_,
                           content, static_cast<int>(choice));
        button->setChecked(choice == initial);
        layout->addWidget(button);
    }
    keepOneTabStop(group_);

    layOutAboveButtons(this, content,
                       newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel));
}

ClientListChoice TDlgClientListChoice::choice() const
{
    return static_cast<ClientListChoice>(group_->checkedId());
}

} // namespace purrlodge
