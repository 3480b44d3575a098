#pragma once

#include <QDialog>

#include "app/commands/ClientLists.h"

class QComboBox;
class QLabel;
class QTreeWidget;

namespace purrlodge {

// "List All Clients": the list chosen of the current clients on screen, its
// columns as they print, with the choice of list, Print and Close. Print
// prints the list shown and leaves it open.
class TDlgClientList : public QDialog {
    Q_OBJECT

public:
    TDlgClientList(ClientListChoice initial, ClientListQuestions::ListFor listFor,
                   ClientListQuestions::PrintList print, QWidget* parent = nullptr);

private:
    [[nodiscard]] ClientListChoice choice() const;
    void showList();
    void showHelp();

    ClientListQuestions::ListFor listFor_;
    QComboBox* choice_;
    QLabel* heading_;
    QTreeWidget* list_;
};

} // namespace purrlodge
