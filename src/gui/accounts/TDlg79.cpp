#include "gui/accounts/TDlg79.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>

#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"
#include "gui/Text1252.h"

namespace purrlodge {

TDlg79::TDlg79(const std::string& question, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("similarAccountDialog"));
    setWindowTitle(QStringLiteral("Complication!"));

    QLabel* text = newStaticLabel(QStringLiteral("questionLabel"), this);
    text->setText(fromWindows1252(question));
    text->setWordWrap(true);
    text->setMinimumWidth(fontMetrics().averageCharWidth() * 64);

    // Yes and No each give their answer; Go Back is the box's rejecting button.
    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Cancel);
    QPushButton* yes = buttons->addButton(QStringLiteral("&Yes"), QDialogButtonBox::ActionRole);
    yes->setObjectName(QStringLiteral("yesButton"));
    QPushButton* no = buttons->addButton(QStringLiteral("&No"), QDialogButtonBox::ActionRole);
    no->setObjectName(QStringLiteral("noButton"));
    QPushButton* goBack = buttons->button(QDialogButtonBox::Cancel);
    goBack->setText(QStringLiteral("&Go Back"));
    goBack->setObjectName(QStringLiteral("goBackButton"));
    // Return gives what Escape gives.
    goBack->setDefault(true);
    connect(yes, &QPushButton::clicked, this, [this] {
        answer_ = SimilarAccountAnswer::Substitute;
        accept();
    });
    connect(no, &QPushButton::clicked, this, [this] {
        answer_ = SimilarAccountAnswer::KeepBoth;
        accept();
    });

    layOutAboveButtons(this, text, buttons);
}

} // namespace purrlodge
