#include "gui/clients/TDlg50.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"
#include "gui/RadioButtons.h"
#include "gui/Text1252.h"

namespace purrlodge {

TDlg50::TDlg50(const std::string& catName, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("leavingCatDialog"));
    setWindowTitle(fromWindows1252(leavingCatDialogTitle));

    // Control 110.
    auto* caption = new QLabel(fromWindows1252(leavingCatCaption(catName)), this);
    caption->setObjectName(QStringLiteral("captionLabel"));
    caption->setTextFormat(Qt::PlainText);
    QFont bold = caption->font();
    bold.setBold(true);
    caption->setFont(bold);

    auto* reasonBox = new QGroupBox(QStringLiteral("Reason for Reduction"), this);
    reasonBox->setObjectName(QStringLiteral("reasonGroupBox"));
    // No reason is chosen until the person picks one: none counts as unknown.
    auto* reasons = new QButtonGroup(this);
    lostRadioButton_ = newRadioButton(QStringLiteral("&Lost"), QStringLiteral("lostRadioButton"),
                                      reasons, reasonBox);
    deathRadioButton_ = newRadioButton(QStringLiteral("&Death"), QStringLiteral("deathRadioButton"),
                                       reasons, reasonBox);
    newHomeRadioButton_ = newRadioButton(QStringLiteral("New &Home"),
                                         QStringLiteral("newHomeRadioButton"), reasons, reasonBox);
    otherRadioButton_ = newRadioButton(QStringLiteral("&Other"), QStringLiteral("otherRadioButton"),
                                       reasons, reasonBox);
    auto* reasonLayout = new QVBoxLayout(reasonBox);
    reasonLayout->addWidget(lostRadioButton_);
    reasonLayout->addWidget(deathRadioButton_);
    reasonLayout->addWidget(newHomeRadioButton_);
    reasonLayout->addWidget(otherRadioButton_);

    notesEdit_ = newFieldEdit(QStringLiteral("notesEdit"), leavingCatNotesLength + 1, this);
    notesEdit_->setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    QLabel* notesLabel = newBuddyLabel(QStringLiteral("&Notes"), notesEdit_, this);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                                       QDialogButtonBox::Help);
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    connectHelp(this, buttons, [this] { showHelp(); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(caption);
    layout->addWidget(reasonBox);
    layout->addWidget(notesLabel);
    layout->addWidget(notesEdit_);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    lostRadioButton_->setFocus();
}

LeavingCatAnswer TDlg50::answer() const
{
    LeavingCatAnswer answer;
    if (lostRadioButton_->isChecked())
        answer.reason = LeavingReason::Lost;
    else if (deathRadioButton_->isChecked())
        answer.reason = LeavingReason::Death;
    else if (newHomeRadioButton_->isChecked())
        answer.reason = LeavingReason::NewHome;
    else if (otherRadioButton_->isChecked())
        answer.reason = LeavingReason::Other;
    answer.notes = fieldText(*notesEdit_);
    return answer;
}

void TDlg50::showHelp()
{
    QMessageBox help(
        QMessageBox::Information, fromWindows1252(leavingCatDialogTitle),
        QStringLiteral(
            "A cat's name has been removed from the client's details.\n\n"
            "Choose what happened to the cat and add a note if you wish. When the client's "
            "details are saved, the cat is kept in the client's 'Other Cats' list with the "
            "reason, the date it left and its age, and its place on the client form is freed "
            "for another cat.\n\n"
            "Cancel returns to the client form without saving: put the name back if it was "
            "removed by mistake."),
        QMessageBox::Ok, this);
    help.setObjectName(QStringLiteral("leavingCatHelp"));
    help.exec();
}

} // namespace purrlodge
