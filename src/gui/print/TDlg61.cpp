#include "gui/print/TDlg61.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/HelpPage.h"
#include "gui/RadioButtons.h"
#include "print/PrintLineFormat.h"

namespace purrlodge {

namespace {

// The colour schemes' names in their order; the last is a different
// colour each time, drawn in several.
const char* const nameColourLabels[] = {"Blue",
                                        "Maroon",
                                        "Green",
                                        "Dark Green",
                                        "Red",
                                        "Magenta",
                                        "Teal",
                                        "Olive",
                                        "Yellow",
                                        "Black",
                                        "A different colour each time"};
constexpr int randomNameColour = 10;

const char* const itemLabels[colourItemCount] = {
    "Arrival Sheet-&1",    "Arrival Sheet-&2",  "&Return Sheet",
    "A&dmission Register", "Client's &Account", "Account &Copy",
};

QIcon swatch(int scheme)
{
    const Rgb printed = schemeColour(scheme);
    const QColor colour =
        scheme == randomNameColour ? QColor() : QColor(printed.red, printed.green, printed.blue);
    QPixmap picture(28, 16);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(QColor(90, 90, 90));
    if (colour.isValid()) {
        painter.setBrush(colour);
        painter.drawRect(0, 0, 27, 15);
    } else {
        const QColor stripes[] = {QColor(254, 0, 0), QColor(0, 254, 0), QColor(0, 0, 254),
                                  QColor(254, 254, 0)};
        for (int i = 0; i < 4; ++i)
            painter.fillRect(i * 7, 0, 7, 16, stripes[i]);
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(0, 0, 27, 15);
    }
    return QIcon(picture);
}

} // namespace

TDlg61::TDlg61(const ColourPrintingForm& initial, const OkRule<ColourPrintingForm>& onOk,
               QWidget* parent)
    : FormDialog([this, onOk] { return onOk(form()); }, parent),
      nameColours_(new QButtonGroup(this))
{
    setObjectName(QStringLiteral("colourPrintingOptionsDialog"));
    setWindowTitle(QStringLiteral("Colour Printing Options"));

    auto* itemsBox = new QGroupBox(QStringLiteral("Print in colour"), this);
    auto* itemsLayout = new QVBoxLayout(itemsBox);
    for (int item = 0; item < colourItemCount; ++item) {
        auto* box = new QCheckBox(QString::fromUtf8(itemLabels[item]), itemsBox);
        box->setObjectName(QStringLiteral("colourItem%1CheckBox").arg(101 + item));
        box->setChecked(initial.inColour[static_cast<std::size_t>(item)]);
        itemsLayout->addWidget(box);
        items_[static_cast<std::size_t>(item)] = box;
    }
    namesOnAccount_ =
        new QCheckBox(QStringLiteral("Print the &names to appear on accounts"), itemsBox);
    namesOnAccount_->setObjectName(QStringLiteral("namesOnAccountCheckBox"));
    namesOnAccount_->setChecked(initial.namesOnAccount);
    itemsLayout->addSpacing(6);
    itemsLayout->addWidget(namesOnAccount_);
    itemsLayout->addStretch(1);

    auto* coloursBox = new QGroupBox(QStringLiteral("Colour of the cattery's name"), this);
    auto* coloursLayout = new QGridLayout(coloursBox);
    int index = 0;
    for (const char* label : nameColourLabels) {
        QRadioButton* button = newRadioButton(QString::fromUtf8(label),
                                              QStringLiteral("nameColour%1Radio").arg(index),
                                              nameColours_, coloursBox, index);
        button->setIcon(swatch(index));
        button->setIconSize(QSize(28, 16));
        // Two columns; the many-coloured choice takes a row of its own.
        if (index < randomNameColour)
            coloursLayout->addWidget(button, index / 2, index % 2);
        else
            coloursLayout->addWidget(button, 5, 0, 1, 2);
        ++index;
    }
    QAbstractButton* chosen = nameColours_->button(initial.nameColour);
    (chosen != nullptr ? chosen : nameColours_->button(0))->setChecked(true);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                                       QDialogButtonBox::Help);
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    connectHelp(this, buttons, [this] { showHelp(); });

    auto* boxes = new QHBoxLayout;
    boxes->addWidget(itemsBox);
    boxes->addWidget(coloursBox);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(boxes);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    items_[0]->setFocus();
}

ColourPrintingForm TDlg61::form() const
{
    ColourPrintingForm form;
    for (std::size_t item = 0; item < items_.size(); ++item)
        form.inColour[item] = items_[item]->isChecked();
    form.nameColour = nameColours_->checkedId();
    form.namesOnAccount = namesOnAccount_->isChecked();
    return form;
}

void TDlg61::showHelp()
{
    HelpPage help(
        QStringLiteral("colourPrintingOptionsHelpDialog"),
        QStringLiteral("Colour Printing Options"),
        QStringLiteral(
            "Tick the printouts that your printer should print in colour. On those, your "
            "cattery's name is printed in the colour chosen on the right, and some lines (the "
            "account number on the copy, the names line on the account) are printed in colour "
            "too. Untick them all to print everything in black, which saves colour ink.\n\n"
            "'A different colour each time' picks one of the colours at random for each "
            "printout.\n\n"
            "'Print the names to appear on accounts' adds the names given in Setup | Cattery "
            "Details (for example the partners of the cattery) in brackets under the cattery's "
            "name on the client's account.\n\n"
            "The choices are kept for the next time Purrlodge is started."),
        60, this, QDialogButtonBox::Ok);
    help.exec();
}

} // namespace purrlodge
