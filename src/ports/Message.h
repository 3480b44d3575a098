#pragma once

#include <string>

namespace purrlodge {

enum class MessageIcon { None, Information, Exclamation, Question, Stop };

// One message box: the exact text, its title and its icon. Text is
// Windows-1252 bytes; the gui converts at its edge.
struct Message {
    std::string text;
    std::string title;
    MessageIcon icon = MessageIcon::None;

    friend bool operator==(const Message&, const Message&) = default;
};

} // namespace purrlodge
