#include "app/DataFolderSetup.h"

#include "ports/Profile.h"
#include "ports/Ui.h"
#include "store/DataFolder.h"
#include "store/FolderTools.h"
#include "store/Windows1252.h"

namespace purrlodge {

namespace {

constexpr std::string_view setDefaultDirectoryTitle = "Set Default Directory";

// The index name as the dialogs look for it; the look-up ignores case.
constexpr std::string_view indexProbeName = "fidex.CTL";

// Writes CurrentDir and tells the person to restart; false when the setting
// could not be written (the person has been told so instead).
bool registerDataFolder(Profile& profile, Ui& ui, const std::string& folder)
{
    if (!profile.write("CurrentDir", folder))
        return false;
    ui.showMessage({"OK, '" + folder + "' is now your active directory. Please restart the program",
                    std::string(setDefaultDirectoryTitle)});
    return true;
}

} // namespace

std::string windowCaption(const std::string& currentDir)
{
    return "Purrlodge.exe - (Using Data in: " + currentDir + ")";
}

std::string dataFolderFromTyped(std::string_view typed)
{
    // An empty entry becomes the bare separator, as it always has.
    return typed.empty() ? std::string(1, folderSeparator)
                         : withTrailingSeparator(std::string(typed));
}

std::optional<Message> dataFolderTooLong(std::string_view typed)
{
    const std::string folder = dataFolderFromTyped(typed);
    if (folder.size() <= maxDataFolderLength)
        return std::nullopt;
    return Message{"The folder name is too long: " + std::to_string(folder.size()) +
                       " characters with its final '" + std::string(1, folderSeparator) +
                       "', and a data folder can have at most " +
                       std::to_string(maxDataFolderLength) +
                       ".\n\nPlease choose a folder with a shorter name.",
                   "Folder Name Too Long", MessageIcon::Exclamation};
}

bool holdsClientIndex(Ui& ui, const std::string& folder)
{
    const DataFolder probe(folder, ui);
    return probe.existsIgnoringCase(indexProbeName);
}

std::optional<int> acceptDirectorySetup(const std::string& typedFolder, Profile& profile, Ui& ui,
                                        DataFolderQuestions& questions)
{
    if (const std::optional<Message> refusal = dataFolderTooLong(typedFolder)) {
        ui.showMessage(*refusal);
        return std::nullopt;
    }
    const Message notRegistered{"The directory was not registered",
                                std::string(setDefaultDirectoryTitle)};
    const std::string folder = dataFolderFromTyped(typedFolder);
    if (holdsClientIndex(ui, folder)) {
        if (!questions.askDirectoryCheck()) {
            ui.showMessage(notRegistered);
            return 0;
        }
        // Registered here with a request to quit with code 0; the person then
        // sees the confirmation a second time from the new-folder steps below,
        // whose request to quit with code 1 replaces the first.
        if (!registerDataFolder(profile, ui, folder)) {
            ui.showMessage(notRegistered);
            return 0;
        }
    }
    makeFolderChain(folder);
    if (registerDataFolder(profile, ui, folder))
        return 1;
    ui.showMessage(notRegistered);
    return 0;
}

std::optional<int> acceptChangeDataSource(const std::string& typedFolder, Profile& profile, Ui& ui,
                                          DataFolderQuestions& questions)
{
    if (const std::optional<Message> refusal = dataFolderTooLong(typedFolder)) {
        ui.showMessage(*refusal);
        return std::nullopt;
    }
    const std::string folder = dataFolderFromTyped(typedFolder);
    if (makeFolderChain(folder) != 1) {
        if (!holdsClientIndex(ui, folder)) {
            // Whatever the answer, the folder is registered; the next start
            // creates its index.
            questions.askNewDirectory(folder);
        } else if (!questions.askDirectoryCheck()) {
            return std::nullopt;
        }
    }
    if (!registerDataFolder(profile, ui, folder))
        return std::nullopt;
    return 1;
}

} // namespace purrlodge
