#pragma once

#include <QPointer>
#include <QWidget>

#include "ports/Ui.h"

namespace purrlodge {

// The Ui port on Qt widgets: message boxes, each modal over whatever window is
// in front.
class QtUi : public Ui {
public:
    // The window that message boxes belong to when no dialog is open.
    void setMainWindow(QWidget* window) { mainWindow_ = window; }

    void showMessage(const Message& message) override;

private:
    QPointer<QWidget> mainWindow_;
};

} // namespace purrlodge
