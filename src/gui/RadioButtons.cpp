#include "gui/RadioButtons.h"

#include <QButtonGroup>
#include <QRadioButton>

namespace purrlodge {

QRadioButton* newRadioButton(const QString& text, const QString& objectName, QButtonGroup* group,
                             QWidget* parent, int id)
{
    auto* button = new QRadioButton(text, parent);
    button->setObjectName(objectName);
    group->addButton(button, id);
    return button;
}

} // namespace purrlodge
