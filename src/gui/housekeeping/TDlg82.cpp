#include "gui/housekeeping/TDlg82.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"
#include "gui/HelpPage.h"
#include "gui/Text1252.h"
#include "housekeeping/InactiveMarking.h"

namespace purrlodge {

TDlg82::TDlg82(ExportQuestions::InactiveRule onOk, QWidget* parent)
    : QDialog(parent), onOk_(std::move(onOk))
{
    setObjectName(QStringLiteral("inactiveClientsDialog"));
    setWindowTitle(QStringLiteral("Inactive Clients"));

    auto* content = new QWidget(this);
    dateEdit_ = newFieldEdit(QStringLiteral("dateEdit"), cutOffDateLength + 1, content);
    dateEdit_->setText(QStringLiteral("dd/mm/yy"));
    dateEdit_->setMaximumWidth(fontMetrics().averageCharWidth() * 16);
    QLabel* prompt = newBuddyLabel(QStringLiteral("Enter date which, if clients have not been "
                                                  "since then, makes them 'Inactive'"),
                                   dateEdit_, content);
    prompt->setWordWrap(true);
    prompt->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
    result_ = newStaticLabel(QStringLiteral("resultLabel"), content);
    result_->setMinimumHeight(fontMetrics().height() * 2);

    auto* rows = new QVBoxLayout(content);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(prompt);
    rows->addWidget(dateEdit_);
    rows->addWidget(result_);

    QDialogButtonBox* buttons =
        newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Close | QDialogButtonBox::Help);
    connectHelp(this, buttons, [this] { showHelp(); });
    layOutAboveButtons(this, content, buttons);

    dateEdit_->selectAll();
    dateEdit_->setFocus();
}

void TDlg82::accept()
{
    result_->setText(fromWindows1252(onOk_(fieldText(*dateEdit_))));
}

void TDlg82::showHelp()
{
    HelpPage help(
        QStringLiteral("inactiveClientsHelpDialog"), QStringLiteral("Inactive Clients Help"),
        QStringLiteral("Type a date as dd/mm/yy and press OK.\n\n"
                       "Every client whose last stay ended (the Last Out date) before that "
                       "date is marked Inactive. Every other client, including one who "
                       "last left on that very date, is marked active again, so you can "
                       "run this as often as you like with a new date.\n\n"
                       "Nothing else in the client records is changed."),
        50, this);
    help.exec();
}

} // namespace purrlodge
