#include "app/commands/Exports.h"

#include "app/Session.h"
#include "housekeeping/EmailFile.h"
#include "housekeeping/InactiveMarking.h"
#include "housekeeping/NameCounts.h"
#include "housekeeping/TextFile.h"
#include "print/PopList.h"
#include "print/PrinterJobs.h"
#include "store/ClientFiles.h"

namespace purrlodge {

namespace {

// Writes the file; once it is on disc says so and offers to open the folder.
void fileText(Session& session, ExportQuestions& questions, std::string_view name,
              const ExportText& file, std::string (*filedText)(int, std::string_view))
{
    if (!writeTextFile(session.folder, name, file.text))
        return;
    const std::string path = session.folder.fileName(name);
    session.ports.ui.showMessage({filedText(file.count, path), "Completed"});
    if (questions.askToOpenDataFolder(std::string(name)))
        questions.openDataFolder(session.folder.path());
}

void showNameCounts(Session& session, ExportQuestions& questions, NameList list)
{
    const NameCountTable table = tallyCatNames(session.folder, session.index);
    if (table.rejected() > 0)
        session.ports.ui.showMessage({"There are more than " + std::to_string(nameTableSize) +
                                          " different cat names. The names met after the first " +
                                          std::to_string(nameTableSize) + " (" +
                                          std::to_string(table.rejected()) +
                                          " of them) are not counted.",
                                      "Too Many Names", MessageIcon::Exclamation});

    const std::vector<std::string> lines = nameListLines(table, list);
    const char* fileName = list == NameList::Popular ? popularNamesFileName : uniqueNamesFileName;
    const auto fileTheList = [&] {
        if (writeTextFile(session.folder, fileName, nameListFileText(lines)))
            session.ports.ui.showMessage(
                {"The list has been saved to the file:\n" + session.folder.fileName(fileName),
                 "List Filed", MessageIcon::Information});
    };
    if (!questions.showNameList(lines, fileTheList))
        return;
    // The pages go straight to the printer: no print dialog, and the print
    // dialog's mode is left as it stands.
    PrinterJobs jobs(session.ports.printer);
    printPopList(session.printBuffer, popListNames(table), table.moreThanOnce(), jobs);
    tellWherePrintoutsWent(session.ports.printer, session.ports.ui);
}

} // namespace

void fileClientAddresses(Session& session, ExportQuestions& questions)
{
    const std::optional<LabelStyle> style = questions.chooseAddressFormat(session.addressStyle);
    if (!style)
        return;
    session.addressStyle = *style;
    fileText(session, questions, addressFileName,
             addressFileText(session.folder, session.index, *style), addressesFiledText);
}

void fileClientEmails(Session& session, ExportQuestions& questions)
{
    fileText(session, questions, emailFileName, emailFileText(session.folder, session.index),
             emailsFiledText);
}

void markInactiveClients(Session& session, ExportQuestions& questions)
{
    questions.fillInactiveClients([&session](const std::string& typedDate) {
        const InactiveMarking result =
            markInactive(session.folder, session.index, cutOffDay(typedDate));
        // The current client's record in memory takes the flag as filed, so a
        // later save of the client never undoes the marking.
        if (!session.clientCode.empty())
            readClientRecord(session.folder, session.clientCode, session.client);
        return inactiveMarkingText(result);
    });
}

void countCatNames(Session& session, ExportQuestions& questions)
{
    showNameCounts(session, questions, NameList::Popular);
}

void listUniqueNames(Session& session, ExportQuestions& questions)
{
    showNameCounts(session, questions, NameList::Unique);
}

} // namespace purrlodge
