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

// Tab stops once in a group of radio buttons, on its checked button (the
// first when none is checked), and the arrow keys move within the group.
// Without this the Tab key lands on whichever button was created first.
void keepOneTabStop(QButtonGroup* group);

} // namespace purrlodge
