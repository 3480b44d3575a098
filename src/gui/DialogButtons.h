#pragma once

#include <functional>

#include <QDialogButtonBox>

class QDialog;

namespace purrlodge {

// A dialog's row of buttons, named "buttonBox" as every dialog's is, with the
// standard buttons given: an accepting button accepts the dialog (through its
// accept() override, where it has one) and a rejecting one rejects it. The
// caller puts it in the layout, at the point the Tab key should reach it.
QDialogButtonBox* newButtonBox(QDialog* dialog, QDialogButtonBox::StandardButtons buttons);

// Help from the box's Help button and from F1 alike. The Help button never
// becomes the default, so Return keeps its meaning after Help was clicked.
void connectHelp(QDialog* dialog, QDialogButtonBox* buttons, const std::function<void()>& showHelp);

// The layout of a small dialog: its content above its buttons, the dialog
// fixed at the size they need.
void layOutAboveButtons(QDialog* dialog, QWidget* content, QDialogButtonBox* buttons);

} // namespace purrlodge
