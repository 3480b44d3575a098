#pragma once

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QString>
#include <QTest>
#include <QWidget>

#include "gui/ModalAnswers.h"

namespace purrlodge::testing {

// A dialog's widget by its object name; a missing one ends the test run at
// once, naming what was looked for.
template <class Widget> Widget* child(QWidget* dialog, const QString& name)
{
    auto* found = dialog->findChild<Widget*>(name);
    if (found == nullptr)
        qFatal("no widget named %s in %s", qPrintable(name), qPrintable(dialog->objectName()));
    return found;
}

inline QLineEdit* edit(QWidget* dialog, const QString& name)
{
    return child<QLineEdit>(dialog, name);
}

// Types into a box as a person does, over whatever it held.
inline void retype(QWidget* dialog, const QString& name, const QString& text)
{
    QLineEdit* box = edit(dialog, name);
    box->selectAll();
    QTest::keyClick(box, Qt::Key_Backspace);
    QTest::keyClicks(box, text);
}

inline void pressOk(QWidget* dialog)
{
    clickLater(standardButton(dialog, QDialogButtonBox::Ok));
}

} // namespace purrlodge::testing
