#pragma once

#include <string>
#include <string_view>

namespace purrlodge {

class DataFolder;

// The text with this platform's line ends: "\r\n" on Windows, where text
// files have always had them, "\n" elsewhere.
[[nodiscard]] std::string withNativeLineEnds(std::string_view text);

// Writes a text file (lines ending in "\n") into the data folder in place of
// any earlier one, crash-safely. A failure has been told to the person as a
// "File Error" naming the file. Whether the file was written.
[[nodiscard]] bool writeTextFile(const DataFolder& folder, std::string_view name,
                                 std::string_view text);

} // namespace purrlodge
