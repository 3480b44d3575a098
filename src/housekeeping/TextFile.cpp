#include "housekeeping/TextFile.h"

#include "store/DataFolder.h"

namespace purrlodge {

std::string withNativeLineEnds(std::string_view text)
{
#ifdef _WIN32
    std::string result;
    result.reserve(text.size() + text.size() / 16);
    for (const char c : text) {
        if (c == '\n')
            result += '\r';
        result += c;
    }
    return result;
#else
    return std::string(text);
#endif
}

bool writeTextFile(const DataFolder& folder, std::string_view name, std::string_view text)
{
    const std::string bytes = withNativeLineEnds(text);
    return folder.replaceBytes(name, bytes.data(), bytes.size());
}

} // namespace purrlodge
