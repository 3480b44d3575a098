#pragma once

#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "app/StartupSwitches.h"

namespace purrlodge {

inline constexpr int pictureCount = 21;

inline constexpr std::string_view defaultPrintingFontName = "Times New Roman";

// One pair of numbers per picture index 0..20, in index order, handed to the
// picture display with the picture of the current index: the picture's left
// and top edge on the clock face, in pixels from the face's top-left corner.
inline constexpr std::array<std::pair<int, int>, pictureCount> picturePlacements{{
    {20, 95}, {20, 95},  {30, 65}, {20, 95}, {20, 85},  {20, 95},  {20, 90},
    {20, 95}, {20, 105}, {20, 60}, {20, 65}, {20, 125}, {20, 115}, {20, 50},
    {20, 75}, {20, 55},  {20, 50}, {20, 65}, {20, 50},  {30, 50},  {20, 65},
}};

// The program-wide state of the application shell, held as Session::shell.
// Start-up fills it; the main window and the toggles read and change it.
struct ShellState {
    StartupSwitches switches;                      // set by the program entry before start-up
    bool digitalClock = false;                     // ClkTyp contains "D"
    bool pictureNoteIndicator = true;              // musnotes: off when it contains "N"
    bool backupReminder = true;                    // RemStatus
    int pictureIndex = 0;                          // 0..20
    std::array<bool, pictureCount> pictureFlags{}; // set at start-up: which pictures have notes
    // Two further display flags, set to 1 at start-up for the main window's display.
    std::array<int, 2> furtherDisplayFlags{};
    // Set at start-up from picturePlacements.
    std::array<std::pair<int, int>, pictureCount> pictureTable{};

    std::string permittedNameCharacters; // set at start-up from permittedNameCharacterSet
    std::string printingFontName;        // set at start-up: "Times New Roman"
    // The manager's name's type size on printouts, 1..5. It stays at the
    // dialog's preset 2 until the establishment names one.
    int managerTypeSize = 2;
    // Whether a standard extra is set in the rates (see ratesUsable in CatteryFiles.h).
    bool ratesUsable = false;
    // Copied from the client index header at start-up, for backup and restore.
    int backupReminderMode = 0;

    std::string programFolder;    // the working folder at start, also written to ProgDir
    std::string perFolderIniPath; // programFolder + "Purrlodge.ini"; formed and kept, never read

    // Whether Help | See Picture Notes is offered: the picture shown has notes.
    [[nodiscard]] bool pictureHasNotes() const
    {
        return pictureIndex >= 0 && pictureIndex < pictureCount &&
               pictureFlags[static_cast<std::size_t>(pictureIndex)];
    }
};

} // namespace purrlodge
