#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace purrlodge {

// A settings file in the INI layout, held as its lines so that a change
// touches only the line it must: every other line, comment, blank line and the
// order stay byte for byte, and each line keeps its own ending (CR LF, LF or
// a lone CR). A file written by an editor in UTF-8 with a byte-order mark or
// in UTF-16 (either byte order, with its mark) is read as its characters and
// written back in the same encoding with its mark; a file without a mark is
// Windows-1252 bytes, as the program's own text is.
//
// The rules are those of the classic profile functions: section and key names
// ignore ASCII case, values are raw bytes (no quoting, no escaping; backslashes
// and '=' stay as they are) with the blanks around them trimmed on reading.
// Lines starting with ';' or '#' are comments. When a section or key appears
// twice, the first one counts.
class IniFile {
public:
    IniFile() = default;

    // Splits the bytes of a file into lines.
    [[nodiscard]] static IniFile parse(std::string_view bytes);

    // The longest settings file read: a real one is a few hundred bytes, and a
    // damaged one must not take the memory of the machine.
    static constexpr std::uintmax_t largestFile = 1024 * 1024;

    // Reads the file at path. A file that does not exist reads as an empty one;
    // any other failure (a file larger than largestFile among them) gives
    // nothing and puts the reason in `reason`.
    [[nodiscard]] static std::optional<IniFile> load(const std::filesystem::path& file,
                                                     std::string& reason);

    // The bytes of the file as it stands now, in the file's encoding.
    [[nodiscard]] std::string text() const;

    // The value of key in section, without the blanks around it; nothing when
    // the section or the key is missing.
    [[nodiscard]] std::optional<std::string> value(std::string_view section,
                                                   std::string_view key) const;

    // Sets key in section. An existing key keeps its line, its position and its
    // spelling in the file (so writing "PicDets" over "Picdets" leaves the name
    // "Picdets"); only the value after the '=' changes. A new key goes after the
    // last filled line of its section, a new section at the end of the file.
    // New lines end as the file's first line does, LF in a new file. A value is
    // cut at a line break, which could not be read back.
    void setValue(std::string_view section, std::string_view key, std::string_view value);

    // Writes the file crash-safely: a temporary file beside it, flushed to the
    // disk, then renamed over it; missing folders above it are made. Returns
    // false with the reason in `reason` when that fails; the old file is then
    // left as it was.
    [[nodiscard]] bool save(const std::filesystem::path& file, std::string& reason) const;

private:
    enum class Encoding { Windows1252, Utf8, Utf16LE, Utf16BE };

    struct Line {
        std::string content; // without its ending, in Windows-1252
        std::string ending;  // "\r\n", "\n", "\r", or "" for a last line without one
    };

    [[nodiscard]] std::optional<std::size_t> findSection(std::string_view section) const;
    [[nodiscard]] std::size_t sectionEnd(std::size_t header) const;
    void insertLine(std::size_t position, std::string content);

    std::vector<Line> lines_;
    std::string newline_ = "\n";
    Encoding encoding_ = Encoding::Windows1252;
};

} // namespace purrlodge
