#include "print/PrintBuffer.h"

#include <algorithm>

namespace purrlodge {

namespace {

// A slot holds a zero-terminated text: whatever follows a zero byte (a
// currency sign of 0 formatted with "%c") was never part of the line.
std::string_view slotText(std::string_view text, std::size_t width)
{
    const std::size_t end = text.find('\0');
    return text.substr(0, end == std::string_view::npos ? width : std::min(end, width));
}

} // namespace

void PrintBuffer::clear()
{
    for (std::string& format : formats)
        format.clear();
    for (std::string& text : texts)
        text.clear();
    count = 0;
}

void PrintBuffer::clearWithPageTexts()
{
    clear();
    for (std::string& text : pageTexts)
        text.clear();
}

void PrintBuffer::add(std::string_view text, std::string_view format)
{
    // A count of -1 (the blank page) starts again at slot 0.
    const int slot = count < 0 ? 0 : count;
    if (slot >= printSlotCount)
        return;
    texts[static_cast<std::size_t>(slot)] = slotText(text, printTextWidth);
    formats[static_cast<std::size_t>(slot)] = slotText(format, printFormatWidth);
    count = slot + 1;
}

} // namespace purrlodge
