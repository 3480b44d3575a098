#pragma once

#include <functional>

#include <QDialog>

#include "clients/ClientDetails.h"
#include "clients/OtherCatsList.h"

class QPushButton;

namespace purrlodge {

class TabbedListBox;

// "Client's Full Details" (DIALOG 12): a client's listing, read only, with
// its columns at the listing's tab stops. "See Other Cats" and "See Special
// Notes" are offered as the listing says and hand over to the other-cats
// list; "Print" is not offered yet.
class TDlg12 : public QDialog {
    Q_OBJECT

public:
    // dialog: this dialog, the owner of the list that opens.
    using OpenOtherCats = std::function<void(QWidget* dialog, OtherCatsMode)>;

    // Prints the listing; none leaves Print greyed.
    using PrintListing = std::function<void()>;

    TDlg12(const ClientDetailsListing& listing, OpenOtherCats openOtherCats,
           PrintListing printListing, QWidget* parent = nullptr);

private:
    TabbedListBox* list_;             // 944
    QPushButton* printButton_;        // 101
    QPushButton* otherCatsButton_;    // 102
    QPushButton* specialNotesButton_; // 103
    OpenOtherCats openOtherCats_;
    PrintListing printListing_;
};

} // namespace purrlodge
