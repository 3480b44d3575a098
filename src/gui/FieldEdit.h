#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include <QLabel>
#include <QLineEdit>

namespace purrlodge {

// An edit box for a fixed-width text field of the data files. The width counts
// the terminator, so the box takes at most width - 1 characters, and each
// character becomes one 1252 byte.
QLineEdit* newFieldEdit(const QString& objectName, std::size_t fieldWidth, QWidget* parent);

// A field edit for a number: right-aligned, as wide as digitsShown digits.
QLineEdit* newNumberEdit(const QString& objectName, std::size_t fieldWidth, int digitsShown,
                         QWidget* parent);

// The label before an edit: its mnemonic (the letter after '&') moves the
// focus to the edit.
QLabel* newBuddyLabel(const QString& text, QWidget* buddy, QWidget* parent);

// A static: a named label whose text is shown as it stands, never as markup.
QLabel* newStaticLabel(const QString& objectName, QWidget* parent);

// The client's name at the top of a client's form: a static label in bold,
// a quarter larger than the dialog's text.
QLabel* newClientHeading(const QString& objectName, QWidget* parent);

// The box's text as the core keeps it (1252 bytes) and back.
[[nodiscard]] std::string fieldText(const QLineEdit& edit);
void setFieldText(QLineEdit& edit, std::string_view bytes);

} // namespace purrlodge
