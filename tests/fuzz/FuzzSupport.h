#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>
#include <unistd.h>
#include <vector>

// What every fuzz target shares: a data folder of its own for the whole
// process, emptied before each input, and ways to cut an input into pieces.

namespace purrlodge::fuzzing {

// The process's own folder. The data folder sits five levels below its root,
// so that a client code from a damaged file ("../../../") that climbs out of
// the data folder still lands inside the root, which goes when the process ends.
// A tmpfs (/dev/shm) is preferred unless TMPDIR says otherwise: every save is
// flushed to disc, which costs milliseconds on a real one.
class FuzzFolder {
public:
    FuzzFolder()
    {
        const std::filesystem::path shm = "/dev/shm";
        std::error_code error;
        const std::filesystem::path base =
            std::getenv("TMPDIR") == nullptr && std::filesystem::is_directory(shm, error)
                ? shm
                : std::filesystem::temp_directory_path();
        root_ = base / ("purrlodge-fuzz-" + std::to_string(::getpid()));
        data_ = root_ / "a" / "b" / "c" / "d" / "data";
        reset();
    }
    ~FuzzFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(root_, ignored);
    }
    FuzzFolder(const FuzzFolder&) = delete;
    FuzzFolder& operator=(const FuzzFolder&) = delete;

    // The data folder, ending in the separator as a data folder's name does.
    [[nodiscard]] std::string path() const { return data_.string() + '/'; }

    // Empties the whole root and makes the data folder again.
    void reset()
    {
        std::error_code ignored;
        std::filesystem::remove_all(root_ / "a", ignored);
        std::filesystem::create_directories(data_, ignored);
    }

    // Puts a file into the data folder byte for byte, as a damaged data set
    // may hold it; an empty piece puts no file at all.
    void put(std::string_view name, std::string_view bytes) const
    {
        if (bytes.empty())
            return;
        std::ofstream(data_ / std::string(name), std::ios::binary)
            .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }

private:
    std::filesystem::path root_;
    std::filesystem::path data_;
};

// Cuts an input into consecutive pieces; a piece past the end is empty or short.
class Pieces {
public:
    Pieces(const std::uint8_t* data, std::size_t size)
        : rest_(reinterpret_cast<const char*>(data), size)
    {}

    std::string_view take(std::size_t size)
    {
        const std::string_view piece = rest_.substr(0, size);
        rest_.remove_prefix(piece.size());
        return piece;
    }

    // A little-endian 16-bit length; 0 past the end.
    std::size_t takeLength()
    {
        const std::string_view bytes = take(2);
        std::size_t length = 0;
        for (std::size_t i = bytes.size(); i-- > 0;)
            length = length * 256 + static_cast<unsigned char>(bytes[i]);
        return length;
    }

    [[nodiscard]] std::string_view rest() const { return rest_; }

private:
    std::string_view rest_;
};

// The input's lines, split at '\n', as many as `count` (the last takes the rest
// of the input); missing lines are empty.
inline std::vector<std::string> linesOf(std::string_view text, std::size_t count)
{
    std::vector<std::string> lines;
    while (lines.size() + 1 < count) {
        const std::size_t end = text.find('\n');
        if (end == std::string_view::npos)
            break;
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    lines.emplace_back(text);
    lines.resize(count);
    return lines;
}

} // namespace purrlodge::fuzzing
