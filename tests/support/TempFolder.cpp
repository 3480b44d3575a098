#include "support/TempFolder.h"

#include <atomic>
#include <random>

namespace purrlodge::testing {

TempFolder::TempFolder()
{
    static std::atomic<unsigned> counter{0};
    std::random_device device;
    do
        root_ = std::filesystem::temp_directory_path() /
                ("purrlodge-test-" + std::to_string(device()) + "-" + std::to_string(counter++));
    while (!std::filesystem::create_directory(root_));
}

TempFolder::~TempFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(root_, ignored);
}

std::string TempFolder::path() const
{
    return root_.string() + static_cast<char>(std::filesystem::path::preferred_separator);
}

} // namespace purrlodge::testing
