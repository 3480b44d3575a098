#pragma once

#include <QDialog>

namespace purrlodge {

// Help | About: the program's name and version, what it is for and its
// licence, with an OK button.
class TDlgAbout : public QDialog {
    Q_OBJECT

public:
    explicit TDlgAbout(QWidget* parent = nullptr);
};

} // namespace purrlodge
