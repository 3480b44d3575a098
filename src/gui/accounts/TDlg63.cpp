#include "gui/accounts/TDlg63.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"
#include "gui/HelpPage.h"
#include "gui/Text1252.h"

namespace purrlodge {

TDlg63::TDlg63(const std::string& caption, const std::string& memo, QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("autoMemoReminderDialog"));
    setWindowTitle(QStringLiteral("An Auto Memo Exists!"));

    QLabel* captionLabel = newStaticLabel(QStringLiteral("captionLabel"), this);
    captionLabel->setText(fromWindows1252(caption));
    QFont bold = captionLabel->font();
    bold.setBold(true);
    captionLabel->setFont(bold);

    // Text 101: the memo, up to a thousand characters, read only.
    auto* memoText = new QPlainTextEdit(fromWindows1252(memo), this);
    memoText->setObjectName(QStringLiteral("memoText"));
    memoText->setReadOnly(true);
    memoText->setMinimumSize(fontMetrics().averageCharWidth() * 60, fontMetrics().height() * 8);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                                       QDialogButtonBox::Help);
    QPushButton* remove = buttons->button(QDialogButtonBox::Ok);
    remove->setText(QStringLiteral("&Delete"));
    remove->setObjectName(QStringLiteral("deleteButton"));
    QPushButton* leave = buttons->button(QDialogButtonBox::Cancel);
    leave->setText(QStringLiteral("&Leave"));
    leave->setObjectName(QStringLiteral("leaveButton"));
    // The memo is kept unless the person asks for it to go.
    leave->setDefault(true);
    leave->setFocus();
    connectHelp(this, buttons, [this] { showHelp(); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(captionLabel);
    layout->addWidget(memoText, 1);
    layout->addWidget(buttons);
}

void TDlg63::showHelp()
{
    HelpPage help(QStringLiteral("autoMemoReminderHelpDialog"), QStringLiteral("Auto Memo Help"),
                  QStringLiteral("This memo is shown each time an arrival sheet or an account is "
                                 "made for this client.\n\n"
                                 "Delete: the memo is removed and is not shown again.\n\n"
                                 "Leave: the memo is kept and shown again next time.\n\n"
                                 "Either way you carry on with what you were doing. To change the "
                                 "memo, use Set Auto Memo."),
                  50, this);
    help.exec();
}

} // namespace purrlodge
