#include "app/jobs/JobDataSet.h"

#include <filesystem>

#include "accounts/CatteryFiles.h"
#include "app/Session.h"
#include "housekeeping/DataSetCheck.h"
#include "store/ClientFiles.h"
#include "store/IndexOperations.h"
#include "store/Windows1252.h"

namespace purrlodge {

namespace {

JobOutcome unusable(std::string message)
{
    return {jobExit::dataSetUnusable, std::move(message)};
}

std::string joined(const std::vector<std::string>& parts)
{
    std::string text;
    for (const std::string& part : parts)
        text += (text.empty() ? "" : "; ") + part;
    return text;
}

} // namespace

std::optional<JobOutcome> openJobDataSet(Session& session, const std::string& givenFolder,
                                         DataSetUse use)
{
    Profile& profile = session.ports.profile;
    if (const std::optional<std::string> reason = profile.unreadable())
        return unusable("the settings file cannot be read: " + *reason);
    const std::string folder =
        withTrailingSeparator(givenFolder.empty() ? profile.read("CurrentDir") : givenFolder);
    if (folder.empty())
        return unusable("no data folder is set up: start Purrlodge once, or give --data FOLDER");
    std::error_code error;
    if (!std::filesystem::is_directory(nativePath(folder), error))
        return unusable("the data folder " + folder + " does not exist");
    session.folder.setPath(folder);
    session.currentYear = session.ports.clock.toLocal(session.ports.clock.now()).year;
    if (use == DataSetUse::FolderOnly)
        return std::nullopt;

    if (!session.folder.existsIgnoringCase(currentIndexFile))
        return unusable(folder + " holds no client list (" + std::string(currentIndexFile) +
                        "): it is not a Purrlodge data folder");
    if (const std::vector<std::string> damage = clientListDamage(session.folder, currentIndexFile);
        !damage.empty())
        return unusable("the client list " + session.folder.fileName(currentIndexFile) +
                        " is damaged (" + joined(damage) +
                        "): run purrlodge-cli check, then start Purrlodge to repair it");
    readIndex(session.folder, session.index);
    // In the order the program keeps it, as the program's own commands see it.
    sortIndexEntries(session.index);
    loadRates(session.folder, session.rates);
    loadColourBlock(session.folder, session.colourBlock);
    loadEstablishment(session.folder, session.establishment);
    loadExchangeRate(session.folder, session.exchangeRate);
    return std::nullopt;
}

} // namespace purrlodge
