#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/commands/BackupAndRestore.h"
#include "support/FakeQuestions.h"

namespace purrlodge::testing {

// A progress display that records what it showed; it can run an action at a
// chosen step (a disc pulled out half way) and answer Cancel from a step on.
struct RecordingProgress : BackupProgress {
    bool showProgress(const std::string& text, int, int) override
    {
        texts.push_back(text);
        ++calls;
        if (atCall && calls == atCall->first)
            atCall->second();
        return !cancelFromCall || calls < *cancelFromCall;
    }
    void endProgress() override { ++ends; }

    std::vector<std::string> texts;
    int calls = 0;
    int ends = 0;
    std::optional<int> cancelFromCall;                           // 1-based
    std::optional<std::pair<int, std::function<void()>>> atCall; // 1-based
};

// The backup dialogs answered from scripts. Each step changes Backup
// Options' entries before one press of OK; when the steps run out first, the
// dialog is cancelled.
struct ScriptedBackupQuestions : BackupQuestions {
    bool showProgress(const std::string& text, int done, int total) override
    {
        return progress.showProgress(text, done, total);
    }
    void endProgress() override { progress.endProgress(); }
    bool askForNewFloppy(const std::string& text) override
    {
        badFloppyTexts.push_back(text);
        return next(newFloppies);
    }

    std::optional<FormVerdict> fillBackupOptions(const BackupOptionsDialog& dialog) override
    {
        shown.push_back(dialog);
        BackupOptions entries = dialog.entries;
        while (!steps.empty()) {
            next(steps)(entries);
            const FormVerdict verdict = dialog.onOk(entries);
            afterOk.push_back(entries);
            if (verdict != FormVerdict::StayOpen)
                return verdict;
        }
        return std::nullopt;
    }
    bool confirmClearingFolder(const std::string& folder, int) override
    {
        clearingAsked.push_back(folder);
        return next(clearings);
    }
    bool confirmRestore(const std::string& name, const std::string&, const std::string&) override
    {
        restoreAsked.push_back(name);
        return next(restores);
    }
    void showWhereabouts(const StuffWhereabouts& where) override { whereabouts.push_back(where); }
    void showLastBackup(const std::string& text) override { lastBackups.push_back(text); }
    void showBackupAdvice(const std::string& note) override { advice.push_back(note); }

    RecordingProgress progress;
    std::deque<std::function<void(BackupOptions&)>> steps;
    std::vector<BackupOptionsDialog> shown;
    std::vector<BackupOptions> afterOk;
    std::deque<bool> newFloppies, clearings, restores;
    std::vector<std::string> badFloppyTexts, clearingAsked, restoreAsked, lastBackups, advice;
    std::vector<StuffWhereabouts> whereabouts;
};

} // namespace purrlodge::testing
