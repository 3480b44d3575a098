#pragma once

class QWidget;

namespace purrlodge {

// The window a dialog or message box belongs to: the modal dialog in front,
// so that a dialog opened from another stays in front of it, or else the
// fallback (the main window; none during start-up).
[[nodiscard]] QWidget* frontWindow(QWidget* fallback);

} // namespace purrlodge
