#pragma once

#include <QDialog>

#include "clients/OtherCatsList.h"

class QLabel;

namespace purrlodge {

class TabbedListBox;

// "Other Cats" (DIALOG 52): a heading and the list of a client's former cats
// and their special notes, or the client's note book, with a Close button.
class TDlg52 : public QDialog {
    Q_OBJECT

public:
    explicit TDlg52(const OtherCatsListing& listing, QWidget* parent = nullptr);

private:
    QLabel* headingLabel_; // 102
    TabbedListBox* list_;  // 101
};

} // namespace purrlodge
