#include <chrono>
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <random>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>

#include "ports/Ui.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

namespace fs = std::filesystem;

// Starts the client writer on the folder; its process id.
pid_t startWriter(const std::string& folder)
{
    const std::string program = PURRLODGE_CLIENT_WRITER;
    char* const arguments[] = {const_cast<char*>(program.c_str()),
                               const_cast<char*>(folder.c_str()), nullptr};
    pid_t pid = 0;
    EXPECT_EQ(posix_spawn(&pid, program.c_str(), nullptr, nullptr, arguments, environ), 0);
    return pid;
}

// Checks that every file is whole and every index entry names a record that
// holds its code. Returns the number of temporary files a kill left.
int checkDataSet(const DataFolder& folder, int kill)
{
    SCOPED_TRACE("after kill " + std::to_string(kill));
    int temporary = 0;
    for (const auto& file : fs::directory_iterator(folder.path())) {
        const std::string name = file.path().filename().string();
        if (name.ends_with(".new~")) {
            ++temporary;
            continue;
        }
        const std::uintmax_t size = file.file_size();
        if (name.ends_with(".DAT"))
            EXPECT_EQ(size, sizeof(ClientRecord)) << name;
        else if (name == "FIDEX.CTL")
            EXPECT_EQ(size, sizeof(ClientIndex)) << name;
        else if (name != "OFIDEX.CTL" && !name.ends_with(".XC2") && !name.ends_with(".TXI"))
            ADD_FAILURE() << "unexpected file " << name;
    }
    ClientIndex index{};
    EXPECT_TRUE(readIndex(folder, index));
    EXPECT_GE(index.count.get(), 0);
    EXPECT_LE(index.count.get(), maxClients);
    for (int entry = 1; entry <= index.usedCount(); ++entry) {
        const std::string code = index.entries[entry].code.str();
        ClientRecord client{};
        EXPECT_TRUE(readClientRecord(folder, code, client)) << "entry " << entry << ": " << code;
        EXPECT_EQ(client.code.str(), code);
    }
    return temporary;
}

TEST(CrashTest, KillingTheWriterAtAnyMomentLeavesWholeFilesAndNoEntryWithoutItsRecord)
{
    testing::TempFolder temp;
    testing::FakeUi ui;
    const DataFolder folder(temp.path(), ui);
    ASSERT_TRUE(writeIndex(folder, ClientIndex{}));

    std::mt19937 random(std::random_device{}());
    // Early kills land in new clients, later ones in edits.
    std::uniform_int_distribution<int> delayMicroseconds(0, 12000);
    constexpr int kills = 300;
    int killsMidWrite = 0;
    for (int kill = 1; kill <= kills && !HasFailure(); ++kill) {
        const pid_t writer = startWriter(temp.path());
        std::this_thread::sleep_for(std::chrono::microseconds(delayMicroseconds(random)));
        ::kill(writer, SIGKILL);
        int status = 0;
        waitpid(writer, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the writer stopped by itself: " << status;
        killsMidWrite += checkDataSet(folder, kill) > 0 ? 1 : 0;
    }
    ClientIndex index{};
    readIndex(folder, index);
    EXPECT_EQ(index.count.get(), 30) << "the writer got as far as its edits";
    RecordProperty("kills_mid_write", killsMidWrite);
    std::printf("%d of %d kills landed in the middle of a write\n", killsMidWrite, kills);
}

} // namespace
} // namespace purrlodge
