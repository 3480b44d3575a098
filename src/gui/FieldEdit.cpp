#include "gui/FieldEdit.h"

#include "gui/Text1252.h"

namespace purrlodge {

QLineEdit* newFieldEdit(const QString& objectName, std::size_t fieldWidth, QWidget* parent)
{
    auto* edit = new QLineEdit(parent);
    edit->setObjectName(objectName);
    edit->setMaxLength(static_cast<int>(fieldWidth > 0 ? fieldWidth - 1 : 0));
    return edit;
}

QLineEdit* newNumberEdit(const QString& objectName, std::size_t fieldWidth, int digitsShown,
                         QWidget* parent)
{
    QLineEdit* edit = newFieldEdit(objectName, fieldWidth, parent);
    edit->setAlignment(Qt::AlignRight);
    edit->setFixedWidth(edit->fontMetrics().horizontalAdvance(QString(digitsShown, u'0')));
    return edit;
}

QLabel* newBuddyLabel(const QString& text, QWidget* buddy, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setBuddy(buddy);
    return label;
}

QLabel* newStaticLabel(const QString& objectName, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    return label;
}

std::string fieldText(const QLineEdit& edit)
{
    return toWindows1252(edit.text());
}

void setFieldText(QLineEdit& edit, std::string_view bytes)
{
    edit.setText(fromWindows1252(bytes));
}

QLabel* newClientHeading(const QString& objectName, QWidget* parent)
{
    QLabel* label = newStaticLabel(objectName, parent);
    QFont heading = label->font();
    heading.setBold(true);
    heading.setPointSizeF(heading.pointSizeF() * 1.25);
    label->setFont(heading);
    return label;
}

} // namespace purrlodge
