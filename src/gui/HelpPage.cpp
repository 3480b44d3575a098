#include "gui/HelpPage.h"

#include <QLabel>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"

namespace purrlodge {

HelpPage::HelpPage(const QString& objectName, const QString& title, const QString& text,
                   int widthInCharacters, QWidget* parent,
                   QDialogButtonBox::StandardButton closeButton)
    : QDialog(parent)
{
    setObjectName(objectName);
    setWindowTitle(title);

    auto* label = new QLabel(text, this);
    label->setObjectName(QStringLiteral("helpTextLabel"));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(fontMetrics().averageCharWidth() * widthInCharacters);

    QDialogButtonBox* buttons = newButtonBox(this, closeButton);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addSpacing(8);
    layout->addWidget(buttons);
}

} // namespace purrlodge
