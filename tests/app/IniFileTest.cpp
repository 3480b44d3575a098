#include "app/IniFile.h"

#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "app/IniProfile.h"
#include "app/SettingsLocation.h"
#include "support/Bytes.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

using testing::fileBytes;

const std::string sample = "; settings\n"
                           "[Other]\n"
                           "CurrentDir=elsewhere\n"
                           "\n"
                           "[PURRLODGE]\n"
                           "  Picdets = 4 $ 12  \n"
                           "CurrentDir=C:\\Cats\\Data=1\\\n"
                           "Owner=Mrs \xA3 \"Q\"\n"
                           "\n"
                           "[Last]\n"
                           "x=1";

TEST(IniFileTest, LooksUpWithoutRegardToCaseAndKeepsValuesRaw)
{
    const IniFile ini = IniFile::parse(sample);
    EXPECT_EQ(ini.value("purrlodge", "PicDets"), "4 $ 12");
    EXPECT_EQ(ini.value("Purrlodge", "currentdir"), "C:\\Cats\\Data=1\\");
    EXPECT_EQ(ini.value("Purrlodge", "Owner"), "Mrs \xA3 \"Q\"");
    EXPECT_EQ(ini.value("other", "CurrentDir"), "elsewhere");
    EXPECT_EQ(ini.value("Purrlodge", "x"), std::nullopt);
    EXPECT_EQ(ini.value("Purrlodge", "; settings"), std::nullopt);
    EXPECT_EQ(ini.value("Missing", "x"), std::nullopt);
}

TEST(IniFileTest, ChangesOnlyTheValueOfAnExistingKey)
{
    IniFile ini = IniFile::parse(sample);
    ini.setValue("Purrlodge", "PicDets", "5 $ 13");
    ini.setValue("purrlodge", "CURRENTDIR", "D:\\New\\");
    std::string expected = sample;
    expected.replace(expected.find("4 $ 12"), 6, "5 $ 13");
    expected.replace(expected.find("C:\\Cats\\Data=1\\"), 15, "D:\\New\\");
    EXPECT_EQ(ini.text(), expected);
}

TEST(IniFileTest, AppendsNewKeysToTheirSectionAndNewSectionsToTheEnd)
{
    IniFile ini = IniFile::parse(sample);
    ini.setValue("Purrlodge", "ClkTyp", "D");
    ini.setValue("Last", "y", "2");
    ini.setValue("New", "musnotes", "N");
    std::string expected = sample;
    expected.insert(expected.find("\n\n[Last]") + 1, "ClkTyp=D\n");
    expected += "\ny=2\n\n[New]\nmusnotes=N\n";
    EXPECT_EQ(ini.text(), expected);
}

TEST(IniFileTest, KeepsEachLineEndingAndWritesNewLinesInTheFilesOwn)
{
    IniFile ini = IniFile::parse("[Purrlodge]\r\nA=1\r\n");
    ini.setValue("Purrlodge", "B", "2\r\n[Injected]");
    EXPECT_EQ(ini.text(), "[Purrlodge]\r\nA=1\r\nB=2\r\n");

    IniFile fresh;
    fresh.setValue("Purrlodge", "A", "1");
    EXPECT_EQ(fresh.text(), "[Purrlodge]\nA=1\n");
}

class IniProfileTest : public ::testing::Test {
protected:
    IniProfile profile(const std::filesystem::path& file)
    {
        return IniProfile(file, [this](const std::string& name, const std::string& reason) {
            errors.push_back(name + ": " + reason);
        });
    }

    testing::TempFolder folder;
    std::vector<std::string> errors;
};

TEST_F(IniProfileTest, TheFirstWriteMakesTheFileAndItsFolderAndReadsAreCut)
{
    const auto file = folder.root() / "config" / "deeper" / "HEARTH.INI";
    IniProfile settings = profile(file);
    EXPECT_EQ(settings.read("CurrentDir"), "");
    settings.write("PicDets", "3 $ 9");
    EXPECT_EQ(fileBytes(file), "[Purrlodge]\nPicDets=3 $ 9\n");
    EXPECT_EQ(settings.read("Picdets"), "3 $ 9");

    // Each read is cut to the buffer the program gives it.
    const std::string longFolder = "/" + std::string(99, 'f') + "/";
    settings.write("CurrentDir", longFolder);
    settings.write("CurrentDrive", "C:\\Cats");
    EXPECT_EQ(settings.read("CurrentDir"), longFolder.substr(0, 80));
    EXPECT_EQ(settings.read("currentdrive"), "C:\\C");
    EXPECT_TRUE(errors.empty());
}

TEST_F(IniProfileTest, TwoProfilesOnOneFileSeeEachOthersWritesAndCrlfIsKept)
{
    const auto file = folder.root() / "HEARTH.INI";
    std::ofstream(file, std::ios::binary) << "[Purrlodge]\r\nClkTyp=C\r\n";
    IniProfile first = profile(file);
    IniProfile second = profile(file);
    EXPECT_EQ(second.read("ClkTyp"), "C");
    first.write("ClkTyp", "D");
    second.write("RemStatus", "0");
    EXPECT_EQ(second.read("clktyp"), "D");
    EXPECT_EQ(first.read("RemStatus"), "0");
    EXPECT_EQ(fileBytes(file), "[Purrlodge]\r\nClkTyp=D\r\nRemStatus=0\r\n");
}

TEST_F(IniProfileTest, AFailedWriteIsReportedAndChangesNothing)
{
    // A folder where the file should be: it can be neither read nor replaced.
    const auto blocked = folder.root() / "HEARTH.INI";
    std::filesystem::create_directory(blocked);
    profile(blocked).write("CurrentDir", "x");
    // A file where its folder should be.
    std::ofstream(folder.root() / "plain") << "keep";
    profile(folder.root() / "plain" / "HEARTH.INI").write("CurrentDir", "x");

    // Each report names the file, then a reason.
    const std::filesystem::path files[] = {blocked, folder.root() / "plain" / "HEARTH.INI"};
    ASSERT_EQ(errors.size(), 2u);
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_EQ(errors[i].rfind(files[i].string() + ": ", 0), 0u) << errors[i];
        EXPECT_GT(errors[i].size(), files[i].string().size() + 2) << errors[i];
    }
    EXPECT_TRUE(std::filesystem::is_directory(blocked));
    EXPECT_EQ(fileBytes(folder.root() / "plain"), "keep");
}

TEST(SettingsLocationTest, PrefersAnAbsoluteXdgFolderThenHome)
{
    EXPECT_EQ(configurationFolder("/x/conf", "/home/a"), std::filesystem::path("/x/conf"));
    EXPECT_EQ(configurationFolder("relative", "/home/a"), std::filesystem::path("/home/a/.config"));
    EXPECT_EQ(configurationFolder("", "/home/a"), std::filesystem::path("/home/a/.config"));
    EXPECT_EQ(configurationFolder("", ""), std::filesystem::path());
}

} // namespace
} // namespace purrlodge
