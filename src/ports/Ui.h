#pragma once

#include <functional>
#include <optional>
#include <string>

#include "accounts/EstablishmentForm.h"

namespace purrlodge {

enum class MessageIcon { None, Information, Exclamation, Question, Stop };

// One message box: the exact text, its title and its icon.
struct Message {
    std::string text;
    std::string title;
    MessageIcon icon = MessageIcon::None;

    friend bool operator==(const Message&, const Message&) = default;
};

// The screen as the core sees it: message boxes and each dialog's exchange.
// Text is Windows-1252 bytes; the gui converts at its edge.
class Ui {
public:
    virtual ~Ui() = default;

    // A modal message box with an OK button.
    virtual void showMessage(const Message& message) = 0;

    // Directory Setup (DIALOG 1): the folder typed when OK is pressed, or
    // nothing on Cancel. The edit starts with the suggestion.
    virtual std::optional<std::string> askDirectorySetup(const std::string& suggestion) = 0;

    // Directory Check (DIALOG 11): whether to use the data already in the folder.
    virtual bool askDirectoryCheck() = 0;

    // New Directory (DIALOG 32): whether to create the folder shown.
    virtual bool askNewDirectory(const std::string& folder) = 0;

    // Establishment Details (DIALOG 13), filled from `initial` and showing the
    // data folder being set up. Each OK hands the entries to `accept`; the
    // dialog closes when it answers Accept or EndProgram and stays open with
    // the entries as typed on StayOpen. Returns the last verdict, or nothing
    // when the dialog was cancelled.
    virtual std::optional<FormVerdict>
    runEstablishmentDetails(const EstablishmentForm& initial, const std::string& dataFolder,
                            const std::function<FormVerdict(const EstablishmentForm&)>& accept) = 0;
};

} // namespace purrlodge
