#pragma once

#include <array>
#include <string_view>

#include "app/ShellState.h"

namespace purrlodge {

// The note that goes with each of the 21 pictures of the rotation: a short,
// friendly word on cats and their care. Not every picture has one; a picture
// without a note is shown without the indicator, and Help | See Picture Notes
// is not offered while it is current.

// The note of picture `pictureIndex` (0..20), empty when it has none or the
// index names no picture.
[[nodiscard]] std::string_view pictureNote(int pictureIndex);

// One flag per picture index: whether that picture has a note.
[[nodiscard]] std::array<bool, pictureCount> pictureNoteFlags();

} // namespace purrlodge
