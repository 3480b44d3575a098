#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace purrlodge {

// Replaces a file's whole contents so that a crash leaves either the old file
// or the new one, never a torn one: the bytes go to a temporary file beside
// it, are flushed to disc and renamed over it. A symbolic link is written
// through, and the old file's permissions are kept. On failure the old file is
// untouched and `reason` says why.
bool replaceFileContents(const std::filesystem::path& file, std::string_view bytes,
                         std::string& reason);

} // namespace purrlodge
