#include "gui/clients/TDlg12.h"

#include <algorithm>

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/Text1252.h"
#include "gui/clients/TabbedListBox.h"

namespace purrlodge {

namespace {

// The list is at least as wide as a cat line with a short colour and breed;
// longer lines widen it.
constexpr int lastColumnLetters = 48;
constexpr int minimumRows = 12;

QPushButton* newButton(const QString& text, const QString& objectName, QDialogButtonBox* box)
{
    QPushButton* button = box->addButton(text, QDialogButtonBox::ActionRole);
    button->setObjectName(objectName);
    button->setAutoDefault(false);
    return button;
}

} // namespace

TDlg12::TDlg12(const ClientDetailsListing& listing, OpenOtherCats openOtherCats,
               PrintListing printListing, QWidget* parent)
    : QDialog(parent), openOtherCats_(std::move(openOtherCats)),
      printListing_(std::move(printListing))
{
    QDialogButtonBox* buttons = buildListing(listing);
    printButton_ = newButton(QStringLiteral("&Print"), QStringLiteral("printButton"), buttons);
    printButton_->setEnabled(static_cast<bool>(printListing_));
    connect(printButton_, &QPushButton::clicked, this, [this] { printListing_(); });
    otherCatsButton_ =
        newButton(QStringLiteral("See &Other Cats"), QStringLiteral("otherCatsButton"), buttons);
    otherCatsButton_->setEnabled(listing.otherCatsEnabled);
    specialNotesButton_ = newButton(QStringLiteral("See &Special Notes"),
                                    QStringLiteral("specialNotesButton"), buttons);
    specialNotesButton_->setEnabled(listing.specialNotesEnabled);
    connect(otherCatsButton_, &QPushButton::clicked, this,
            [this] { openOtherCats_(this, OtherCatsMode::EarlierSpecialNotes); });
    connect(specialNotesButton_, &QPushButton::clicked, this,
            [this] { openOtherCats_(this, OtherCatsMode::NoteBook); });
}

TDlg12::TDlg12(const ClientDetailsListing& listing, QWidget* parent) : QDialog(parent)
{
    buildListing(listing);
    setObjectName(QStringLiteral("pastClientDetailsDialog"));
}

QDialogButtonBox* TDlg12::buildListing(const ClientDetailsListing& listing)
{
    setObjectName(QStringLiteral("clientDetailsDialog"));
    setWindowTitle(fromWindows1252(listing.caption));

    list_ = new TabbedListBox(clientDetailsTabStops, this);
    list_->setObjectName(QStringLiteral("detailsList"));
    list_->setLines(listing.lines);
    const int lastStop =
        *std::max_element(clientDetailsTabStops.begin(), clientDetailsTabStops.end());
    const int width =
        list_->widthFor(lastStop) + fontMetrics().averageCharWidth() * lastColumnLetters;
    list_->fitToLines(minimumRows, width);
    list_->setMinimumSize(width / 2, fontMetrics().height() * minimumRows / 2);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Close);
    buttons->button(QDialogButtonBox::Close)->setDefault(true);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(list_, 1);
    layout->addWidget(buttons);
    return buttons;
}

} // namespace purrlodge
