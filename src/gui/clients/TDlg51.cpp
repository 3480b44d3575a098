#include "gui/clients/TDlg51.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/Text1252.h"
#include "gui/clients/TDlg55.h"

namespace purrlodge {

TDlg51::TDlg51(const std::string& oldName, const std::string& newName, QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("catNameChangeDialog"));
    setWindowTitle(fromWindows1252(catNameChangeTitle));

    auto* text = new QLabel(fromWindows1252(catNameChangeText), this);
    text->setObjectName(QStringLiteral("questionLabel"));
    text->setTextFormat(Qt::PlainText);

    // Radio buttons take '&' as a mnemonic, so a name holding one is doubled.
    const auto plain = [](const std::string& choiceText) {
        return fromWindows1252(choiceText).replace(u'&', QStringLiteral("&&"));
    };
    nameChangedRadioButton_ =
        new QRadioButton(plain(nameChangedChoiceText(oldName, newName)), this);
    nameChangedRadioButton_->setObjectName(QStringLiteral("nameChangedRadioButton"));
    newCatRadioButton_ = new QRadioButton(plain(newCatChoiceText(oldName, newName)), this);
    newCatRadioButton_->setObjectName(QStringLiteral("newCatRadioButton"));
    // The harmless reading is chosen until the person says otherwise.
    nameChangedRadioButton_->setChecked(true);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Help);
    buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("&Done"));
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    connectHelp(this, buttons, [this] { showHelp(); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addSpacing(4);
    layout->addWidget(nameChangedRadioButton_);
    layout->addWidget(newCatRadioButton_);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    nameChangedRadioButton_->setFocus();
}

CatNameChoice TDlg51::choice() const
{
    return newCatRadioButton_->isChecked() ? CatNameChoice::NewCat : CatNameChoice::NameChanged;
}

void TDlg51::showHelp()
{
    TDlg55 help(this);
    help.exec();
}

} // namespace purrlodge
