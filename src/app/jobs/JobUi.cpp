#include "app/jobs/JobUi.h"

namespace purrlodge {

std::string oneLine(const Message& message)
{
    std::string line = message.title.empty() ? std::string() : message.title + ": ";
    bool gap = false;
    for (const char c : message.text) {
        if (c == '\n' || c == '\r' || c == '\t' || c == ' ') {
            gap = true;
            continue;
        }
        if (gap && !line.empty() && !line.ends_with(": "))
            line += ' ';
        gap = false;
        line += c;
    }
    return line;
}

void JobUi::showMessage(const Message& message)
{
    last_ = oneLine(message);
    output_.note(*last_);
}

} // namespace purrlodge
