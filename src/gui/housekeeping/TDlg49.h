#pragma once

#include <string>

#include <QDialog>

namespace purrlodge {

// "Bad Floppy!" (DIALOG 49): the disc in drive A: has too little room. "I
// have inserted a new disc" accepts; Cancel gives up the disc change.
class TDlg49 : public QDialog {
    Q_OBJECT

public:
    // text: 1252 bytes.
    explicit TDlg49(const std::string& text, QWidget* parent = nullptr);
};

} // namespace purrlodge
