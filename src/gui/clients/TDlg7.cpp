#include "gui/clients/TDlg7.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

#include "clients/ClientFinder.h"
#include "gui/Text1252.h"

namespace purrlodge {

namespace {

QLabel* newParagraph(std::string_view text, const QString& objectName, QWidget* parent)
{
    auto* label = new QLabel(fromWindows1252(text), parent);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

TDlg7::TDlg7(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("clientSearchHelpDialog"));
    setWindowTitle(QStringLiteral("Client Search Help"));

    const FinderHelpTexts texts = finderHelpTexts();
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->setObjectName(QStringLiteral("buttonBox"));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(newParagraph(texts.person, QStringLiteral("personHelpLabel"), this));
    layout->addSpacing(8);
    layout->addWidget(newParagraph(texts.cat, QStringLiteral("catHelpLabel"), this));
    layout->addSpacing(8);
    layout->addWidget(buttons);
    setMinimumWidth(fontMetrics().averageCharWidth() * 60);
}

} // namespace purrlodge
