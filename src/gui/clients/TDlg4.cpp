#include "gui/clients/TDlg4.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"
#include "gui/RadioButtons.h"
#include "gui/clients/TDlg7.h"

namespace purrlodge {

TDlg4::TDlg4(const FinderOptions& options, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("clientIndexDialog"));
    setWindowTitle(QStringLiteral("Client Index"));

    // The box takes as many characters as the finder searches with.
    nameEdit_ = newFieldEdit(QStringLiteral("nameEdit"), finderTextLimit + 1, this);
    nameEdit_->setMinimumWidth(fontMetrics().averageCharWidth() * 36);
    QLabel* nameLabel = newBuddyLabel(QStringLiteral("&Name  (Case Sensitive)"), nameEdit_, this);

    auto* searchGroup = new QButtonGroup(this);
    personRadioButton_ = newRadioButton(QStringLiteral("Search for &Person"),
                                        QStringLiteral("personRadioButton"), searchGroup, this);
    catRadioButton_ = newRadioButton(QStringLiteral("Search for &Cat"),
                                     QStringLiteral("catRadioButton"), searchGroup, this);
    personRadioButton_->setVisible(!options.catOnly);
    (options.preselected() == FinderSearch::Cat ? catRadioButton_ : personRadioButton_)
        ->setChecked(true);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                                       QDialogButtonBox::Help);
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    connectHelp(this, buttons, [this] { showHelp(); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(nameLabel);
    layout->addWidget(nameEdit_);
    layout->addWidget(personRadioButton_);
    layout->addWidget(catRadioButton_);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    nameEdit_->setFocus();
}

std::string TDlg4::name() const
{
    return fieldText(*nameEdit_);
}

FinderSearch TDlg4::search() const
{
    return catRadioButton_->isChecked() ? FinderSearch::Cat : FinderSearch::Person;
}

void TDlg4::showEntry(const std::string& name, FinderSearch search)
{
    setFieldText(*nameEdit_, name);
    (search == FinderSearch::Cat ? catRadioButton_ : personRadioButton_)->setChecked(true);
}

void TDlg4::showEvent(QShowEvent* event)
{
    // Shown again after a refused name: the name is there to be put right.
    nameEdit_->setFocus();
    nameEdit_->selectAll();
    QDialog::showEvent(event);
}

void TDlg4::showHelp()
{
    TDlg7 help(this);
    help.exec();
}

} // namespace purrlodge
