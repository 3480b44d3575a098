// Registers and edits clients through the program's own commands, without
// end, on the data folder named by its argument. The crash test kills it at
// random moments and checks what it left behind.
#include <cstdio>
#include <random>
#include <string>

#include "app/Session.h"
#include "app/commands/ClientEntry.h"
#include "store/ClientFiles.h"
#include "support/FakePorts.h"
#include "support/FakeQuestions.h"

using namespace purrlodge;

namespace {

// Surnames and first names take letters only.
std::string randomName(std::mt19937& random, char first)
{
    std::string name(1, first);
    std::uniform_int_distribution<int> letter('a', 'z');
    for (int i = 0; i < 6; ++i)
        name += static_cast<char>(letter(random));
    return name;
}

ClientForm formFor(const std::string& surname, const std::string& firstName)
{
    ClientForm form = newClientForm();
    form.firstName = firstName;
    form.surname = surname;
    form.known = "1";
    form.cats[0] = {"Tibbles", "Persian", "Grey", "", "f", "", ""};
    return form;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("usage: client_writer DATA-FOLDER/\n", stderr);
        return 2;
    }
    testing::FakePorts fakes;
    Session session(fakes.ports(), argv[1]);
    // A new run starts as the program does: with what the disc holds.
    readIndex(session.folder, session.index);
    session.folder.removeLeftoverTemporaryFiles();

    std::mt19937 random(std::random_device{}());
    testing::ScriptedClientQuestions questions;
    questions.surnameYes = true;
    for (;;) {
        const int count = session.index.usedCount();
        if (count < 30) {
            questions.clientForm.entries = {
                formFor(randomName(random, 'N'), randomName(random, 'F'))};
            newClient(session, questions);
            continue;
        }
        // An edit that renames the client: record and index key both change.
        const int entry = std::uniform_int_distribution<int>(1, count)(random);
        const std::string surname = session.index.entries[entry].key.str();
        questions.names = {FinderEntry{surname}};
        questions.matches = {0};
        ClientForm edited = formFor(randomName(random, 'E'), randomName(random, 'F'));
        edited.mode = ClientFormMode::EditClient;
        questions.clientForm.entries = {edited};
        editClientDetails(session, questions);
    }
}
