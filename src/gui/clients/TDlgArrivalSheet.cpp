#include "gui/clients/TDlgArrivalSheet.h"

#include <string_view>
#include <vector>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextCursor>
#include <QTextEdit>
#include <QVBoxLayout>

#include "clients/ClientDetails.h"
#include "gui/CatCheckBoxes.h"
#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"
#include "gui/HelpPage.h"
#include "gui/Text1252.h"

namespace purrlodge {

namespace {

// A line of the client's checks that stands out is marked by a red note's
// marker and a space; the marker itself is not shown.
constexpr std::string_view redCheckPrefix = "#R# ";
// The colour of a red note and of a vaccination status that is not in order.
const QColor warningRed(0xC0, 0x00, 0x00);
// The long lines show this many letters; a longer one scrolls.
constexpr int lineLetters = 44;
// The remarks are short: a time, "morning".
constexpr int remarkLetters = 16;
// The checks show this many letters to a line before they wrap.
constexpr int checksLetters = 40;
void setTextColour(QWidget* widget, const QColor& colour)
{
    QPalette palette = widget->palette();
    palette.setColor(QPalette::Text, colour);
    widget->setPalette(palette);
}

} // namespace

TDlgArrivalSheet::TDlgArrivalSheet(const ArrivalForm& initial, const RatesRecord& rates,
                                   OkRule<ArrivalForm> onOk, std::function<void()> printRegister,
                                   QWidget* parent)
    : FormDialog([this, onOk = std::move(onOk)] { return onOk(form()); }, parent), shown_(initial),
      rates_(rates), printRegister_(std::move(printRegister))
{
    setObjectName(QStringLiteral("arrivalSheetDialog"));
    setWindowTitle(QStringLiteral("Arrival Sheet"));

    clientLabel_ = newClientHeading(QStringLiteral("clientLabel"), this);

    // Built in the order the Tab key visits them: down the left column (the
    // stay, then what goes with it), down the right (the checks and the
    // sheets), then the buttons along the bottom.
    QGroupBox* stayBox = buildStayBox();
    QGroupBox* thisStayBox = buildThisStayBox();

    vaccinationEdit_ =
        newFieldEdit(QStringLiteral("vaccinationEdit"), sizeof(StayRecord::dialogText), this);
    connect(vaccinationEdit_, &QLineEdit::textChanged, this,
            &TDlgArrivalSheet::showVaccinationColour);
    auto* vaccination = new QHBoxLayout;
    vaccination->addWidget(newBuddyLabel(QStringLiteral("&Vaccinations"), vaccinationEdit_, this));
    vaccination->addWidget(vaccinationEdit_, 1);

    auto* checksBox = new QGroupBox(QStringLiteral("Check with the owner"), this);
    checksBox->setObjectName(QStringLiteral("clientChecksGroupBox"));
    clientChecksText_ = new QTextEdit(checksBox);
    clientChecksText_->setObjectName(QStringLiteral("clientChecksText"));
    clientChecksText_->setReadOnly(true);
    clientChecksText_->setTabChangesFocus(true);
    clientChecksText_->setMinimumWidth(fontMetrics().averageCharWidth() * checksLetters);
    auto* checksColumn = new QVBoxLayout(checksBox);
    checksColumn->addWidget(clientChecksText_);

    QGroupBox* printBox = buildPrintBox();

    registerButton_ = new QPushButton(QStringLiteral("Admission Re&gister..."), this);
    registerButton_->setObjectName(QStringLiteral("admissionRegisterButton"));
    // Return keeps meaning OK wherever the cursor is.
    registerButton_->setAutoDefault(false);
    registerButton_->setEnabled(static_cast<bool>(printRegister_));
    connect(registerButton_, &QPushButton::clicked, this, [this] { printRegister_(); });

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                                       QDialogButtonBox::Help);
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    connectHelp(this, buttons, [this] { showHelp(); });

    auto* left = new QVBoxLayout;
    left->addWidget(stayBox);
    left->addWidget(thisStayBox);
    left->addLayout(vaccination);
    left->addStretch(1);
    auto* right = new QVBoxLayout;
    right->addWidget(checksBox, 1);
    right->addWidget(printBox);
    auto* columns = new QHBoxLayout;
    columns->addLayout(left);
    columns->addLayout(right);

    auto* bottom = new QHBoxLayout;
    bottom->addWidget(registerButton_);
    bottom->addStretch(1);
    bottom->addWidget(buttons);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(clientLabel_);
    layout->addLayout(columns);
    layout->addSpacing(4);
    layout->addLayout(bottom);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    std::vector<QWidget*> chain{arrivalEdit_, arrivalRemarkEdit_, departureEdit_,
                                departureRemarkEdit_};
    chain.insert(chain.end(), catBoxes_->boxes().begin(), catBoxes_->boxes().end());
    chain.insert(chain.end(),
                 {standardExtraCheckBox_, medicationEdit_, feedingChangesEdit_,
                  emergencyContactEdit_, itemsBroughtEdit_, vaccinationEdit_, clientChecksText_});
    chain.insert(chain.end(), sheetBox_.begin(), sheetBox_.end());
    chain.insert(chain.end(), {registerButton_, buttons->button(QDialogButtonBox::Ok),
                               buttons->button(QDialogButtonBox::Cancel),
                               buttons->button(QDialogButtonBox::Help)});
    for (std::size_t at = 0; at + 1 < chain.size(); ++at)
        setTabOrder(chain[at], chain[at + 1]);

    fill(initial);

    // A new stay starts with its dates; a stay already booked with what has
    // changed since.
    if (initial.arrival.empty())
        arrivalEdit_->setFocus();
    else
        medicationEdit_->setFocus();
}

QGroupBox* TDlgArrivalSheet::buildStayBox()
{
    auto* box = new QGroupBox(QStringLiteral("Stay"), this);
    box->setObjectName(QStringLiteral("stayGroupBox"));

    const int dateWidth = fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000")) * 3 / 2;
    const int remarkWidth = fontMetrics().averageCharWidth() * remarkLetters;
    const auto date = [&](const QString& objectName) {
        QLineEdit* edit = newFieldEdit(objectName, stayDateTypedLimit + 1, box);
        edit->setFixedWidth(dateWidth);
        connect(edit, &QLineEdit::textChanged, this, &TDlgArrivalSheet::showStayLength);
        return edit;
    };
    const auto remark = [&](const QString& objectName) {
        QLineEdit* edit = newFieldEdit(objectName, stayRemarkTypedLimit + 1, box);
        edit->setMinimumWidth(remarkWidth);
        return edit;
    };
    arrivalEdit_ = date(QStringLiteral("arrivalDateEdit"));
    arrivalRemarkEdit_ = remark(QStringLiteral("arrivalRemarkEdit"));
    departureEdit_ = date(QStringLiteral("departureDateEdit"));
    departureRemarkEdit_ = remark(QStringLiteral("departureRemarkEdit"));

    lengthLabel_ = newStaticLabel(QStringLiteral("stayLengthLabel"), box);
    QFont bold = lengthLabel_->font();
    bold.setBold(true);
    lengthLabel_->setFont(bold);

    auto* dates = new QGridLayout;
    dates->addWidget(new QLabel(QStringLiteral("Date (dd/mm/yy)"), box), 0, 1);
    dates->addWidget(new QLabel(QStringLiteral("Remark"), box), 0, 2);
    dates->addWidget(newBuddyLabel(QStringLiteral("&Arrival"), arrivalEdit_, box), 1, 0);
    dates->addWidget(arrivalEdit_, 1, 1);
    dates->addWidget(arrivalRemarkEdit_, 1, 2);
    dates->addWidget(newBuddyLabel(QStringLiteral("&Departure"), departureEdit_, box), 2, 0);
    dates->addWidget(departureEdit_, 2, 1);
    dates->addWidget(departureRemarkEdit_, 2, 2);
    dates->addWidget(new QLabel(QStringLiteral("Length"), box), 3, 0);
    dates->addWidget(lengthLabel_, 3, 1, 1, 2);
    dates->setColumnStretch(2, 1);

    catBoxes_ = std::make_unique<CatCheckBoxes>(box);
    QGridLayout* cats = catBoxes_->grid();

    standardExtraCheckBox_ = newCheckBox(QString(), QStringLiteral("standardExtraCheckBox"), box);

    auto* column = new QVBoxLayout(box);
    column->addLayout(dates);
    column->addSpacing(4);
    column->addLayout(cats);
    column->addWidget(standardExtraCheckBox_);
    return box;
}

QGroupBox* TDlgArrivalSheet::buildThisStayBox()
{
    auto* box = new QGroupBox(QStringLiteral("For this stay"), this);
    box->setObjectName(QStringLiteral("thisStayGroupBox"));

    const int lineWidth = fontMetrics().averageCharWidth() * lineLetters;
    const auto line = [&](const QString& objectName) {
        QLineEdit* edit = newFieldEdit(objectName, stayLineTypedLimit + 1, box);
        edit->setMinimumWidth(lineWidth);
        return edit;
    };
    medicationEdit_ = line(QStringLiteral("medicationEdit"));
    feedingChangesEdit_ = line(QStringLiteral("feedingChangesEdit"));
    emergencyContactEdit_ = line(QStringLiteral("emergencyContactEdit"));
    itemsBroughtEdit_ = line(QStringLiteral("itemsBroughtEdit"));

    auto* rows = new QFormLayout(box);
    rows->addRow(QStringLiteral("&Medication"), medicationEdit_);
    rows->addRow(QStringLiteral("&Feeding changes"), feedingChangesEdit_);
    rows->addRow(QStringLiteral("&Emergency contact"), emergencyContactEdit_);
    rows->addRow(QStringLiteral("&Items brought"), itemsBroughtEdit_);
    return box;
}

QGroupBox* TDlgArrivalSheet::buildPrintBox()
{
    auto* box = new QGroupBox(QStringLiteral("Print"), this);
    box->setObjectName(QStringLiteral("printGroupBox"));
    sheetBox_[0] = newCheckBox(QStringLiteral("Arrival Sheet-&1 (pen card)"),
                               QStringLiteral("penCardCheckBox"), box);
    sheetBox_[1] = newCheckBox(QStringLiteral("Arrival Sheet-&2 (owner's copy)"),
                               QStringLiteral("ownersCopyCheckBox"), box);
    sheetBox_[2] =
        newCheckBox(QStringLiteral("&Return sheet"), QStringLiteral("returnSheetCheckBox"), box);
    auto* column = new QVBoxLayout(box);
    for (QCheckBox* sheet : sheetBox_)
        column->addWidget(sheet);
    return box;
}

void TDlgArrivalSheet::fill(const ArrivalForm& form)
{
    clientLabel_->setText(fromWindows1252(form.clientLine));
    setFieldText(*arrivalEdit_, form.arrival);
    setFieldText(*arrivalRemarkEdit_, form.arrivalRemark);
    setFieldText(*departureEdit_, form.departure);
    setFieldText(*departureRemarkEdit_, form.departureRemark);
    showStayLength();
    catBoxes_->show(form.cats, form.catShown);
    standardExtraCheckBox_->setText(checkBoxText(form.standardExtraName) +
                                    QStringLiteral(" wanted"));
    standardExtraCheckBox_->setChecked(form.standardExtraWanted);
    standardExtraCheckBox_->setVisible(!form.standardExtraName.empty());
    setFieldText(*medicationEdit_, form.medication);
    setFieldText(*feedingChangesEdit_, form.feedingChanges);
    setFieldText(*emergencyContactEdit_, form.emergencyContact);
    setFieldText(*itemsBroughtEdit_, form.itemsBrought);
    setFieldText(*vaccinationEdit_, form.vaccinationStatus);
    showVaccinationColour();
    showClientChecks(form.clientChecks);
    for (std::size_t sheet = 0; sheet < sheetBox_.size(); ++sheet)
        sheetBox_[sheet]->setChecked(form.sheets[sheet]);
}

ArrivalForm TDlgArrivalSheet::form() const
{
    ArrivalForm form = shown_;
    form.arrival = fieldText(*arrivalEdit_);
    form.arrivalRemark = fieldText(*arrivalRemarkEdit_);
    form.departure = fieldText(*departureEdit_);
    form.departureRemark = fieldText(*departureRemarkEdit_);
    catBoxes_->readTicks(form.cats);
    form.standardExtraWanted = standardExtraCheckBox_->isChecked();
    form.medication = fieldText(*medicationEdit_);
    form.feedingChanges = fieldText(*feedingChangesEdit_);
    form.emergencyContact = fieldText(*emergencyContactEdit_);
    form.itemsBrought = fieldText(*itemsBroughtEdit_);
    form.vaccinationStatus = fieldText(*vaccinationEdit_);
    for (std::size_t sheet = 0; sheet < sheetBox_.size(); ++sheet)
        form.sheets[sheet] = sheetBox_[sheet]->isChecked();
    return form;
}

// One paragraph per check, a red one in red without its marker.
void TDlgArrivalSheet::showClientChecks(const std::vector<std::string>& lines)
{
    clientChecksText_->clear();
    QTextCursor cursor(clientChecksText_->document());
    QTextCharFormat plain;
    QTextCharFormat red;
    red.setForeground(warningRed);
    bool first = true;
    for (const std::string& line : lines) {
        if (!first)
            cursor.insertBlock();
        first = false;
        const std::string_view text(line);
        if (text.starts_with(redCheckPrefix))
            cursor.insertText(fromWindows1252(text.substr(redCheckPrefix.size())), red);
        else
            cursor.insertText(fromWindows1252(text), plain);
    }
    clientChecksText_->moveCursor(QTextCursor::Start);
}

void TDlgArrivalSheet::showStayLength()
{
    lengthLabel_->setText(fromWindows1252(
        stayLengthText(fieldText(*arrivalEdit_), fieldText(*departureEdit_), rates_)));
}

void TDlgArrivalSheet::showVaccinationColour()
{
    const bool inOrder = fieldText(*vaccinationEdit_) == vaccinationCertsOk;
    setTextColour(vaccinationEdit_, inOrder ? palette().color(QPalette::Text) : warningRed);
}

void TDlgArrivalSheet::showHelp()
{
    HelpPage help(
        QStringLiteral("arrivalSheetHelpDialog"), QStringLiteral("Arrival Sheet Help"),
        QStringLiteral(
            "Fill this in when a stay is booked or when the cats arrive.\n\n"
            "Stay: type the arrival and departure dates (dd/mm/yy), each with a remark if you "
            "wish, such as the time or \"morning\". The length of the stay is shown as you type. "
            "Tick the cats that are staying, and the standard extra if it is wanted.\n\n"
            "For this stay: any medication, changes to the usual feeding, who to call in an "
            "emergency while the owner is away, and the things brought with the cats, which "
            "the return sheet lists so that they go home again.\n\n"
            "Vaccinations shows whether the cats' certificates are in date; it is red when "
            "they are not. You may change the text before it is printed.\n\n"
            "Check with the owner lists what the client's record says of feeding, vet, chip, "
            "insurance and notes, so that it can be confirmed at the door.\n\n"
            "The sheets: Arrival Sheet-1 goes with the cats to their pen, Arrival Sheet-2 is "
            "the owner's copy, and the Return sheet is the checklist for the day the cats go "
            "home. Tick the ones to print.\n\n"
            "OK saves the stay, so that Issue Account finds its dates and cats, and prints the "
            "sheets ticked. Admission Register prints the register of arrivals for a period."),
        60, this);
    help.exec();
}

} // namespace purrlodge
