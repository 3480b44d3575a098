#pragma once

#include <string>

namespace purrlodge {

class Ui;

// Makes every missing level of a folder path (ending in the separator or not).
// Returns 1 when the folder itself did not exist and has now been made, else 0.
int makeFolderChain(const std::string& folder);

// Deletes the files in a folder, and the sub-folders with their contents when
// asked to descend, then the folder itself when asked. Each failure is shown in
// a message box titled "Error" and the next entry is tried.
void deleteFolderContents(Ui& ui, const std::string& folder, bool descend, bool removeFolder);

} // namespace purrlodge
