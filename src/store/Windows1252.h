#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace purrlodge {

// Text in the program is Windows-1252 bytes, as in the data files. These
// convert a byte to its character and back, and name files on this machine,
// whose file system wants Unicode names.

// The Unicode character of a 1252 byte (the five bytes 1252 leaves undefined
// stand for the control characters of the same number).
[[nodiscard]] char32_t unicodeOfWindows1252(unsigned char byte);

// The 1252 byte of a Unicode character, or '?' when 1252 cannot hold it.
[[nodiscard]] char windows1252Of(char32_t character);

[[nodiscard]] std::string utf8FromWindows1252(std::string_view text);
// Invalid UTF-8 bytes and characters 1252 cannot hold become '?'.
[[nodiscard]] std::string windows1252FromUtf8(std::string_view text);

// The file-system path that a 1252 file or folder name stands for.
[[nodiscard]] std::filesystem::path nativePath(std::string_view text);
// The 1252 name of a file-system path.
[[nodiscard]] std::string windows1252Of(const std::filesystem::path& path);

} // namespace purrlodge
