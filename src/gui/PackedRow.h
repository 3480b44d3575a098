#pragma once

#include <initializer_list>

class QHBoxLayout;
class QWidget;

namespace purrlodge {

// The widgets side by side, packed to the left, with the room left over after
// them. With an owner, the row is that widget's layout.
QHBoxLayout* newPackedRow(std::initializer_list<QWidget*> widgets, QWidget* owner = nullptr);

} // namespace purrlodge
