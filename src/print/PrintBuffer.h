#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace purrlodge {

inline constexpr int printSlotCount = 100;
inline constexpr std::size_t printFormatWidth = 48;
inline constexpr std::size_t printTextWidth = 120;

// The one print buffer of the run: a page routine fills it with (text, format)
// pairs and the layout engine draws slots 0 .. count - 1 as one page. The
// session owns it; it is not re-entrant.
struct PrintBuffer {
    std::array<std::string, printSlotCount> formats;
    std::array<std::string, printSlotCount> texts;
    // Filled slots; 0 or -1 prints a blank page.
    int count = 0;
    // Top of the line drawn last, in device units. Read by the offset -1 and
    // kept from one job to the next, so a page whose first line says -1
    // starts where the last page's last line did.
    int previousLineTop = 0;
    // Three short texts some page routines keep between their lines.
    std::array<std::string, 3> pageTexts;

    // Empties every slot and sets the count to 0.
    void clear();
    // As clear, and empties the page routines' texts too.
    void clearWithPageTexts();
    // Stores the text (cut to 120 characters) and its format line (cut to 48)
    // in the next slot. A slot past the 100th is ignored.
    void add(std::string_view text, std::string_view format);
};

} // namespace purrlodge
