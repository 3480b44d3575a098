#pragma once

#include <optional>
#include <string>

#include "app/jobs/JobOutput.h"
#include "ports/Ui.h"

namespace purrlodge {

// The message boxes of a job that runs with nobody at the screen: each
// message becomes a warning line ("Title: text", its lines joined) and the
// last one is kept, so a job that fails can say why in one line.
class JobUi : public Ui {
public:
    explicit JobUi(const JobOutput& output) : output_(output) {}

    void showMessage(const Message& message) override;

    // The last message shown as one line; nothing when none was.
    [[nodiscard]] const std::optional<std::string>& lastMessage() const { return last_; }

private:
    const JobOutput& output_;
    std::optional<std::string> last_;
};

// The message's title and text on one line: "Title: first line second line".
[[nodiscard]] std::string oneLine(const Message& message);

} // namespace purrlodge
