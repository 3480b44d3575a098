#pragma once

#include <string>
#include <string_view>

#include "store/ClientRecord.h"

namespace purrlodge {

// Cat Name Change (DIALOG 51). When editing a client, a grid row that still
// holds a cat but under a different name from the one stored in its slot may
// be the same cat renamed or a new cat in the old one's place; the person says
// which. Letter case and surrounding blanks alone do not count as a change:
// the new spelling is simply kept.
//
// - NameChanged: the same cat, renamed. The slot keeps everything of the cat
//   that the form does not show (its tag) and the row's entries are taken.
// - NewCat: the old cat has left. The form asks what happened to it (DIALOG
//   50, as for an emptied row) and files it in the client's other-cats list;
//   the row becomes a new cat, starting without the old cat's tag.
enum class CatNameChoice { NameChanged, NewCat };

inline constexpr std::string_view catNameChangeTitle = "Cat Name Change";
inline constexpr std::string_view catNameChangeText =
    "A cat's name appears to have been changed\n\nPlease select from the following options";

// Name Change or New Cat ? (DIALOG 55), the explanation behind DIALOG 51's Help.
inline constexpr std::string_view catNameChangeHelpTitle = "Name Change or New Cat ?";
inline constexpr std::string_view catNameChangeHelpText =
    "You have typed a different name over a cat's name.\n\n"
    "If it is the same cat and only its name has changed (or was mis-spelt), choose the first "
    "option: the cat keeps its place and its details.\n\n"
    "If a different cat has taken the old cat's place, choose the second option: you will be "
    "asked what happened to the old cat, which is then kept in the client's 'Other Cats' list, "
    "and the row is saved as the new cat.";

// "%s's name was changed to %s" (old name, new name).
[[nodiscard]] std::string nameChangedChoiceText(std::string_view oldName, std::string_view newName);

// "%s has been replaced by a new cat %s" (old name, new name).
[[nodiscard]] std::string newCatChoiceText(std::string_view oldName, std::string_view newName);

// Whether a typed name, over a slot that holds a cat, names a different cat
// from the stored one (letter case and surrounding blanks ignored). An empty
// typed name is a leaving cat, not a name change.
[[nodiscard]] bool isCatNameChange(std::string_view storedName, std::string_view typedName);

// Forgets what a slot kept of a cat that has been replaced by a new one: the
// cat's tag, which the form does not show and so would otherwise pass to the
// newcomer.
void forgetReplacedCat(ClientRecord& client, int slot);

} // namespace purrlodge
