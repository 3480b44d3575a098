#pragma once

#include <QPointer>
#include <QWidget>

#include "ports/Ui.h"

namespace purrlodge {

// A modal message box with an OK button, showing the message (1252 bytes) as
// plain text over the parent.
void showMessageBox(const Message& message, QWidget* parent);

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
