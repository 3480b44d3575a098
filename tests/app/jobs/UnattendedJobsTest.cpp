#include "app/jobs/UnattendedJobs.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>

#include "accounts/AccountFiling.h"
#include "accounts/CatteryFiles.h"
#include "app/Session.h"
#include "app/commands/BackupAndRestore.h"
#include "app/commands/Exports.h"
#include "app/commands/PastAccounts.h"
#include "housekeeping/BackupScan.h"
#include "store/ClientFiles.h"
#include "store/Windows1252.h"
#include "support/Bytes.h"
#include "support/DataSetGenerator.h"
#include "support/FakeBackupQuestions.h"
#include "support/FakeCanvas.h"
#include "support/FakePorts.h"
#include "support/FakeQuestions.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;
using testing::fileBytes;

// Every page drawn on a recording canvas, each line as "x,y,face,cell:text".
struct DrawingPrinter : testing::FakePrinter {
    PrintOutcome printPage(const std::string& title, bool prompt,
                           const std::function<void(Canvas&)>& drawPage) override
    {
        testing::FakeCanvas canvas;
        drawPage(canvas);
        Lines page;
        for (const testing::FakeCanvas::Drawn& line : canvas.drawn)
            page.push_back(std::to_string(line.x) + "," + std::to_string(line.y) + "," +
                           line.font.face + "," + std::to_string(line.font.cellHeight) + ":" +
                           line.text);
        pages.push_back(page);
        return FakePrinter::printPage(title, prompt, drawPage);
    }
    std::vector<Lines> pages;
};

// Every file of a folder with its bytes.
std::map<std::string, std::string> contentsOf(const std::string& folder)
{
    std::map<std::string, std::string> contents;
    for (const std::string& name : filesInFolder(folder))
        contents[name] = fileBytes(fs::path(folder) / name);
    return contents;
}

// A cattery of twelve generated clients, with its own details and rates,
// the settings pointing at it; jobs run over the fakes as purrlodge-cli
// runs them over the real ports.
class UnattendedJobsTest : public ::testing::Test {
protected:
    void SetUp() override { makeDataSet(data.path()); }

    void makeDataSet(const std::string& path)
    {
        fakes.clock.setUtc(2026, 11, 25, 2, 30);
        fakes.profile.values["currentdir"] = path;
        const DataFolder folder(path, fakes.ui);
        static_cast<void>(testing::generateDataSet(folder, 12, 4));
        EstablishmentRecord cattery{};
        cattery.name.set("Whiskers Lodge");
        RatesRecord rates{};
        rates.perDay.set(1);
        ASSERT_TRUE(saveEstablishment(folder, cattery) && saveRates(folder, rates));
    }

    Ports ports()
    {
        return {fakes.ui, fakes.clock, fakes.random, fakes.profile, fakes.drives, printer};
    }

    // A session as the program's start-up leaves it, for its own commands.
    std::unique_ptr<Session> program()
    {
        auto session = std::make_unique<Session>(ports(), data.path());
        readIndex(session->folder, session->index);
        loadRates(session->folder, session->rates);
        loadEstablishment(session->folder, session->establishment);
        return session;
    }

    JobOutcome run(const Lines& arguments)
    {
        results.clear();
        const ParsedArguments parsed = parseJobArguments(arguments);
        if (!parsed.request) {
            ADD_FAILURE() << parsed.error;
            return {jobExit::usage, parsed.error};
        }
        return runJob(*parsed.request, ports(), output);
    }

    testing::FakePorts fakes;
    DrawingPrinter printer;
    testing::TempFolder data;
    testing::TempFolder elsewhere;
    Lines results;
    Lines notes;
    JobOutput output{[this](std::string_view line) { results.emplace_back(line); },
                     [this](std::string_view line) { notes.emplace_back(line); }};
};

TEST_F(UnattendedJobsTest, BackupCopiesWhatBackupMyDataCopiesAndSetsTheDateOfTheLastBackup)
{
    fakes.drives.roots['D'] = elsewhere.path();
    testing::ScriptedBackupQuestions questions;
    questions.steps = {[](BackupOptions& entries) {
        entries = {BackupMedium::OtherDrive, "Program", "D"};
    }};
    backupMyData(*program(), questions);
    fakes.profile.values.erase("lastbkdate");

    EXPECT_EQ(run({"backup", "--to", elsewhere.path() + "Job"}).exitCode, jobExit::done);
    const auto copied = contentsOf(elsewhere.path() + "Job");
    EXPECT_EQ(copied, contentsOf(elsewhere.path() + "Program"));
    EXPECT_EQ(fakes.profile.read("LastBkDate"), std::to_string(fakes.clock.now()));
    EXPECT_EQ(results, Lines{std::to_string(copied.size()) + " files backed up to " +
                             elsewhere.path() + "Job/ (total " +
                             std::to_string(
                                 scanForBackup(DataFolder(data.path(), fakes.ui), {}).totalBytes) +
                             " bytes)"});

    // A folder that drive D: names is recorded as Backup My Data records its
    // own, and a backup without --to goes where the last one went.
    EXPECT_EQ(fakes.profile.read("DefBkDir"), "Job");
    fs::remove(fs::path(elsewhere.path()) / "Job" / "NRATES.RTS");
    EXPECT_EQ(run({"backup"}).exitCode, jobExit::done);
    EXPECT_EQ(contentsOf(elsewhere.path() + "Job"), copied);
    EXPECT_EQ(run({"backup", "--to", data.path() + "../Beside"}).exitCode, jobExit::done);
    EXPECT_EQ(fakes.profile.read("DefBkDir"), "Job") << "no drive names the folder";
}

TEST_F(UnattendedJobsTest, ABackupThatCannotBeMadeWholeDeletesNothingAndLeavesTheDateAlone)
{
    const std::string target = elsewhere.path() + "Nightly/";
    ASSERT_EQ(run({"backup", "--to", target}).exitCode, jobExit::done);
    fakes.profile.values.erase("lastbkdate");
    const auto former = contentsOf(target);
    const std::uint64_t needed = scanForBackup(DataFolder(data.path(), fakes.ui), {}).totalBytes;
    std::uint64_t formerBytes = 0;
    for (const auto& [name, bytes] : former)
        formerBytes += bytes.size();

    // The former backup's files make room as they go: the limit on both sides.
    fakes.drives.freeSpace = needed - formerBytes - 1;
    const JobOutcome full = run({"backup", "--to", target});
    EXPECT_EQ(full.exitCode, jobExit::noRoom);
    EXPECT_NE(full.message.find("nothing was deleted"), std::string::npos) << full.message;
    EXPECT_EQ(contentsOf(target), former);
    fakes.drives.freeSpace = needed - formerBytes;
    EXPECT_EQ(run({"backup", "--to", target}).exitCode, jobExit::done);
    fakes.drives.freeSpace.reset();
    fakes.profile.values.erase("lastbkdate");

    fs::create_directory(elsewhere.root() / "Letters");
    std::ofstream(elsewhere.root() / "Letters" / "to the vet.txt") << "Dear Sir";
    EXPECT_EQ(run({"backup", "--to", elsewhere.path() + "Letters"}).exitCode, jobExit::failed);
    EXPECT_EQ(fileBytes(elsewhere.root() / "Letters" / "to the vet.txt"), "Dear Sir");

    EXPECT_EQ(run({"backup", "--to", data.path() + "Inside"}).exitCode, jobExit::usage);
    EXPECT_FALSE(fs::exists(data.root() / "Inside"));
    EXPECT_EQ(run({"backup"}).exitCode, jobExit::usage) << "no backup has been made to a folder";
    EXPECT_EQ(fakes.profile.read("LastBkDate"), "");
}

TEST_F(UnattendedJobsTest, AMissingFolderOrADamagedClientListStopsEveryJobButCheck)
{
    const Lines jobs[] = {{"backup", "--to", elsewhere.path() + "B"},
                          {"export", "emails"},
                          {"account", "--number", "1000", "--pdf", "a.pdf"},
                          {"stats", "--from", "01/01/24", "--to", "31/12/24"}};
    for (Lines job : jobs) {
        job.insert(job.end(), {"--data", elsewhere.path() + "nowhere"});
        EXPECT_EQ(run(job).exitCode, jobExit::dataSetUnusable) << job.front();
    }

    ClientIndex index{};
    readIndex(DataFolder(data.path(), fakes.ui), index);
    index.count.set(index.count.get() + 3);
    ASSERT_TRUE(writeIndex(DataFolder(data.path(), fakes.ui), index));
    const auto before = contentsOf(data.path());
    for (const Lines& job : jobs) {
        const JobOutcome refused = run(job);
        EXPECT_EQ(refused.exitCode, jobExit::dataSetUnusable) << job.front();
        EXPECT_NE(
            refused.message.find("FIDEX.CTL is damaged (3 of the 15 entries named no client)"),
            std::string::npos)
            << refused.message;
    }
    EXPECT_FALSE(fs::exists(elsewhere.root() / "B"));
    EXPECT_TRUE(printer.jobs.empty());
    EXPECT_EQ(contentsOf(data.path()), before);
    EXPECT_EQ(run({"check"}).exitCode, jobExit::damageFound);
}

TEST_F(UnattendedJobsTest, ExportsWriteTheFilesTheProgramsOwnCommandsWrite)
{
    const fs::path addresses = data.root() / "Clientlist.txt";
    const fs::path emails = data.root() / "ClientEmails.txt";
    for (const auto& [style, option] :
         {std::pair{LabelStyle::Plain, "plain"}, std::pair{LabelStyle::CatCareOf, "cats"}}) {
        testing::ScriptedExportQuestions questions;
        questions.styles = {style};
        fileClientAddresses(*program(), questions);
        const std::string written = fileBytes(addresses);
        fs::remove(addresses);
        EXPECT_EQ(run({"export", "addresses", "--style", option}).exitCode, jobExit::done);
        EXPECT_EQ(fileBytes(addresses), written) << option;
        EXPECT_EQ(results, Lines{"12 names and addresses written to " + addresses.string()});
    }
    testing::ScriptedExportQuestions questions;
    fileClientEmails(*program(), questions);
    const std::string written = fileBytes(emails);
    fs::remove(emails);
    EXPECT_EQ(run({"export", "emails"}).exitCode, jobExit::done);
    EXPECT_EQ(fileBytes(emails), written);
}

TEST_F(UnattendedJobsTest, AFiledAccountPrintsAsViewPastAccountsReprintsIt)
{
    std::unique_ptr<Session> session = program();
    const IndexEntry& first = session->index.entries[1];
    ClientRecord client{};
    readClientRecord(session->folder, first.code.str(), client);
    AccountBook book{};
    readAccountBook(session->folder, first.code.str(), book);
    const std::string number = std::to_string(book.accounts[3].receiptNumber.get());

    testing::ScriptedAccountQuestions questions;
    questions.choose(client.surname.str());
    questions.listChoices = {PastAccountChoice{PastAccountAction::Reprint, 3}, std::nullopt};
    viewPastAccounts(*session, questions);
    ASSERT_EQ(printer.pages.size(), 1u);

    EXPECT_EQ(run({"account", "--number", number, "--pdf", "a.pdf"}).exitCode, jobExit::done);
    ASSERT_EQ(printer.pages.size(), 2u);
    EXPECT_EQ(printer.pages[1], printer.pages[0]);
    EXPECT_EQ(run({"account", "--number", number, "--pdf", "a.pdf", "--copy"}).exitCode,
              jobExit::done);
    EXPECT_EQ(printer.jobs.back().title, "Account Copy");
    EXPECT_NE(printer.pages.back(), printer.pages[0]);

    // The same number in a second client's book: --client chooses.
    ASSERT_TRUE(writeAccountBook(session->folder, "ZZCOPY", book));
    const JobOutcome both = run({"account", "--number", number, "--pdf", "a.pdf"});
    EXPECT_EQ(both.exitCode, jobExit::failed);
    EXPECT_NE(both.message.find(first.code.str() + ", ZZCOPY: choose one with --client CODE"),
              std::string::npos)
        << both.message;
    EXPECT_EQ(run({"account", "--number", number, "--pdf", "a.pdf", "--client", "zzcopy"}).exitCode,
              jobExit::done);
    EXPECT_EQ(run({"account", "--number", "99", "--pdf", "a.pdf"}).message,
              "no account numbered 99 is filed");
}

TEST_F(UnattendedJobsTest, StatsAreTheMonthsOfThePeriodAsCsv)
{
    const DataFolder folder(data.path(), fakes.ui);
    // Days, cats, gross board, discount, extras and credit of two accounts.
    AccountBook book{};
    const auto file = [&book](int slot, const char* in, std::array<float, 6> money) {
        AccountRecord& account = book.accounts[slot];
        account.receiptNumber.set(500 + slot);
        account.arrivalDate.set(in);
        account.daysCharged.set(static_cast<int>(money[0]));
        account.catsBoarded.set(static_cast<int>(money[1]));
        account.grossBoard.set(money[2]);
        account.discountAmount.set(money[3]);
        account.extrasAmount.set(money[4]);
        account.creditAmount.set(money[5]);
        account.finalBalance.set(money[2] - money[3] + money[4] - money[5]);
    };
    file(8, "28/02/25", {3, 2, 60.0f, 6.0f, 5.5f, 10.0f});
    file(9, "01/03/25", {10, 1, 100.0f, 0, 0, 0});
    // The other clients' books hold nothing in 2025.
    for (const std::string& name : folder.namesWithExtension(".ACR"))
        fs::remove(data.root() / name);
    ClientIndex index{};
    readIndex(folder, index);
    ASSERT_TRUE(writeAccountBook(folder, index.entries[1].code.str(), book));

    EXPECT_EQ(run({"stats", "--from", "15/02/25", "--to", "31/03/2025"}).exitCode, jobExit::done);
    EXPECT_EQ(results,
              (Lines{"Month,Days in period,Accounts,Board,Discounts,Extras,Credits,Balances,"
                     "Cat-days,Average cats per day",
                     "2025-02,14,1,60.00,6.00,5.50,10.00,49.50,6,0.43",
                     "2025-03,31,1,100.00,0.00,0.00,0.00,100.00,10,0.32",
                     "Total,45,2,160.00,6.00,5.50,10.00,149.50,16,0.36"}));

    const JobOutcome backwards = run({"stats", "--from", "31/03/25", "--to", "15/02/25"});
    EXPECT_EQ(backwards.exitCode, jobExit::usage);
    EXPECT_TRUE(results.empty());
}

// Each kind of damage the program finds and repairs when it reads the data
// set; check reports it with the file it is in and changes nothing.
TEST_F(UnattendedJobsTest, CheckFindsEachKindOfDamageAndChangesNothing)
{
    EXPECT_EQ(run({"check"}).exitCode, jobExit::done);
    EXPECT_TRUE(results.empty()) << results.front();

    using Damage = std::function<void(const DataFolder&, ClientIndex&)>;
    const auto grow = [](const std::string& name, std::size_t size) {
        return [name, size](const DataFolder& folder, ClientIndex& index) {
            const std::string file = index.entries[2].code.str() + name;
            fs::resize_file(nativePath(folder.fileName(file)), size);
        };
    };
    struct Case {
        const char* what;
        Damage damage;
        std::string expected; // the start of the line, after the file's name where it varies
    };
    const std::vector<Case> cases = {
        {"count", [](auto&, ClientIndex& index) { index.count.set(20); },
         "FIDEX.CTL: 8 of the 20 entries named no client"},
        {"repeat", [](auto&, ClientIndex& index) { index.entries[3].code = index.entries[2].code; },
         "FIDEX.CTL: entry 3 ("},
        {"format", [](auto&, ClientIndex& index) { index.formatStamp.set(7); },
         "FIDEX.CTL: written in a format this version does not know (stamp 7)"},
        {"unsafe", [](auto&, ClientIndex& index) { index.entries[4].code.set("../etc"); },
         "FIDEX.CTL: entry 4 ("},
        {"no record",
         [](const DataFolder& folder, ClientIndex& index) {
             folder.remove(index.entries[5].code.str() + ".DAT");
         },
         ".DAT: missing: "},
        {"too long", grow(".ACR", 2 * sizeof(AccountBook) + 2),
         ".ACR: 18130 bytes long, far longer than the 9064 bytes"},
        {"crash",
         [](const DataFolder& folder, auto&) {
             std::ofstream(nativePath(folder.fileName("NRATES.RTS.new~"))) << "half";
         },
         "NRATES.RTS.new~: left half written by a crash"},
        {"no cattery", [](const DataFolder& folder, auto&) { folder.remove("NESTAB.DAT"); },
         "NESTAB.DAT: missing"},
        {"past list",
         [](const DataFolder& folder, auto&) {
             ClientIndex past{};
             past.count.set(-4);
             ASSERT_TRUE(folder.write("OFIDEX.CTL", past));
         },
         "OFIDEX.CTL: the number of clients was -4"},
    };
    for (const Case& c : cases) {
        testing::TempFolder fresh;
        makeDataSet(fresh.path());
        const DataFolder folder(fresh.path(), fakes.ui);
        ClientIndex index{};
        readIndex(folder, index);
        c.damage(folder, index);
        ASSERT_TRUE(writeIndex(folder, index));
        const auto before = contentsOf(fresh.path());
        EXPECT_EQ(run({"check"}).exitCode, jobExit::damageFound) << c.what;
        ASSERT_EQ(results.size(), 1u) << c.what << ": " << (results.empty() ? "" : results[0]);
        EXPECT_NE(results[0].find(c.expected), std::string::npos) << results[0];
        EXPECT_EQ(contentsOf(fresh.path()), before) << c.what;
    }

    // Twice the block and one byte more is still read as it is.
    testing::TempFolder edge;
    makeDataSet(edge.path());
    ClientIndex index{};
    readIndex(DataFolder(edge.path(), fakes.ui), index);
    grow(".ACR", 2 * sizeof(AccountBook) + 1)(DataFolder(edge.path(), fakes.ui), index);
    EXPECT_EQ(run({"check"}).exitCode, jobExit::done);
}

} // namespace
} // namespace purrlodge
