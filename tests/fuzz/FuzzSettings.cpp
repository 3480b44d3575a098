// Bytes as the settings file (HEARTH.INI). In memory: the file's text is its
// bytes (unless it has a byte-order mark), values read the same from the file
// and from its text parsed again, before and after values are set, and a value
// set reads back as set. On disc: the program's own settings readers (picture
// rotation, backup alert, drive letters, the window caption) over the file
// through the profile.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "app/BackupAlert.h"
#include "app/DataFolderSetup.h"
#include "app/IniFile.h"
#include "app/IniProfile.h"
#include "app/PictureRotation.h"
#include "app/ProfileDrives.h"
#include "fuzz/FuzzSupport.h"
#include "store/Windows1252.h"
#include "support/FakePorts.h"

namespace {

using namespace purrlodge;
using Name = std::pair<std::string, std::string>; // section, key

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";

void require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "Settings file: %s\n", what);
    std::abort();
}

// The program's own keys, and the key of the first line with a '=' under the
// section header before it, as written in the text. Names with a line break
// never come from the program, so none is made up here.
std::vector<Name> namesToRead(std::string_view text)
{
    std::vector<Name> names;
    for (const char* key : {"CurrentDir", "ProgDir", "Picdets", "LastBkDate", "RemStatus",
                            "LastWarn", "ClkTyp", "musnotes", "CurrentDrive", "DriveA"})
        names.emplace_back(std::string(profileSection), key);
    std::string section(profileSection);
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find_first_of("\r\n"));
        text.remove_prefix(std::min(text.size(), line.size() + 1));
        if (!line.empty() && line.front() == '[') {
            section = std::string(line.substr(1, line.find(']') - 1));
        } else if (const std::size_t equals = line.find('='); equals != std::string_view::npos) {
            names.emplace_back(section, std::string(line.substr(0, equals)));
            break;
        }
    }
    return names;
}

void requireSameOnReading(const IniFile& file, const std::vector<Name>& names)
{
    const std::string text = file.text();
    const IniFile again = IniFile::parse(text);
    require(again.text() == text, "the text of the text parsed again differs");
    for (const auto& [section, key] : names)
        require(file.value(section, key) == again.value(section, key),
                "a value reads differently from the file's text parsed again");
}

// The value as it reads back: cut at a line break, without surrounding blanks.
std::string asReadBack(std::string_view value)
{
    value = value.substr(0, value.find_first_of("\r\n"));
    const std::size_t first = value.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return {};
    return std::string(value.substr(first, value.find_last_not_of(" \t") - first + 1));
}

void useProfile(const fuzzing::FuzzFolder& temp, std::string_view bytes)
{
    const std::string fileName = temp.path() + "HEARTH.INI";
    temp.put("HEARTH.INI", bytes);
    testing::FakeUi ui;
    testing::FakeClock clock;
    clock.setUtc(2024, 6, 15);
    IniProfile profile(fileName, {});

    static_cast<void>(rotatePicture(profile, 15));
    static_cast<void>(rotatePicture(profile, 3));
    static_cast<void>(runBackupAlert(ui, profile, clock));
    const ProfileDrives drives(profile, "/home/cattery");
    for (const char letter : {'A', 'c', 'Z'})
        static_cast<void>(drives.rootOf(letter));
    const std::string currentDir = profile.read("CurrentDir");
    static_cast<void>(windowCaption(currentDir));
    static_cast<void>(dataFolderFromTyped(currentDir));
    static_cast<void>(profile.read("CurrentDrive"));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static fuzzing::FuzzFolder temp;
    temp.reset();
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);

    // A file without a byte-order mark is kept byte for byte; a marked one is
    // decoded, and what it cannot decode comes back as '?'.
    IniFile file = IniFile::parse(bytes);
    const bool utf8 = bytes.starts_with(utf8Mark);
    const bool marked = utf8 || bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
    require(marked || file.text() == bytes, "the text is not the bytes parsed");
    const std::vector<Name> names =
        namesToRead(utf8 ? windows1252FromUtf8(bytes.substr(utf8Mark.size())) : std::string(bytes));
    requireSameOnReading(file, names);

    // Values the program writes, one taken from the file itself, then a value
    // in the first section and key the file names and in a new section.
    const std::string typed = file.value(names.back().first, names.back().second).value_or("C:\\");
    const std::vector<std::pair<std::string_view, std::string>> writes = {
        {"CurrentDir", typed}, {"PicDets", "4 $ 15"}, {"LastWarn", "1718452800"}};
    for (const auto& [key, value] : writes) {
        file.setValue(profileSection, key, value);
        require(file.value(profileSection, key) == asReadBack(value), "a value set reads back");
        requireSameOnReading(file, names);
    }
    file.setValue(names.back().first, names.back().second, " new value ");
    file.setValue("Added", "Key", "value\r\nnext");
    requireSameOnReading(file, names);
    require(file.value("Added", "Key") == "value", "a new section's value reads back");

    useProfile(temp, bytes);
    return 0;
}
