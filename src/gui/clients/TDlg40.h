#pragma once

#include <optional>
#include <string>

#include <QDialog>

#include "app/commands/ClientRemoval.h"

class QButtonGroup;

namespace purrlodge {

// "Client Record Deletion" (DIALOG 40): remove the client's files for good,
// or transfer the client to the past clients. "Do it" accepts only once a
// choice is ticked; Help is DIALOG 56.
class TDlg40 : public QDialog {
    Q_OBJECT

public:
    // text: 1252 bytes.
    explicit TDlg40(const std::string& text, QWidget* parent = nullptr);

    // The choice ticked, if any.
    [[nodiscard]] std::optional<ClientDeletionChoice> choice() const;

    void accept() override;

private:
    void showHelp();

    QButtonGroup* choices_; // 102 and 103
};

} // namespace purrlodge
