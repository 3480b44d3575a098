#pragma once

#include "ports/Message.h"

namespace purrlodge {

// Message boxes, the one way the core tells the person something. The
// questions a command asks go through the interface declared beside that
// command (see app/commands/README.md).
class Ui {
public:
    virtual ~Ui() = default;

    // A modal message box with an OK button.
    virtual void showMessage(const Message& message) = 0;
};

} // namespace purrlodge
