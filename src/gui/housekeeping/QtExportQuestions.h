#pragma once

#include <QPointer>
#include <QWidget>

#include "app/commands/Exports.h"

namespace purrlodge {

// The export and bulk commands' questions answered with their dialogs, each
// modal over the window in front; the data folder opens in the desktop's file
// manager.
class QtExportQuestions : public ExportQuestions {
public:
    // mainWindow: the owner of the dialogs when no other dialog is open.
    explicit QtExportQuestions(QWidget* mainWindow) : mainWindow_(mainWindow) {}

    std::optional<LabelStyle> chooseAddressFormat(LabelStyle current) override;
    bool askToOpenDataFolder(const std::string& fileName) override;
    void openDataFolder(const std::string& folder) override;
    void fillInactiveClients(const InactiveRule& onOk) override;
    bool showNameList(const std::vector<std::string>& lines,
                      const std::function<void()>& fileTheList) override;

private:
    [[nodiscard]] QWidget* parent() const;

    QPointer<QWidget> mainWindow_;
};

} // namespace purrlodge
