#include "gui/clients/TDlg4.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "gui/FieldEdit.h"
#include "gui/clients/TDlg7.h"

namespace purrlodge {

TDlg4::TDlg4(const FinderOptions& options, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("clientIndexDialog"));
    setWindowTitle(QStringLiteral("Client Index"));

    // The box takes as many characters as the finder searches with.
    nameEdit_ = newFieldEdit(QStringLiteral("nameEdit"), finderTextLimit + 1, this);
    nameEdit_->setMinimumWidth(fontMetrics().averageCharWidth() * 36);
    auto* nameLabel = new QLabel(QStringLiteral("&Name  (Case Sensitive)"), this);
    nameLabel->setBuddy(nameEdit_);

    personRadioButton_ = new QRadioButton(QStringLiteral("Search for &Person"), this);
    personRadioButton_->setObjectName(QStringLiteral("personRadioButton"));
    catRadioButton_ = new QRadioButton(QStringLiteral("Search for &Cat"), this);
    catRadioButton_->setObjectName(QStringLiteral("catRadioButton"));
    auto* searchGroup = new QButtonGroup(this);
    searchGroup->addButton(personRadioButton_);
    searchGroup->addButton(catRadioButton_);
    personRadioButton_->setVisible(!options.catOnly);
    (options.preselected() == FinderSearch::Cat ? catRadioButton_ : personRadioButton_)
        ->setChecked(true);

    auto* buttons = new QDialogButtonBox(
        QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help, this);
    buttons->setObjectName(QStringLiteral("buttonBox"));
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    buttons->button(QDialogButtonBox::Help)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(buttons, &QDialogButtonBox::helpRequested, this, &TDlg4::showHelp);
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this,
            &TDlg4::showHelp);

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
