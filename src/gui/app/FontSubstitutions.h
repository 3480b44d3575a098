#pragma once

namespace purrlodge {

// Maps the typefaces the program names (on screen and in print) to the free
// faces installed with it: the Liberation faces match the metrics of the
// first three; the other three have no metric twin and get a close likeness.
// Call once, after the application object exists.
void installFontSubstitutions();

} // namespace purrlodge
