#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "ports/Profile.h"

namespace purrlodge {

// The program's section in the settings file.
inline constexpr std::string_view profileSection = "Purrlodge";

// Settings read and written one key at a time in one section of an INI file,
// on the rules of the classic profile functions (see IniFile).
//
// Every read loads the file afresh and every write loads, changes and saves
// it, so two profiles on one file always see each other's writes. The file is
// a few hundred bytes and is touched a handful of times per run.
class IniProfile : public Profile {
public:
    // Called when a write fails, with the file's name and the reason; the gui
    // shows it in a "File Error" message box. A write is never lost silently.
    using WriteErrorHandler =
        std::function<void(const std::string& fileName, const std::string& reason)>;

    IniProfile(std::filesystem::path file, WriteErrorHandler onWriteError,
               std::string section = std::string(profileSection));

    // The value with the blanks around it trimmed, "" when missing or when
    // the file cannot be read. Values are cut as the fixed read buffers cut
    // them: 80 bytes, 4 for CurrentDrive.
    [[nodiscard]] std::string read(std::string_view key) const override;

    // Sets the key, keeping every other line of the file as it was. On failure
    // the file is left unchanged, the error handler is told and false returned.
    [[nodiscard]] bool write(std::string_view key, std::string_view value) override;

    [[nodiscard]] std::optional<std::string> unreadable() const override;

    [[nodiscard]] const std::filesystem::path& file() const { return file_; }

private:
    std::filesystem::path file_;
    WriteErrorHandler onWriteError_;
    std::string section_;
};

} // namespace purrlodge
