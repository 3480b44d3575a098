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
                           ";Picdets=commented\n"
                           "# CurrentDir=commented\n"
                           " \tPicdets =\t4 $ 12 \t\n"
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
    for (const char* key : {"x", ";Picdets", "# CurrentDir"}) // another section's; commented
        EXPECT_EQ(ini.value("Purrlodge", key), std::nullopt) << key;
    EXPECT_EQ(ini.value("Missing", "x"), std::nullopt);
}

TEST(IniFileTest, ChangesAValueInPlaceAndAppendsNewKeysToTheirSectionAndNewSectionsToTheEnd)
{
    IniFile ini = IniFile::parse(sample);
    ini.setValue("Purrlodge", "PicDets", "5 $ 13");
    ini.setValue("purrlodge", "CURRENTDIR", "D:\\New\\");
    ini.setValue("Purrlodge", "ClkTyp", "D");
    ini.setValue("Last", "y", "2");
    ini.setValue("New", "musnotes", "N");
    std::string expected = sample;
    expected.replace(expected.find("4 $ 12"), 6, "5 $ 13");
    expected.replace(expected.find("C:\\Cats\\Data=1\\"), 15, "D:\\New\\");
    expected.insert(expected.find("\n\n[Last]") + 1, "ClkTyp=D\n");
    expected += "\ny=2\n\n[New]\nmusnotes=N\n";
    EXPECT_EQ(ini.text(), expected);
}

TEST(IniFileTest, OfTwoEqualSectionsOrKeysTheFirstCountsAndEachLineKeepsItsEnding)
{
    IniFile ini = IniFile::parse("[Purrlodge]\nA=first\na=second\n[PURRLODGE]\nA=late\nB=late\n");
    EXPECT_EQ(ini.value("purrlodge", "A"), "first");
    EXPECT_EQ(ini.value("Purrlodge", "B"), std::nullopt);
    ini.setValue("Purrlodge", "a", "1");
    ini.setValue("Purrlodge", "B", "2");
    EXPECT_EQ(ini.text(), "[Purrlodge]\nA=1\na=second\nB=2\n[PURRLODGE]\nA=late\nB=late\n");

    // New lines end as the first line does; a value is cut at a line break.
    ini = IniFile::parse("[Purrlodge]\r\nA=1\n");
    ini.setValue("Purrlodge", "B", "2\r\n[Injected]");
    EXPECT_EQ(ini.text(), "[Purrlodge]\r\nA=1\nB=2\r\n");
}

TEST(IniFileTest, ReadsMarkedEncodingsAndEveryLineEndAndWritesThemBackAsTheyWere)
{
    // "Caf\u00e9" in each encoding the file may come in; the section is seen in all.
    std::string utf16le = "\xFF\xFE";
    std::string utf16be = "\xFE\xFF";
    for (const char c : std::string("[Purrlodge]\r\nDir=Caf\xE9\r\n")) {
        utf16le += std::string{c, '\0'};
        utf16be += std::string{'\0', c};
    }
    for (const std::string& file : {std::string("\xEF\xBB\xBF[Purrlodge]\nDir=Caf\xC3\xA9\n"),
                                    std::string("[Purrlodge]\rDir=Caf\xE9\r"),
                                    std::string("[Purrlodge]\r\nDir=Caf\xE9"), utf16le, utf16be}) {
        SCOPED_TRACE(file);
        IniFile ini = IniFile::parse(file);
        EXPECT_EQ(ini.value("Purrlodge", "Dir"), "Caf\xE9");
        EXPECT_EQ(ini.text(), file) << "unchanged, the file comes back byte for byte";
        ini.setValue("Purrlodge", "New", "\xA3");
        const IniFile again = IniFile::parse(ini.text());
        EXPECT_EQ(again.value("Purrlodge", "Dir"), "Caf\xE9");
        EXPECT_EQ(again.value("Purrlodge", "New"), "\xA3");
        EXPECT_EQ(ini.text().substr(0, 2), file.substr(0, 2)) << "the mark is kept";
    }
    // A lone CR ends a line and new lines follow it.
    IniFile cr = IniFile::parse("[Purrlodge]\rA=1\r");
    cr.setValue("Purrlodge", "B", "2");
    EXPECT_EQ(cr.text(), "[Purrlodge]\rA=1\rB=2\r");
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
    EXPECT_TRUE(settings.write("PicDets", "3 $ 9"));
    EXPECT_EQ(fileBytes(file), "[Purrlodge]\nPicDets=3 $ 9\n");

    // Each read is cut to the buffer the program gives it; a second profile on
    // the file sees the first one's writes and keeps them.
    const std::string longFolder = "/" + std::string(99, 'f') + "/";
    IniProfile other = profile(file);
    EXPECT_TRUE(other.write("CurrentDir", longFolder));
    EXPECT_TRUE(settings.write("CurrentDrive", "C:\\Cats"));
    EXPECT_EQ(settings.read("CurrentDir"), longFolder.substr(0, 80));
    EXPECT_EQ(other.read("currentdrive"), "C:\\C");
    EXPECT_EQ(other.read("PicDets"), "3 $ 9");
    EXPECT_TRUE(errors.empty());
}

TEST_F(IniProfileTest, AFileThatCannotBeReadOrReplacedIsToldAndLeftAsItIs)
{
    const auto file = folder.root() / "HEARTH.INI";
    EXPECT_EQ(profile(file).unreadable(), std::nullopt) << "not made yet: empty settings";
    // A folder where the file should be: it can be neither read nor replaced.
    std::filesystem::create_directory(file);
    const std::optional<std::string> reason = profile(file).unreadable();
    ASSERT_TRUE(reason);
    EXPECT_EQ(reason->rfind(file.string() + ": ", 0), 0u) << *reason;
    EXPECT_FALSE(profile(file).write("CurrentDir", "x"));
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_EQ(errors[0].rfind(file.string() + ": ", 0), 0u) << "the file, then a reason";
    EXPECT_GT(errors[0].size(), file.string().size() + 2) << errors[0];
    EXPECT_TRUE(std::filesystem::is_directory(file));
    // Saved straight over the folder, the file gets as far as the rename.
    std::string why;
    EXPECT_FALSE(IniFile::parse("[Purrlodge]\n").save(file, why));
    EXPECT_FALSE(why.empty());
    std::filesystem::remove(file);

    // Far too long for settings: refused without reading it into memory.
    std::ofstream(file, std::ios::binary) << std::string(IniFile::largestFile + 1, ';');
    EXPECT_TRUE(profile(file).unreadable());
    EXPECT_FALSE(profile(file).write("CurrentDir", "x"));
    EXPECT_EQ(std::filesystem::file_size(file), IniFile::largestFile + 1);
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
