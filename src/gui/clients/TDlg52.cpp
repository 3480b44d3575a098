#include "gui/clients/TDlg52.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/Text1252.h"
#include "gui/clients/TabbedListBox.h"

namespace purrlodge {

namespace {

constexpr int listRows = 16;

} // namespace

TDlg52::TDlg52(const OtherCatsListing& listing, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("otherCatsDialog"));
    setWindowTitle(fromWindows1252(otherCatsListTitle));

    headingLabel_ = new QLabel(fromWindows1252(listing.heading), this);
    headingLabel_->setObjectName(QStringLiteral("headingLabel"));
    headingLabel_->setTextFormat(Qt::PlainText);
    QFont bold = headingLabel_->font();
    bold.setBold(true);
    headingLabel_->setFont(bold);

    // The lines carry no columns; the list keeps the program's one list look.
    list_ = new TabbedListBox({}, this);
    list_->setObjectName(QStringLiteral("otherCatsList"));
    list_->setLines(listing.lines);
    list_->fitToLines(listRows, fontMetrics().averageCharWidth() * 80);
    list_->setMinimumSize(fontMetrics().averageCharWidth() * 40, fontMetrics().height() * 6);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Close);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(headingLabel_);
    layout->addWidget(list_, 1);
    layout->addWidget(buttons);
}

} // namespace purrlodge
