#include "app/IniFile.h"

#include <cerrno>
#include <fstream>
#include <iterator>
#include <system_error>

#include "store/SafeFile.h"
#include "store/TextHelpers.h"
#include "store/Windows1252.h"

namespace purrlodge {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view blanks = " \t";

std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    const auto last = text.find_last_not_of(blanks);
    return text.substr(first, last - first + 1);
}

// What one line holds. For a key line, the value is content[valueBegin, valueEnd).
struct LineMeaning {
    enum class Kind { Other, Section, Key };
    Kind kind = Kind::Other;
    std::string_view name;
    std::size_t valueBegin = 0;
    std::size_t valueEnd = 0;
};

LineMeaning meaningOf(std::string_view content)
{
    LineMeaning meaning;
    const std::string_view text = trimmed(content);
    if (text.empty() || text.front() == ';' || text.front() == '#')
        return meaning;
    if (text.front() == '[') {
        // A header without its ']' still names a section, to the end of the line.
        const std::string_view inside = text.substr(1);
        meaning.kind = LineMeaning::Kind::Section;
        meaning.name = trimmed(inside.substr(0, inside.find(']')));
        return meaning;
    }
    const auto equals = content.find('=');
    if (equals == std::string_view::npos)
        return meaning;
    meaning.name = trimmed(content.substr(0, equals));
    if (meaning.name.empty())
        return meaning;
    meaning.kind = LineMeaning::Kind::Key;
    const auto first = content.find_first_not_of(blanks, equals + 1);
    if (first == std::string_view::npos) {
        meaning.valueBegin = meaning.valueEnd = content.size();
    } else {
        meaning.valueBegin = first;
        meaning.valueEnd = content.find_last_not_of(blanks) + 1;
    }
    return meaning;
}

bool isBlank(std::string_view content)
{
    return trimmed(content).empty();
}

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view utf16LEMark = "\xFF\xFE";
constexpr std::string_view utf16BEMark = "\xFE\xFF";

// UTF-16 in the given byte order to Windows-1252; a character 1252 cannot
// hold, a lone surrogate and an odd last byte become '?'.
std::string windows1252FromUtf16(std::string_view bytes, bool bigEndian)
{
    std::string text;
    text.reserve(bytes.size() / 2);
    for (std::size_t i = 0; i < bytes.size(); i += 2) {
        if (i + 1 == bytes.size()) {
            text += '?';
            break;
        }
        const auto first = static_cast<unsigned char>(bytes[i]);
        const auto second = static_cast<unsigned char>(bytes[i + 1]);
        const char32_t unit = bigEndian ? (first << 8U) | second : (second << 8U) | first;
        if (unit >= 0xD800 && unit <= 0xDFFF) {
            // A pair stands for a character beyond 1252 in any case; skip its second half.
            if (unit <= 0xDBFF && i + 3 < bytes.size())
                i += 2;
            text += '?';
            continue;
        }
        text += windows1252Of(unit);
    }
    return text;
}

std::string utf16FromWindows1252(std::string_view text, bool bigEndian)
{
    std::string bytes;
    bytes.reserve(text.size() * 2);
    for (const char c : text) {
        const char32_t unit = unicodeOfWindows1252(static_cast<unsigned char>(c));
        const char high = static_cast<char>((unit >> 8U) & 0xFFU);
        const char low = static_cast<char>(unit & 0xFFU);
        bytes += bigEndian ? high : low;
        bytes += bigEndian ? low : high;
    }
    return bytes;
}

} // namespace

IniFile IniFile::parse(std::string_view bytes)
{
    IniFile file;
    std::string decoded;
    if (bytes.starts_with(utf8Mark)) {
        file.encoding_ = Encoding::Utf8;
        decoded = windows1252FromUtf8(bytes.substr(utf8Mark.size()));
    } else if (bytes.starts_with(utf16LEMark) || bytes.starts_with(utf16BEMark)) {
        const bool bigEndian = bytes.starts_with(utf16BEMark);
        file.encoding_ = bigEndian ? Encoding::Utf16BE : Encoding::Utf16LE;
        decoded = windows1252FromUtf16(bytes.substr(2), bigEndian);
    } else {
        decoded = bytes;
    }
    const std::string_view text = decoded;

    std::size_t start = 0;
    while (start < text.size()) {
        const auto lineEnd = text.find_first_of("\r\n", start);
        if (lineEnd == std::string_view::npos) {
            file.lines_.push_back({std::string(text.substr(start)), {}});
            break;
        }
        const bool crlf = text.substr(lineEnd, 2) == "\r\n";
        const std::size_t endingLength = crlf ? 2 : 1;
        file.lines_.push_back({std::string(text.substr(start, lineEnd - start)),
                               std::string(text.substr(lineEnd, endingLength))});
        start = lineEnd + endingLength;
    }
    if (!file.lines_.empty() && !file.lines_.front().ending.empty())
        file.newline_ = file.lines_.front().ending;
    return file;
}

std::optional<IniFile> IniFile::load(const fs::path& file, std::string& reason)
{
    std::error_code missing;
    if (!fs::exists(file, missing) && !missing)
        return IniFile{};
    if (fs::is_directory(file, missing)) {
        reason = std::make_error_code(std::errc::is_a_directory).message();
        return std::nullopt;
    }
    if (const std::uintmax_t size = fs::file_size(file, missing); !missing && size > largestFile) {
        reason = "the file is " + std::to_string(size) + " bytes long, far too long for settings";
        return std::nullopt;
    }
    std::ifstream stream(file, std::ios::binary);
    std::string bytes;
    if (stream)
        bytes.assign(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
    if (!stream && !stream.eof()) {
        reason = std::generic_category().message(errno != 0 ? errno : EIO);
        return std::nullopt;
    }
    return parse(bytes);
}

std::string IniFile::text() const
{
    std::string text;
    for (const Line& line : lines_)
        text += line.content + line.ending;
    switch (encoding_) {
    case Encoding::Windows1252:
        return text;
    case Encoding::Utf8:
        return std::string(utf8Mark) + utf8FromWindows1252(text);
    case Encoding::Utf16LE:
        return std::string(utf16LEMark) + utf16FromWindows1252(text, false);
    case Encoding::Utf16BE:
        return std::string(utf16BEMark) + utf16FromWindows1252(text, true);
    }
    return text;
}

std::optional<std::size_t> IniFile::findSection(std::string_view section) const
{
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        const LineMeaning meaning = meaningOf(lines_[i].content);
        if (meaning.kind == LineMeaning::Kind::Section && equalsIgnoringCase(meaning.name, section))
            return i;
    }
    return std::nullopt;
}

std::size_t IniFile::sectionEnd(std::size_t header) const
{
    std::size_t i = header + 1;
    while (i < lines_.size() && meaningOf(lines_[i].content).kind != LineMeaning::Kind::Section)
        ++i;
    return i;
}

std::optional<std::string> IniFile::value(std::string_view section, std::string_view key) const
{
    const auto header = findSection(section);
    if (!header)
        return std::nullopt;
    const std::size_t end = sectionEnd(*header);
    for (std::size_t i = *header + 1; i < end; ++i) {
        const std::string& content = lines_[i].content;
        const LineMeaning meaning = meaningOf(content);
        if (meaning.kind == LineMeaning::Kind::Key && equalsIgnoringCase(meaning.name, key))
            return content.substr(meaning.valueBegin, meaning.valueEnd - meaning.valueBegin);
    }
    return std::nullopt;
}

void IniFile::insertLine(std::size_t position, std::string content)
{
    // A last line without an ending gets one, or the new line would join it.
    if (position > 0 && lines_[position - 1].ending.empty())
        lines_[position - 1].ending = newline_;
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(position),
                  Line{std::move(content), newline_});
}

void IniFile::setValue(std::string_view section, std::string_view key, std::string_view value)
{
    value = value.substr(0, value.find_first_of("\r\n"));

    const auto header = findSection(section);
    if (!header) {
        if (!lines_.empty() && !isBlank(lines_.back().content))
            insertLine(lines_.size(), {});
        insertLine(lines_.size(), "[" + std::string(section) + "]");
        insertLine(lines_.size(), std::string(key) + "=" + std::string(value));
        return;
    }

    const std::size_t end = sectionEnd(*header);
    std::size_t lastFilled = *header;
    for (std::size_t i = *header + 1; i < end; ++i) {
        std::string& content = lines_[i].content;
        const LineMeaning meaning = meaningOf(content);
        if (meaning.kind == LineMeaning::Kind::Key && equalsIgnoringCase(meaning.name, key)) {
            content.replace(meaning.valueBegin, meaning.valueEnd - meaning.valueBegin, value);
            return;
        }
        if (!isBlank(content))
            lastFilled = i;
    }
    // After the section's last filled line, so blank lines before the next
    // section stay where they are.
    insertLine(lastFilled + 1, std::string(key) + "=" + std::string(value));
}

bool IniFile::save(const fs::path& file, std::string& reason) const
{
    const fs::path folder = file.parent_path();
    if (!folder.empty()) {
        std::error_code error;
        fs::create_directories(folder, error);
        if (error) {
            reason = error.message();
            return false;
        }
    }
    return replaceFileContents(file, text(), reason);
}

} // namespace purrlodge
