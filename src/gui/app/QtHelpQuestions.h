#pragma once

#include <QPointer>
#include <QWidget>

#include "app/commands/HelpPages.h"

namespace purrlodge {

// The Help menu's pages, shown in front of the main window.
class QtHelpQuestions : public HelpPagesQuestions {
public:
    explicit QtHelpQuestions(QWidget* mainWindow) : mainWindow_(mainWindow) {}

    void showHelpPage(HelpTopic topic) override;
    void showEmergencyHelp(const EmergencyFacts& facts) override;
    void showPictureNote(const PictureNote& note) override;
    void showAbout() override;

private:
    [[nodiscard]] QWidget* parent() const;

    QPointer<QWidget> mainWindow_;
};

} // namespace purrlodge
