#include "gui/print/TDlg21.h"

#include <QButtonGroup>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/HelpPage.h"
#include "gui/RadioButtons.h"

namespace purrlodge {

TDlg21::TDlg21(int mode, const OkRule<int>& onOk, QWidget* parent)
    : FormDialog([this, onOk] { return onOk(this->mode()); }, parent),
      modes_(new QButtonGroup(this))
{
    setObjectName(QStringLiteral("printDialogOptionDialog"));
    setWindowTitle(QStringLiteral("Print Dialog Box Option"));

    auto* question = new QLabel(QStringLiteral("Do you wish to see the Print Dialog Box?"), this);
    question->setTextFormat(Qt::PlainText);
    QRadioButton* never =
        newRadioButton(QStringLiteral("&Never"), QStringLiteral("neverRadio"), modes_, this, 0);
    QRadioButton* everyTime = newRadioButton(QStringLiteral("&Every Time"),
                                             QStringLiteral("everyTimeRadio"), modes_, this, 1);
    QRadioButton* firstOnly = newRadioButton(
        QStringLiteral("&1st Print Only"), QStringLiteral("firstPrintOnlyRadio"), modes_, this, 2);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                                       QDialogButtonBox::Help);
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    connectHelp(this, buttons, [this] { showHelp(); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(question);
    layout->addWidget(never);
    layout->addWidget(everyTime);
    layout->addWidget(firstOnly);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    QAbstractButton* checked = modes_->button(mode);
    (checked != nullptr ? checked : everyTime)->setChecked(true);
    modes_->checkedButton()->setFocus();
}

int TDlg21::mode() const
{
    return modes_->checkedId();
}

void TDlg21::showHelp()
{
    HelpPage help(
        QStringLiteral("printDialogOptionHelpDialog"), QStringLiteral("Print Dialog Box Option"),
        QStringLiteral(
            "Before a printout, Purrlodge can show the Print Dialog Box, where you choose the "
            "printer, the number of copies and the like.\n\n"
            "Never: printouts go straight to the printer chosen in Setup | Setup Printer.\n\n"
            "Every Time: the box comes up before each printout. When an account and its copy "
            "are printed together, it comes up once, before the first of them.\n\n"
            "1st Print Only: the box comes up before the first printout after Purrlodge is "
            "started; later printouts go straight to the printer chosen then.\n\n"
            "Your choice is kept for the next time Purrlodge is started. When no printer is "
            "installed, printouts are saved as PDF files and the box is never shown."),
        60, this, QDialogButtonBox::Ok);
    help.exec();
}

} // namespace purrlodge
