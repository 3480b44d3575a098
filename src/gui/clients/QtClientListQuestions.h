#pragma once

#include <QPointer>
#include <QWidget>

#include "app/commands/ClientLists.h"

namespace purrlodge {

// The client lists' questions answered with their dialogs, each modal over
// the window in front.
class QtClientListQuestions : public ClientListQuestions {
public:
    // mainWindow: the owner of the dialogs when no other dialog is open.
    explicit QtClientListQuestions(QWidget* mainWindow) : mainWindow_(mainWindow) {}

    void showClientList(ClientListChoice initial, const ListFor& listFor,
                        const PrintList& print) override;
    std::optional<ClientListChoice> chooseClientList(ClientListChoice initial) override;

private:
    QPointer<QWidget> mainWindow_;
};

} // namespace purrlodge
