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

void keepOneTabStop(QButtonGroup* group)
{
    const auto update = [group] {
        const QList<QAbstractButton*> buttons = group->buttons();
        QAbstractButton* stop = group->checkedButton();
        if (stop == nullptr && !buttons.isEmpty())
            stop = buttons.first();
        for (QAbstractButton* button : buttons)
            button->setFocusPolicy(button == stop ? Qt::StrongFocus : Qt::ClickFocus);
    };
    QObject::connect(group, &QButtonGroup::buttonToggled, group, update);
    update();
}

} // namespace purrlodge
