#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace purrlodge::testing {

// A record's bytes, as its file holds them.
template <class Block> std::string bytesOf(const Block& block)
{
    return std::string(reinterpret_cast<const char*>(&block), sizeof block);
}

// A file's whole contents; empty when it is missing.
inline std::string fileBytes(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

} // namespace purrlodge::testing
