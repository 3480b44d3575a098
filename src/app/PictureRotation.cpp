#include "app/PictureRotation.h"

#include <cstdint>
#include <string>

#include "app/ShellState.h"
#include "ports/Profile.h"
#include "store/TextHelpers.h"

namespace purrlodge {

std::optional<int> advancedPictureIndex(int index, int storedDay, int today)
{
    // The stored day comes from the settings file and may be any int.
    if (storedDay == today || !(today % 3 == 0 || today > std::int64_t{storedDay} + 12))
        return std::nullopt;
    return index >= pictureCount - 1 ? 0 : index + 1;
}

int rotatePicture(Profile& profile, int today)
{
    // Read under one spelling and written under the other: keys ignore case.
    const std::string stored = profile.read("Picdets");
    int index = leadingInt(stored);
    // A damaged setting must not pick a picture that does not exist.
    if (index < 0 || index >= pictureCount)
        index = 0;
    const int storedDay = leadingInt(textAfter(stored, "$"));

    const std::optional<int> advanced = advancedPictureIndex(index, storedDay, today);
    if (!advanced)
        return index;
    // Unsaved, the picture is shown today all the same and advances again next time.
    static_cast<void>(
        profile.write("PicDets", std::to_string(*advanced) + " $ " + std::to_string(today)));
    return *advanced;
}

} // namespace purrlodge
