#pragma once

#include <QDialog>
#include <QDialogButtonBox>

namespace purrlodge {

// A fixed page of help: a title, a plain text that wraps at about
// widthInCharacters average characters, and one button that closes the page
// (Close, unless a page has always had another).
class HelpPage : public QDialog {
    Q_OBJECT

public:
    HelpPage(const QString& objectName, const QString& title, const QString& text,
             int widthInCharacters, QWidget* parent,
             QDialogButtonBox::StandardButton closeButton = QDialogButtonBox::Close);
};

} // namespace purrlodge
