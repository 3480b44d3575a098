#include "gui/FrontWindow.h"

#include <QApplication>
#include <QWidget>

namespace purrlodge {

QWidget* frontWindow(QWidget* fallback)
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    return fallback;
}

} // namespace purrlodge
