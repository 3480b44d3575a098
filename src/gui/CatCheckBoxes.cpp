#include "gui/CatCheckBoxes.h"

#include <QCheckBox>
#include <QGridLayout>

#include "gui/Text1252.h"

namespace purrlodge {

namespace {

constexpr int catsPerRow = 3;

} // namespace

QCheckBox* newCheckBox(const QString& text, const QString& objectName, QWidget* parent)
{
    auto* box = new QCheckBox(text, parent);
    box->setObjectName(objectName);
    return box;
}

QString checkBoxText(const std::string& name)
{
    return fromWindows1252(name).replace(u'&', QStringLiteral("&&"));
}

CatCheckBoxes::CatCheckBoxes(QWidget* parent) : grid_(new QGridLayout)
{
    for (int slot = 0; slot < catSlotCount; ++slot) {
        QCheckBox* cat =
            newCheckBox(QString(), QStringLiteral("cat%1CheckBox").arg(slot + 1), parent);
        boxes_[static_cast<std::size_t>(slot)] = cat;
        grid_->addWidget(cat, slot / catsPerRow, slot % catsPerRow);
    }
    for (int column = 0; column < catsPerRow; ++column)
        grid_->setColumnStretch(column, 1);
}

void CatCheckBoxes::show(const std::array<CatBox, catSlotCount>& cats,
                         const std::array<bool, catSlotCount>& shown)
{
    for (std::size_t slot = 0; slot < boxes_.size(); ++slot) {
        boxes_[slot]->setText(checkBoxText(cats[slot].name));
        boxes_[slot]->setChecked(cats[slot].ticked);
        boxes_[slot]->setVisible(shown[slot]);
    }
}

void CatCheckBoxes::readTicks(std::array<CatBox, catSlotCount>& cats) const
{
    for (std::size_t slot = 0; slot < boxes_.size(); ++slot)
        cats[slot].ticked = boxes_[slot]->isChecked();
}

} // namespace purrlodge
