#include "gui/clients/TDlg39.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

namespace purrlodge {

TDlg39::TDlg39(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("globalSearchHelpDialog"));
    setWindowTitle(QStringLiteral("Help on Global Search"));

    auto* text = new QLabel(
        QStringLiteral(
            "Global Search looks through every client's details for a word or part of a "
            "word, for example a street, a vet, a colour or a food.\n\n"
            "Type the text to look for. \"Case specific\" finds it only written exactly so; "
            "\"Case independent\" finds it in upper or lower case alike (telephone and mobile "
            "numbers are always compared as typed).\n\n"
            "Tick the kinds of entry to look in (\"Tick all\" and \"Untick all\" set them all "
            "at once) and press Search. Each entry that holds the text is listed with the "
            "client's surname and first name and where it was found.\n\n"
            "Select a line and press \"Show Details\" to see that client's full details."),
        this);
    text->setObjectName(QStringLiteral("helpLabel"));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->setObjectName(QStringLiteral("buttonBox"));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    setMinimumWidth(fontMetrics().averageCharWidth() * 60);
}

} // namespace purrlodge
