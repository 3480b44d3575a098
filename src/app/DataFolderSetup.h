#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ports/Message.h"

namespace purrlodge {

class Profile;
class Ui;

// Choosing the one data folder: Directory Setup (DIALOG 1, first run) and
// Change Data Source (DIALOG 30, Setup | Change Data Set). Both register the
// folder in CurrentDir and ask the program to quit: a new folder takes effect
// at the next start.

// The questions asked while a data folder is chosen.
class DataFolderQuestions {
public:
    virtual ~DataFolderQuestions() = default;

    // Directory Check (DIALOG 11): whether to use the data already in the folder.
    virtual bool askDirectoryCheck() = 0;

    // New Directory (DIALOG 32): whether to create the folder shown.
    virtual bool askNewDirectory(const std::string& folder) = 0;
};

// The main window's caption: "Purrlodge.exe - (Using Data in: %s)", the
// folder as stored, even when empty.
[[nodiscard]] std::string windowCaption(const std::string& currentDir);

// The folder as typed, ending in the native separator.
[[nodiscard]] std::string dataFolderFromTyped(std::string_view typed);

// The longest data folder the settings can hold, its final separator included.
inline constexpr std::size_t maxDataFolderLength = 80;

// The message refusing a typed folder that, with its final separator, is too
// long for the settings to hold; nothing when it fits. A folder cut short
// would put every file somewhere else.
[[nodiscard]] std::optional<Message> dataFolderTooLong(std::string_view typed);

// Whether the folder holds a client index, its name compared without regard to
// case so that a data set copied from a case-blind file system is recognised.
[[nodiscard]] bool holdsClientIndex(Ui& ui, const std::string& folder);

// Directory Setup OK: registers the typed folder, or not, and returns the code
// the program must quit with (it always quits), or nothing when the folder is
// too long and the dialog stays open. The person is told the folder is
// registered only when CurrentDir was written, and that it was not otherwise.
std::optional<int> acceptDirectorySetup(const std::string& typedFolder, Profile& profile, Ui& ui,
                                        DataFolderQuestions& questions);

// Change Data Source (DIALOG 30) OK: the quit code once the folder is
// registered, nothing when the dialog stays open (a folder too long, or
// CurrentDir not written).
std::optional<int> acceptChangeDataSource(const std::string& typedFolder, Profile& profile, Ui& ui,
                                          DataFolderQuestions& questions);

} // namespace purrlodge
