#pragma once

#include <functional>

namespace purrlodge {

// What pressing OK in a data-entry dialog comes to. The rule behind OK has
// already shown any message.
enum class FormVerdict {
    Accept,    // saved: the dialog closes
    StayOpen,  // a check or a save failed: the dialog stays open with the entries as typed
    EndProgram // the program must end now
};

// The core's rule behind a form's OK. A question that shows a form is handed
// the rule; the dialog calls it on every OK and stays open while it answers
// StayOpen.
template <class Form> using OkRule = std::function<FormVerdict(const Form&)>;

} // namespace purrlodge
