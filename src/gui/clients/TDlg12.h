#pragma once

#include <functional>

#include <QDialog>

#include "clients/ClientDetails.h"
#include "clients/OtherCatsList.h"

class QDialogButtonBox;
class QPushButton;

namespace purrlodge {

class TabbedListBox;

// "Client's Full Details" (DIALOG 12): a client's listing, read only, with
// its columns at the listing's tab stops. "See Other Cats" and "See Special
// Notes" are offered as the listing says and hand over to the other-cats
// list; "Print" prints it. A past client's details (DIALOG 54) are the same
// listing with Close alone.
class TDlg12 : public QDialog {
    Q_OBJECT

public:
    // dialog: this dialog, the owner of the list that opens.
    using OpenOtherCats = std::function<void(QWidget* dialog, OtherCatsMode)>;

    // Prints the listing; none leaves Print greyed.
    using PrintListing = std::function<void()>;

    TDlg12(const ClientDetailsListing& listing, OpenOtherCats openOtherCats,
           PrintListing printListing, QWidget* parent = nullptr);

    // The listing with Close alone, as a past client's details show.
    explicit TDlg12(const ClientDetailsListing& listing, QWidget* parent = nullptr);

private:
    // The list and the Close button, common to both forms.
    QDialogButtonBox* buildListing(const ClientDetailsListing& listing);

    TabbedListBox* list_;                       // 944
    QPushButton* printButton_ = nullptr;        // 101
    QPushButton* otherCatsButton_ = nullptr;    // 102
    QPushButton* specialNotesButton_ = nullptr; // 103
    OpenOtherCats openOtherCats_;
    PrintListing printListing_;
};

} // namespace purrlodge
