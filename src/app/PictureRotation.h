#pragma once

#include <optional>

namespace purrlodge {

class Profile;

// The picture-note rotation: one picture of 21 (index 0..20) is shown, and it
// changes at most once a day, on every third day of the month or after a gap
// of more than twelve days. The setting Picdets holds "%d $ %d": the index,
// then the day of the month it was last changed.

// The next index when the picture is due to change on day `today` (1..31)
// after a change on day `storedDay`, or nothing when it stays.
[[nodiscard]] std::optional<int> advancedPictureIndex(int index, int storedDay, int today);

// Reads Picdets, advances the picture when due and then writes PicDets with
// the new index and today's day. Returns the picture index to show.
int rotatePicture(Profile& profile, int today);

} // namespace purrlodge
