#pragma once

#include <array>
#include <string>

#include <QString>

#include "accounts/FeeCalculation.h"
#include "store/ClientRecord.h"

class QCheckBox;
class QGridLayout;
class QWidget;

namespace purrlodge {

// A check box with its object name.
QCheckBox* newCheckBox(const QString& text, const QString& objectName, QWidget* parent);

// A name shown as a check box's text: an '&' in it is a letter, not a mnemonic.
[[nodiscard]] QString checkBoxText(const std::string& name);

// One check box per cat slot ("cat1CheckBox" ...), three to a row, as the
// account and the arrival forms tick the cats of a stay.
class CatCheckBoxes {
public:
    // The boxes in a grid for the caller's layout.
    explicit CatCheckBoxes(QWidget* parent);

    [[nodiscard]] QGridLayout* grid() const { return grid_; }
    [[nodiscard]] const std::array<QCheckBox*, catSlotCount>& boxes() const { return boxes_; }

    // Named and ticked as the form says; the slots without a cat hidden.
    void show(const std::array<CatBox, catSlotCount>& cats,
              const std::array<bool, catSlotCount>& shown);
    // The ticks read back into the form's cats.
    void readTicks(std::array<CatBox, catSlotCount>& cats) const;

private:
    std::array<QCheckBox*, catSlotCount> boxes_{};
    QGridLayout* grid_;
};

} // namespace purrlodge
