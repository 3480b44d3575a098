#include "app/StartupSequence.h"

#include <filesystem>
#include <optional>
#include <system_error>

#include "accounts/CatteryFiles.h"
#include "app/BackupAlert.h"
#include "app/PictureNotes.h"
#include "app/PictureRotation.h"
#include "app/Session.h"
#include "clients/ClientFormRules.h"
#include "print/PrintOptions.h"
#include "store/ClientFiles.h"
#include "store/IndexOperations.h"
#include "store/IndexRepair.h"
#include "store/Windows1252.h"

namespace purrlodge {

namespace {

constexpr std::string_view noRatesText =
    "You do not have any Boarding Charges set for this Cattery!\n\n"
    "Please go straight to Setup|Set Rates\n"
    "before proceeding to use this program or\n"
    "I shall not know how much to charge your boarders\n"
    "However, if you have already entered details and have been using Purrlodge\n"
    "then it would seem that some information has been lost in your computer.\n"
    "If this is the case, just press OK on this screen\n"
    "then when the normal Purrlodge scree comes up,\n"
    "go to 'Setup|Change data Set' and enter the addresss of your data folder!\n"
    "Everything will then be restored to normal!";

constexpr std::string_view incompatibleDataText =
    "This new version of Purrlodge is incompatible with your old data set.\n\n"
    "Please obtain the conversion program 'Update_Purrlodge' and run it on your data "
    "first; then start Purrlodge again.";

// The working folder, kept for the whole run and written to ProgDir.
void recordProgramFolder(Session& session)
{
    std::error_code error;
    const std::filesystem::path working = std::filesystem::current_path(error);
    session.shell.programFolder = windows1252Of(working);
    session.shell.perFolderIniPath = windows1252Of(working / "Purrlodge.ini");
    // A setting that cannot be written has been told; the run goes on.
    static_cast<void>(session.ports.profile.write("ProgDir", session.shell.programFolder));
}

// Step 1. Returns the day of the month for the picture rotation.
int prepareShellState(Session& session)
{
    session.shell.permittedNameCharacters = std::string(permittedNameCharacterSet);
    const CivilTime today = session.ports.clock.toLocal(session.ports.clock.now());
    session.currentYear = today.year;
    // Every flag afresh: set for each picture that has a note, which offers it.
    session.shell.pictureFlags = pictureNoteFlags();
    session.shell.furtherDisplayFlags.fill(1);
    return today.day;
}

// Step 4. The quit code when Directory Setup ended the run.
std::optional<int> chooseDataFolder(Session& session, StartupQuestions& questions,
                                    const std::string& suggestedDataFolder)
{
    const std::string currentDir = session.ports.profile.read("CurrentDir");
    if (!currentDir.empty() && !session.shell.switches.forceDirectorySetup) {
        // However it was stored, the folder ends in its separator, or every
        // file would land beside it.
        session.folder.setPath(withTrailingSeparator(currentDir));
        return std::nullopt;
    }
    std::string shown = suggestedDataFolder;
    for (;;) {
        const std::optional<std::string> typed = questions.askDirectorySetup(shown);
        if (!typed)
            return 1;
        // A registered folder is used from the next start; this run ends here.
        if (const std::optional<int> quitCode =
                acceptDirectorySetup(*typed, session.ports.profile, session.ports.ui, questions))
            return quitCode;
        shown = *typed; // refused: asked again with the folder as typed
    }
}

// Step 5.
void readDisplaySettings(Session& session)
{
    session.shell.digitalClock =
        session.ports.profile.read("ClkTyp").find('D') != std::string::npos;
    session.shell.pictureNoteIndicator =
        session.ports.profile.read("musnotes").find('N') == std::string::npos;
}

// Step 6: a folder without an index gets an empty one. A folder that cannot
// be written has been told so by its file error; the run goes on with the
// empty index, and every later save is refused the same way.
void openClientIndex(Session& session)
{
    if (!readIndex(session.folder, session.index)) {
        session.index.formatStamp.set(0);
        session.index.count.set(0);
        session.index.backupReminderMode.set(1);
        static_cast<void>(writeIndex(session.folder, session.index));
    }
    session.shell.backupReminderMode = session.index.backupReminderMode.get();
}

// Tells the person what was found in a damaged index and how it was put
// right. The damaged file is copied first; only then is the repaired index
// written over it. Returns false when no copy could be made, in which case
// the file is left as it is and the repaired index serves from memory.
bool repairIndexFile(Session& session, std::string_view file, ClientIndex& index)
{
    const std::optional<std::uintmax_t> size = session.folder.fileSize(file);
    if (!size)
        return true;
    const IndexRepair repair = repairIndex(index, *size);
    if (!repair.repaired())
        return true;
    std::string text = "The client list " + session.folder.fileName(file) + " was damaged:\n";
    for (const std::string& finding : repair.findings)
        text += "  - " + finding + "\n";
    text += "\nIt has been repaired from its own entries: " + std::to_string(repair.kept) +
            (repair.kept == 1 ? " client is" : " clients are") + " listed.";
    const std::optional<std::string> copy = session.folder.keepDamagedCopy(file);
    if (copy)
        text += "\nThe damaged file is kept as " + *copy + " in the data folder.";
    else
        text += "\nNo copy of the damaged file could be made, so the file itself has not "
                "been changed.";
    session.ports.ui.showMessage({text, "Client List Repaired", MessageIcon::Exclamation});
    // A failed write has been told; the repaired index still serves from memory.
    return copy && session.folder.replaceBytes(file, &index, sizeof index);
}

// The current index's damage is repaired before it is sorted; the past
// clients' list is put right the same way. Codes that cannot name a file are
// told once: those clients stay listed, but are never opened or written.
// Returns whether the current index may be written back.
bool checkClientIndexes(Session& session)
{
    const bool mayWrite = repairIndexFile(session, currentIndexFile, session.index);

    ClientIndex past{};
    if (readStoredPastIndex(session.folder, past))
        static_cast<void>(repairIndexFile(session, pastIndexFile, past));

    const std::vector<std::string> unsafe = unsafeCodeEntries(session.index);
    if (!unsafe.empty()) {
        std::string text =
            "The client list names clients by codes that cannot name a file in the data folder:\n";
        for (const std::string& entry : unsafe)
            text += "  - " + entry + "\n";
        text += "\nThese clients are listed, but cannot be opened or changed.";
        session.ports.ui.showMessage({text, "Data Error", MessageIcon::Exclamation});
    }
    return mayWrite;
}

// Step 9. The quit code when Establishment Details ended the run.
std::optional<int> loadCatteryFiles(Session& session, EstablishmentDetailsQuestion& questions)
{
    loadRates(session.folder, session.rates);
    loadColourBlock(session.folder, session.colourBlock);
    const bool haveEstablishment = loadEstablishment(session.folder, session.establishment);
    if (!haveEstablishment || session.shell.switches.forceEstablishmentSetup)
        return openEstablishmentDetails(session, questions);
    return std::nullopt;
}

// Steps 11 and 12: the run goes on without rates or a euro rate, with a warning.
void checkRatesAndEuroRate(Session& session)
{
    if (!loadRates(session.folder, session.rates))
        session.ports.ui.showMessage(
            {std::string(noRatesText), "No Rates Set", MessageIcon::Exclamation});

    if (session.rates.inSterling() && !loadExchangeRate(session.folder, session.exchangeRate))
        session.ports.ui.showMessage({"Please Set the Euro-Exchange Rate", "Euros not Set!"});
}

} // namespace

StartupOutcome runStartupSequence(Session& session, StartupQuestions& questions,
                                  const std::string& suggestedDataFolder)
{
    // Without its settings the program cannot tell where the data is; asking
    // again as on a first run would register a folder it cannot save.
    if (const std::optional<std::string> reason = session.ports.profile.unreadable()) {
        session.ports.ui.showMessage(
            {"The settings file could not be read:\n" + *reason +
                 "\n\nPurrlodge keeps the name of your data folder there, so it cannot start. "
                 "Nothing has been changed.\nPlease put the file right, or move it away to "
                 "choose the data folder afresh.",
             "Settings Error", MessageIcon::Stop});
        return {false, 1};
    }
    recordProgramFolder(session);

    const int dayOfMonth = prepareShellState(session);
    session.shell.pictureIndex = rotatePicture(session.ports.profile, dayOfMonth);
    session.shell.printingFontName = std::string(defaultPrintingFontName);

    if (const std::optional<int> quitCode =
            chooseDataFolder(session, questions, suggestedDataFolder))
        return {false, *quitCode};
    readDisplaySettings(session);
    session.printDialog.modeInForce = storedPrintDialogMode(session.ports.profile);
    // What a crash left half-written is of no use: the files it was to replace are whole.
    session.folder.removeLeftoverTemporaryFiles();

    openClientIndex(session);
    if (!isKnownIndexFormat(session.index)) {
        session.ports.ui.showMessage({std::string(incompatibleDataText), "Data Not Compatible"});
        return {false, 0};
    }
    readIndex(session.folder, session.index);
    const bool indexMayBeWritten = checkClientIndexes(session);
    sortIndexEntries(session.index);
    // Sorted on disc too; should that fail, the sorted index in memory still serves.
    if (indexMayBeWritten)
        static_cast<void>(writeIndex(session.folder, session.index));

    if (const std::optional<int> quitCode = loadCatteryFiles(session, questions))
        return {false, *quitCode};
    if (const std::optional<int> typeSize = managerTypeSizeOf(session.establishment))
        session.shell.managerTypeSize = *typeSize;
    checkRatesAndEuroRate(session);

    session.shell.backupReminder =
        runBackupAlert(session.ports.ui, session.ports.profile, session.ports.clock);
    session.shell.pictureTable = picturePlacements;
    session.shell.ratesUsable = ratesUsable(session.rates);
    return {};
}

void reloadDataSet(Session& session)
{
    session.client = {};
    session.clientCode.clear();
    session.stay = {};
    session.account = {};
    session.index = {};
    openClientIndex(session);
    if (checkClientIndexes(session)) {
        sortIndexEntries(session.index);
        static_cast<void>(writeIndex(session.folder, session.index));
    } else {
        sortIndexEntries(session.index);
    }
    loadRates(session.folder, session.rates);
    loadColourBlock(session.folder, session.colourBlock);
    loadEstablishment(session.folder, session.establishment);
    if (session.rates.inSterling())
        loadExchangeRate(session.folder, session.exchangeRate);
    if (const std::optional<int> typeSize = managerTypeSizeOf(session.establishment))
        session.shell.managerTypeSize = *typeSize;
    session.shell.ratesUsable = ratesUsable(session.rates);
}

} // namespace purrlodge
