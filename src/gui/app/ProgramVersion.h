#pragma once

namespace purrlodge {

// The program's version: the build's project version, handed in by the gui
// target's compile definitions.
inline constexpr const char* programVersion = PURRLODGE_VERSION;

} // namespace purrlodge
