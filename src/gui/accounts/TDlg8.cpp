#include "gui/accounts/TDlg8.h"

#include <tuple>

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "accounts/AccountRecord.h"
#include "clients/ClientFormQuestions.h"
#include "gui/CatCheckBoxes.h"
#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"
#include "gui/FrontWindow.h"
#include "gui/HelpPage.h"
#include "gui/RadioButtons.h"
#include "gui/Text1252.h"
#include "gui/accounts/TDlg47.h"
#include "gui/accounts/TDlg9.h"
#include "gui/clients/TDlg16.h"
#include "gui/ports/QtUi.h"

namespace purrlodge {

namespace {

// The descriptions are kept in 81-byte fields of the account: 80 characters.
constexpr std::size_t descriptionFieldWidth = sizeof(AccountRecord::extrasDescription);
// An amount or percentage; a credit may carry a word before its pound sign.
constexpr std::size_t amountFieldWidth = 16;
// The standard extra's amount is read to its seventh character.
constexpr std::size_t extraAmountFieldWidth = 8;
// A receipt number of up to nine digits.
constexpr std::size_t receiptFieldWidth = 10;
// A description shows this many letters; a longer one scrolls.
constexpr int descriptionLetters = 44;
QPushButton* newActionButton(const QString& text, const QString& objectName, QWidget* parent)
{
    auto* button = new QPushButton(text, parent);
    button->setObjectName(objectName);
    // Return keeps meaning OK wherever the cursor is.
    button->setAutoDefault(false);
    return button;
}

void keepPlaceWhenHidden(QWidget* widget)
{
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}

} // namespace

TDlg8::TDlg8(const AccountPreparationForm& initial, AccountPreparation& preparation,
             AcceptForm acceptForm, ShowSpecialNotes showSpecialNotes, QWidget* parent)
    : FormDialog([this, acceptForm = std::move(acceptForm)] { return acceptForm(form()); }, parent),
      preparation_(preparation), showSpecialNotes_(std::move(showSpecialNotes)), shown_(initial),
      extra_(initial.standardExtra)
{
    setObjectName(QStringLiteral("accountPreparationDialog"));
    setWindowTitle(QStringLiteral("Account Preparation"));

    clientLabel_ = newClientHeading(QStringLiteral("clientLabel"), this);

    // Built in the order the Tab key visits them: the stay, the money, the
    // printing, then the buttons.
    QGroupBox* stayBox = buildStayBox();
    QGroupBox* chargesBox = buildChargesBox();
    QGroupBox* printingBox = buildPrintingBox();

    specialNotesButton_ =
        newActionButton(QStringLiteral("There are Special Notes &for this Client"),
                        QStringLiteral("specialNotesButton"), this);
    specialNotesButton_->setVisible(initial.hasSpecialNotes);
    specialNotesButton_->setEnabled(static_cast<bool>(showSpecialNotes_));
    connect(specialNotesButton_, &QPushButton::clicked, this, [this] { showSpecialNotes_(this); });

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                                       QDialogButtonBox::Help);
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    connectHelp(this, buttons, [this] { showHelp(); });

    auto* bottom = new QHBoxLayout;
    bottom->addWidget(specialNotesButton_);
    bottom->addStretch(1);
    bottom->addWidget(buttons);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(clientLabel_);
    layout->addWidget(stayBox);
    layout->addWidget(chargesBox);
    layout->addWidget(printingBox);
    layout->addLayout(bottom);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    setKeyboardOrder({specialNotesButton_, buttons->button(QDialogButtonBox::Ok),
                      buttons->button(QDialogButtonBox::Cancel),
                      buttons->button(QDialogButtonBox::Help)});
    fill(initial);
    // The opening computation says nothing of a refusal: the buttons do.
    showCharges(preparation_.recompute(initial));

    // With the stay's dates known the extras come next; otherwise the dates.
    if (!initial.arrival.empty() && !initial.departure.empty())
        extrasDescriptionEdit_->setFocus();
    else
        alterDatesButton_->setFocus();
}

QGroupBox* TDlg8::buildStayBox()
{
    auto* box = new QGroupBox(QStringLiteral("Stay"), this);
    box->setObjectName(QStringLiteral("stayGroupBox"));

    arrivalLabel_ = newStaticLabel(QStringLiteral("arrivalLabel"), box);
    departureLabel_ = newStaticLabel(QStringLiteral("departureLabel"), box);
    QFont bold = arrivalLabel_->font();
    bold.setBold(true);
    arrivalLabel_->setFont(bold);
    departureLabel_->setFont(bold);
    alterDatesButton_ =
        newActionButton(QStringLiteral("&Alter Dates"), QStringLiteral("alterDatesButton"), box);
    connect(alterDatesButton_, &QPushButton::clicked, this, &TDlg8::alterDates);

    auto* dates = new QHBoxLayout;
    dates->addWidget(new QLabel(QStringLiteral("Arrival:"), box));
    dates->addWidget(arrivalLabel_);
    dates->addSpacing(24);
    dates->addWidget(new QLabel(QStringLiteral("Departure:"), box));
    dates->addWidget(departureLabel_);
    dates->addStretch(1);
    dates->addWidget(alterDatesButton_);

    catBoxes_ = std::make_unique<CatCheckBoxes>(box);
    QGridLayout* cats = catBoxes_->grid();

    auto* column = new QVBoxLayout(box);
    column->addLayout(dates);
    column->addLayout(cats);
    return box;
}

QGroupBox* TDlg8::buildChargesBox()
{
    auto* box = new QGroupBox(QStringLiteral("Account"), this);
    box->setObjectName(QStringLiteral("chargesGroupBox"));

    receiptEdit_ = newNumberEdit(QStringLiteral("receiptNumberEdit"), receiptFieldWidth, 10, box);
    auto* receipt = new QHBoxLayout;
    receipt->addWidget(newBuddyLabel(QStringLiteral("&Receipt No."), receiptEdit_, box));
    receipt->addWidget(receiptEdit_);
    receipt->addStretch(1);

    const int descriptionWidth = fontMetrics().averageCharWidth() * descriptionLetters;
    const auto description = [&](const QString& objectName) {
        QLineEdit* edit = newFieldEdit(objectName, descriptionFieldWidth, box);
        edit->setMinimumWidth(descriptionWidth);
        return edit;
    };
    const auto amount = [&](const QString& objectName) {
        return newNumberEdit(objectName, amountFieldWidth, 10, box);
    };
    extrasDescriptionEdit_ = description(QStringLiteral("extrasDescriptionEdit"));
    extrasAmountEdit_ = amount(QStringLiteral("extrasAmountEdit"));
    creditDescriptionEdit_ = description(QStringLiteral("creditDescriptionEdit"));
    creditAmountEdit_ = amount(QStringLiteral("creditAmountEdit"));
    discountDescriptionEdit_ = description(QStringLiteral("discountDescriptionEdit"));
    discountPercentageEdit_ = amount(QStringLiteral("discountPercentageEdit"));

    auto* grid = new QGridLayout;
    grid->addWidget(new QLabel(QStringLiteral("Description"), box), 0, 1);
    grid->addWidget(new QLabel(QStringLiteral("Amount"), box), 0, 2, Qt::AlignRight);
    const std::array<std::tuple<QString, QLineEdit*, QLineEdit*>, 3> rows{{
        {QStringLiteral("&Extras"), extrasDescriptionEdit_, extrasAmountEdit_},
        {QStringLiteral("Cre&dit"), creditDescriptionEdit_, creditAmountEdit_},
        {QStringLiteral("D&iscount"), discountDescriptionEdit_, discountPercentageEdit_},
    }};
    int row = 1;
    for (const auto& [label, descriptionEdit, amountEdit] : rows) {
        grid->addWidget(newBuddyLabel(label, descriptionEdit, box), row, 0);
        grid->addWidget(descriptionEdit, row, 1);
        grid->addWidget(amountEdit, row, 2, Qt::AlignRight);
        ++row;
    }
    grid->addWidget(new QLabel(QStringLiteral("%"), box), row - 1, 3);

    // The standard extra: its name under the descriptions, its amount under
    // the amounts, both shown once "Yes" is pressed.
    standardExtraHeading_ = new QLabel(QStringLiteral("Standard Extra"), box);
    auto* group = new QButtonGroup(this);
    extraYesRadioButton_ = newRadioButton(QStringLiteral("&Yes"),
                                          QStringLiteral("extraYesRadioButton"), group, box, 1);
    extraNoRadioButton_ =
        newRadioButton(QStringLiteral("&No"), QStringLiteral("extraNoRadioButton"), group, box, 0);
    connect(group, &QButtonGroup::idToggled, this, [this](int id, bool checked) {
        if (checked)
            chooseExtra(id == 1);
    });
    keepOneTabStop(group);
    extraNameLabel_ = newStaticLabel(QStringLiteral("extraNameLabel"), box);
    extraAmountEdit_ =
        newNumberEdit(QStringLiteral("extraAmountEdit"), extraAmountFieldWidth, 10, box);
    keepPlaceWhenHidden(extraNameLabel_);
    keepPlaceWhenHidden(extraAmountEdit_);
    auto* extra = new QHBoxLayout;
    extra->addWidget(extraYesRadioButton_);
    extra->addWidget(extraNoRadioButton_);
    extra->addSpacing(12);
    extra->addWidget(extraNameLabel_, 1);
    grid->addWidget(standardExtraHeading_, row, 0);
    grid->addLayout(extra, row, 1);
    grid->addWidget(extraAmountEdit_, row, 2, Qt::AlignRight);

    // What the stay comes to, and the buttons that work it out again.
    countLabel_ = newStaticLabel(QStringLiteral("countLabel"), box);
    chargeLabel_ = newStaticLabel(QStringLiteral("chargeLabel"), box);
    QFont bold = countLabel_->font();
    bold.setBold(true);
    countLabel_->setFont(bold);
    chargeLabel_->setFont(bold);
    registerChangeButton_ = newActionButton(QStringLiteral("Press to re&gister any Change"),
                                            QStringLiteral("registerChangeButton"), box);
    testDiscountButton_ = newActionButton(QStringLiteral("&Test Discount"),
                                          QStringLiteral("testDiscountButton"), box);
    connect(registerChangeButton_, &QPushButton::clicked, this, &TDlg8::registerChange);
    connect(testDiscountButton_, &QPushButton::clicked, this, &TDlg8::testDiscount);
    auto* charge = new QHBoxLayout;
    charge->addWidget(countLabel_);
    charge->addSpacing(16);
    charge->addWidget(chargeLabel_);
    charge->addStretch(1);
    charge->addWidget(registerChangeButton_);
    charge->addWidget(testDiscountButton_);

    auto* column = new QVBoxLayout(box);
    column->addLayout(receipt);
    column->addLayout(grid);
    column->addSpacing(4);
    column->addLayout(charge);
    return box;
}

QGroupBox* TDlg8::buildPrintingBox()
{
    auto* box = new QGroupBox(QStringLiteral("Printing"), this);
    box->setObjectName(QStringLiteral("printingGroupBox"));

    namesLineCheckBox_ = newCheckBox(QStringLiteral("Insert &Mews' Names"),
                                     QStringLiteral("namesLineCheckBox"), box);
    omitTopSheetCheckBox_ =
        newCheckBox(QStringLiteral("OmitTop &Sheet"), QStringLiteral("omitTopSheetCheckBox"), box);
    omitCopyCheckBox_ =
        newCheckBox(QStringLiteral("Omit Co&py"), QStringLiteral("omitCopyCheckBox"), box);
    auto* options = new QHBoxLayout;
    options->addWidget(namesLineCheckBox_);
    options->addSpacing(16);
    options->addWidget(omitTopSheetCheckBox_);
    options->addSpacing(16);
    options->addWidget(omitCopyCheckBox_);
    options->addStretch(1);

    notesEdit_ = newFieldEdit(QStringLiteral("additionalNotesEdit"), additionalNotesLimit + 1, box);
    auto* notes = new QHBoxLayout;
    notes->addWidget(newBuddyLabel(QStringLiteral("Additiona&l Notes"), notesEdit_, box));
    notes->addWidget(notesEdit_, 1);

    auto* column = new QVBoxLayout(box);
    column->addLayout(options);
    column->addLayout(notes);
    return box;
}

// Tab goes through the dialog as it reads: the dates and cats, the receipt
// number, each row of the money left to right, the standard extra, the two
// computing buttons, the printing choices and notes, then the buttons below.
void TDlg8::setKeyboardOrder(const std::vector<QWidget*>& buttons)
{
    std::vector<QWidget*> chain{alterDatesButton_};
    chain.insert(chain.end(), catBoxes_->boxes().begin(), catBoxes_->boxes().end());
    chain.insert(chain.end(),
                 {receiptEdit_, extrasDescriptionEdit_, extrasAmountEdit_, creditDescriptionEdit_,
                  creditAmountEdit_, discountDescriptionEdit_, discountPercentageEdit_,
                  extraYesRadioButton_, extraNoRadioButton_, extraAmountEdit_,
                  registerChangeButton_, testDiscountButton_, namesLineCheckBox_,
                  omitTopSheetCheckBox_, omitCopyCheckBox_, notesEdit_});
    chain.insert(chain.end(), buttons.begin(), buttons.end());
    for (std::size_t at = 0; at + 1 < chain.size(); ++at)
        setTabOrder(chain[at], chain[at + 1]);
}

void TDlg8::fill(const AccountPreparationForm& form)
{
    clientLabel_->setText(fromWindows1252(form.clientLine));
    showDates();
    catBoxes_->show(form.cats, form.catShown);
    setFieldText(*receiptEdit_, form.receiptNumber);
    setFieldText(*extrasDescriptionEdit_, form.extrasDescription);
    setFieldText(*extrasAmountEdit_, form.extrasAmount);
    setFieldText(*creditDescriptionEdit_, form.creditDescription);
    setFieldText(*creditAmountEdit_, form.creditAmount);
    setFieldText(*discountDescriptionEdit_, form.discountDescription);
    setFieldText(*discountPercentageEdit_, form.discountPercentage);
    extraNameLabel_->setText(fromWindows1252(form.standardExtra.nameText));
    setFieldText(*extraAmountEdit_, form.standardExtra.amountText);
    showStandardExtra();
    namesLineCheckBox_->setChecked(form.insertNamesLine);
    omitTopSheetCheckBox_->setChecked(form.omitTopSheet);
    omitCopyCheckBox_->setChecked(form.omitCopy);
    setFieldText(*notesEdit_, form.additionalNotes);
}

AccountPreparationForm TDlg8::form() const
{
    AccountPreparationForm form = shown_;
    catBoxes_->readTicks(form.cats);
    form.receiptNumber = fieldText(*receiptEdit_);
    form.extrasDescription = fieldText(*extrasDescriptionEdit_);
    form.extrasAmount = fieldText(*extrasAmountEdit_);
    form.creditDescription = fieldText(*creditDescriptionEdit_);
    form.creditAmount = fieldText(*creditAmountEdit_);
    form.discountDescription = fieldText(*discountDescriptionEdit_);
    form.discountPercentage = fieldText(*discountPercentageEdit_);
    form.standardExtra = extra_;
    form.standardExtra.amountText = fieldText(*extraAmountEdit_);
    form.insertNamesLine = namesLineCheckBox_->isChecked();
    form.omitTopSheet = omitTopSheetCheckBox_->isChecked();
    form.omitCopy = omitCopyCheckBox_->isChecked();
    form.additionalNotes = fieldText(*notesEdit_);
    return form;
}

void TDlg8::showDates()
{
    arrivalLabel_->setText(fromWindows1252(shown_.arrival));
    departureLabel_->setText(fromWindows1252(shown_.departure));
}

void TDlg8::showCharges(const ChargeTexts& texts)
{
    countLabel_->setText(fromWindows1252(texts.count));
    chargeLabel_->setText(fromWindows1252(texts.basicBoardCharge));
}

void TDlg8::showStandardExtra()
{
    standardExtraHeading_->setVisible(extra_.buttonsVisible);
    extraYesRadioButton_->setVisible(extra_.buttonsVisible);
    extraNoRadioButton_->setVisible(extra_.buttonsVisible);
    extraNameLabel_->setVisible(extra_.nameAndAmountVisible);
    extraAmountEdit_->setVisible(extra_.nameAndAmountVisible);
    // Ticked as the controls say, without pressing the button again.
    const QSignalBlocker blockYes(extraYesRadioButton_);
    const QSignalBlocker blockNo(extraNoRadioButton_);
    if (extra_.yesTicked)
        extraYesRadioButton_->setChecked(true);
    else if (extra_.noTicked)
        extraNoRadioButton_->setChecked(true);
}

void TDlg8::chooseExtra(bool charged)
{
    // The amount as typed stays what it is.
    extra_.amountText = fieldText(*extraAmountEdit_);
    chooseStandardExtra(extra_, charged);
    showStandardExtra();
}

std::optional<ChargeTexts> TDlg8::recomputeAndShow()
{
    ChargeTexts texts = preparation_.recompute(form());
    if (texts.refusal) {
        showMessageBox(*texts.refusal, this);
        return std::nullopt;
    }
    showCharges(texts);
    return texts;
}

void TDlg8::registerChange()
{
    recomputeAndShow();
}

void TDlg8::testDiscount()
{
    if (const std::optional<ChargeTexts> texts = recomputeAndShow()) {
        TDlg9 calculation(texts->discountTest, this);
        calculation.exec();
    }
}

void TDlg8::alterDates()
{
    TDlg47 dialog(
        shown_.arrival, shown_.departure,
        [this](const std::string& arrival, const std::string& departure) {
            AccountPreparationForm entries = form();
            const AccountDatesCheck check = preparation_.alterDates(entries, arrival, departure);
            if (check.verdict != AccountDatesVerdict::GoOn) {
                // Over New Dates for Account, which stays open as typed.
                TDlg16 warning(
                    DateWarning{"Apparent Date Error", check.code, check.message, check.dateLabel},
                    TDlg16::Choice::Close, frontWindow(this));
                warning.exec();
                return FormVerdict::StayOpen;
            }
            shown_.arrival = entries.arrival;
            shown_.departure = entries.departure;
            return FormVerdict::Accept;
        },
        this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    showDates();
    recomputeAndShow();
}

void TDlg8::showHelp()
{
    HelpPage help(
        QStringLiteral("accountPreparationHelpDialog"), QStringLiteral("Account Preparation Help"),
        QStringLiteral(
            "Check the stay first. The arrival and departure dates are shown at the top; if "
            "they are wrong, press Alter Dates and type the right ones (dd/mm/yy). Tick the "
            "cats that boarded: the board is charged for the cats ticked.\n\n"
            "The receipt number offered is the next in turn. Type over it only to give this "
            "account another number; the count of receipts then stays where it is.\n\n"
            "Extras and Credit: a description and an amount each. A credit may be typed after "
            "a note and a pound sign, as in \"Deposit \u00a320\". Discount: a description and "
            "a percentage of the board charge.\n\n"
            "Standard extra: press Yes to charge it on this account (its amount may be changed "
            "for this account alone) or No to leave it off.\n\n"
            "Press to register any Change shows the days and the board charge again after a "
            "change; Test Discount shows what the discount comes to.\n\n"
            "OmitTop Sheet and Omit Copy leave the client's account or your copy unprinted. "
            "The Additional Notes are printed at the foot of this account.\n\n"
            "OK prints the account and files it in the client's account book."),
        60, this);
    help.exec();
}

} // namespace purrlodge
