#pragma once

#include <QPointer>
#include <QWidget>

#include "app/Ui.h"

namespace purrlodge {

// The Ui port on Qt widgets: message boxes and the shell's dialogs, each modal
// over whatever window is in front.
class QtUi : public Ui {
public:
    // The window that dialogs belong to when no other dialog is open.
    void setMainWindow(QWidget* window) { mainWindow_ = window; }

    void showMessage(const Message& message) override;
    std::optional<std::string> askDirectorySetup(const std::string& suggestion) override;
    bool askDirectoryCheck() override;
    bool askNewDirectory(const std::string& folder) override;
    std::optional<FormVerdict> runEstablishmentDetails(
        const EstablishmentForm& initial, const std::string& dataFolder,
        const std::function<FormVerdict(const EstablishmentForm&)>& accept) override;

private:
    // A dialog opened from another dialog stays in front of it.
    [[nodiscard]] QWidget* dialogParent() const;

    QPointer<QWidget> mainWindow_;
};

} // namespace purrlodge
