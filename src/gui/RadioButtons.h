#pragma once

#include <QString>

class QButtonGroup;
class QRadioButton;
class QWidget;

namespace purrlodge {

// A named radio button in its group, which keeps one button of the group
// checked at a time. The id, when given, is what the group's checkedId()
// answers for it.
QRadioButton* newRadioButton(const QString& text, const QString& objectName, QButtonGroup* group,
                             QWidget* parent, int id = -1);

} // namespace purrlodge
