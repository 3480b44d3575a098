#pragma once

#include <QDialog>

#include "app/commands/ClientLists.h"

class QButtonGroup;

namespace purrlodge {

// "Client Lists": which list of the current clients to print, one radio
// button a list, with OK and Cancel.
class TDlgClientListChoice : public QDialog {
    Q_OBJECT

public:
    explicit TDlgClientListChoice(ClientListChoice initial, QWidget* parent = nullptr);

    // The list whose button is set.
    [[nodiscard]] ClientListChoice choice() const;

private:
    QButtonGroup* group_;
};

} // namespace purrlodge
