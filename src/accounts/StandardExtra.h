#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "accounts/RatesRecord.h"
#include "ports/Message.h"

namespace purrlodge {

// The cattery's standard extra as Account Preparation (DIALOG 8) offers it:
// static 149 (its name), edit 151 (its amount for this account) and the
// buttons 150 "Yes" and 147 "No".

// Whether an account must decide on the standard extra: the rates give it a
// name or a charge above 0.
[[nodiscard]] bool standardExtraPending(const RatesRecord& rates);

// What the standard extra's controls show.
struct StandardExtraControls {
    bool buttonsVisible = false;       // 150 "Yes" and 147 "No"
    bool nameAndAmountVisible = false; // static 149 and edit 151
    bool yesTicked = false;
    bool noTicked = false;
    bool charged = false;   // this account carries the standard extra
    std::string nameText;   // static 149
    std::string amountText; // edit 151
};

// The controls as the dialog opens: with a named extra, its name and its
// charge ("%c%.2f") beside the two buttons, neither ticked; without a name
// everything hidden and the amount "%c0.00".
[[nodiscard]] StandardExtraControls openingStandardExtra(const RatesRecord& rates);

// "Yes" (charged) or "No" pressed: shows or hides the name and amount, ticks
// the button and marks the extra charged or not. The texts stay as they are.
void chooseStandardExtra(StandardExtraControls& controls, bool charged);

// The refusal OK makes before anything else when the extra is pending and
// neither button is ticked (always so for an extra with a charge but no name,
// whose buttons are hidden): "No Decison made for Sandard Extras".
[[nodiscard]] std::optional<Message>
standardExtraDecisionMissing(const RatesRecord& rates, const StandardExtraControls& controls);

// The amount of edit 151 for this account: at most 7 characters are read, the
// text after the first pound sign when there is one (or after a leading euro or
// dollar sign), atof-style.
[[nodiscard]] float standardExtraAmountFrom(std::string_view amountText);

} // namespace purrlodge
