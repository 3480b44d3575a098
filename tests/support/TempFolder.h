#pragma once

#include <filesystem>
#include <string>

namespace purrlodge::testing {

// A fresh folder under the system's temporary folder, removed with its contents
// when the test ends. path() ends in the separator, as a data folder does.
class TempFolder {
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    [[nodiscard]] std::string path() const;
    [[nodiscard]] const std::filesystem::path& root() const { return root_; }

private:
    std::filesystem::path root_;
};

} // namespace purrlodge::testing
