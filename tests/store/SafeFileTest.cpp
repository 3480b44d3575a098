#include "store/SafeFile.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

#include "support/Bytes.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

namespace fs = std::filesystem;
using testing::fileBytes;

// The real disc, except that one step fails for want of space.
struct FailingFiles : FileOperations {
    enum class Step { Write, Flush, Rename } failing;
    fs::path renamedFrom;

    explicit FailingFiles(Step step) : failing(step) {}
    bool fails(Step step, std::error_code& error) const
    {
        if (step == failing)
            error = std::make_error_code(std::errc::no_space_on_device);
        return step == failing;
    }
    std::size_t write(std::FILE* stream, std::string_view bytes, std::error_code& error) override
    {
        return fails(Step::Write, error) ? 0 : FileOperations::write(stream, bytes, error);
    }
    bool flushToDisc(std::FILE* stream, std::error_code& error) override
    {
        return !fails(Step::Flush, error) && FileOperations::flushToDisc(stream, error);
    }
    bool rename(const fs::path& from, const fs::path& to, std::error_code& error) override
    {
        renamedFrom = from;
        return !fails(Step::Rename, error) && FileOperations::rename(from, to, error);
    }
};

class SafeFileTest : public ::testing::Test {
protected:
    testing::TempFolder folder;
    const fs::path file = folder.root() / "HEARTH.INI";
    std::string reason;
};

TEST_F(SafeFileTest, AFailureLeavesTheOldFileAndNoTemporaryOneAndSaysWhy)
{
    const std::string old = "[Purrlodge]\nClkTyp=C\n";
    ASSERT_TRUE(replaceFileContents(file, old, reason)) << reason; // a new file
    using Step = FailingFiles::Step;
    for (const Step step : {Step::Write, Step::Flush, Step::Rename}) {
        SCOPED_TRACE(static_cast<int>(step));
        FailingFiles files(step);
        reason.clear();
        EXPECT_FALSE(replaceFileContents(file, "[Purrlodge]\nClkTyp=D\n", reason, files));
        EXPECT_EQ(reason, std::make_error_code(std::errc::no_space_on_device).message());
        EXPECT_EQ(fileBytes(file), old);
        const fs::directory_iterator left(folder.root()); // and no temporary file
        EXPECT_EQ(std::distance(begin(left), end(left)), 1);
        // Beside the file, so that the rename stays on one disc.
        EXPECT_TRUE(step != Step::Rename || files.renamedFrom.parent_path() == folder.root());
    }
}

#ifndef _WIN32 // links and permission bits are POSIX
TEST_F(SafeFileTest, KeepsThePermissionsAndWritesThroughLinks)
{
    // A mode that no umask gives a new file, so only a kept one passes.
    const auto mode = fs::perms::owner_read | fs::perms::owner_write | fs::perms::others_read;
    std::ofstream(file) << "old";
    fs::permissions(file, mode);
    ASSERT_TRUE(replaceFileContents(file, "new", reason)) << reason;
    EXPECT_EQ(fs::status(file).permissions(), mode);

    // One link to that file, one to a file not made yet.
    const fs::path links = folder.root() / "links";
    fs::create_directory(links);
    fs::create_symlink("../HEARTH.INI", links / "HEARTH.INI");
    fs::create_symlink("../LATER.INI", links / "LATER.INI");
    ASSERT_TRUE(replaceFileContents(links / "HEARTH.INI", "through", reason)) << reason;
    ASSERT_TRUE(replaceFileContents(links / "LATER.INI", "made", reason)) << reason;
    EXPECT_TRUE(fs::is_symlink(links / "HEARTH.INI") && fs::is_symlink(links / "LATER.INI"));
    EXPECT_EQ(fileBytes(file), "through");
    EXPECT_EQ(fileBytes(folder.root() / "LATER.INI"), "made");
    EXPECT_EQ(fs::status(file).permissions(), mode);
}
#endif

} // namespace
} // namespace purrlodge
