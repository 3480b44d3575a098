#include "gui/accounts/TDlg13.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"
#include "gui/PackedRow.h"
#include "gui/RadioButtons.h"
#include "gui/Text1252.h"

namespace purrlodge {

namespace {

// Every text slot of the establishment record is 81 bytes with its terminator.
constexpr std::size_t slotWidth = 81;

QLineEdit* addField(QFormLayout* form, const QString& label, const QString& objectName,
                    QWidget* parent)
{
    QLineEdit* edit = newFieldEdit(objectName, slotWidth, parent);
    form->addRow(label, edit);
    return edit;
}

} // namespace

TDlg13::TDlg13(const EstablishmentForm& initial, const std::string& dataFolder,
               AcceptForm acceptForm, QWidget* parent)
    : FormDialog([this, acceptForm = std::move(acceptForm)] { return acceptForm(form()); }, parent)
{
    setObjectName(QStringLiteral("establishmentDetailsDialog"));
    setWindowTitle(QStringLiteral("Establishment Details"));

    // Statics 101 and 122: which data set these details belong to.
    auto* folderCaption =
        new QLabel(QStringLiteral("Details of the cattery whose data are in:"), this);
    folderCaption->setObjectName(QStringLiteral("dataFolderCaptionLabel"));
    auto* folderLabel = new QLabel(fromWindows1252(dataFolder), this);
    folderLabel->setObjectName(QStringLiteral("dataFolderLabel"));
    folderLabel->setTextFormat(Qt::PlainText);
    folderLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont bold = folderLabel->font();
    bold.setBold(true);
    folderLabel->setFont(bold);
    auto* folderRow = new QHBoxLayout;
    folderRow->addWidget(folderCaption);
    folderRow->addWidget(folderLabel, 1);

    // Left: who and where the cattery is.
    auto* catteryBox = new QGroupBox(QStringLiteral("The cattery"), this);
    auto* catteryForm = new QFormLayout(catteryBox);
    nameEdit_ = addField(catteryForm, QStringLiteral("Establishment &name:"),
                         QStringLiteral("nameEdit"), catteryBox);
    managerEdit_ = addField(catteryForm, QStringLiteral("&Manager:"), QStringLiteral("managerEdit"),
                            catteryBox);
    for (int line = 0; line < 4; ++line)
        addressEdit_[line] =
            addField(catteryForm, line == 0 ? QStringLiteral("&Address:") : QString(),
                     QStringLiteral("address%1Edit").arg(line + 1), catteryBox);
    telephoneEdit_ = addField(catteryForm, QStringLiteral("&Telephone:"),
                              QStringLiteral("telephoneEdit"), catteryBox);
    faxEdit_ =
        addField(catteryForm, QStringLiteral("&Fax:"), QStringLiteral("faxEdit"), catteryBox);
    emailEdit_ =
        addField(catteryForm, QStringLiteral("&E-mail:"), QStringLiteral("emailEdit"), catteryBox);
    vaccinationEdit_ = addField(catteryForm, QStringLiteral("&Vaccination valid for (years):"),
                                QStringLiteral("vaccinationPeriodEdit"), catteryBox);

    // Right: what the printouts say.
    auto* printBox = new QGroupBox(QStringLiteral("On the printouts"), this);
    auto* printForm = new QFormLayout(printBox);
    for (int line = 0; line < 3; ++line)
        arrivalSheetLineEdit_[line] =
            addField(printForm, line == 0 ? QStringLiteral("Arrival sheet &lines:") : QString(),
                     QStringLiteral("arrivalSheetLine%1Edit").arg(line + 1), printBox);
    namesOnAccountsEdit_ = addField(printForm, QStringLiteral("Names on acc&ounts:"),
                                    QStringLiteral("namesOnAccountsEdit"), printBox);
    typeSizeEdit_ = addField(printForm, QStringLiteral("Manager's name type si&ze (1-5):"),
                             QStringLiteral("typeSizeEdit"), printBox);
    typeSizeEdit_->setMaximumWidth(fontMetrics().averageCharWidth() * 8);
    chequesPayableToEdit_ = addField(printForm, QStringLiteral("C&heques payable to:"),
                                     QStringLiteral("chequesPayableToEdit"), printBox);

    auto* colourGroup = new QButtonGroup(this);
    inRedRadioButton_ = newRadioButton(QStringLiteral("In &Red"),
                                       QStringLiteral("inRedRadioButton"), colourGroup, printBox);
    inBlackRadioButton_ = newRadioButton(
        QStringLiteral("In &Black"), QStringLiteral("inBlackRadioButton"), colourGroup, printBox);
    printForm->addRow(QStringLiteral("Cheques line:"),
                      newPackedRow({inRedRadioButton_, inBlackRadioButton_}));

    arrivalSheetCheckBox_ = new QCheckBox(QStringLiteral("Arr&ival Sheet"), printBox);
    arrivalSheetCheckBox_->setObjectName(QStringLiteral("arrivalSheetCheckBox"));
    accountSheetCheckBox_ = new QCheckBox(QStringLiteral("A&ccount Sheet"), printBox);
    accountSheetCheckBox_->setObjectName(QStringLiteral("accountSheetCheckBox"));
    printForm->addRow(QStringLiteral("Cattery name on:"),
                      newPackedRow({arrivalSheetCheckBox_, accountSheetCheckBox_}));

    auto* columns = new QHBoxLayout;
    columns->addWidget(catteryBox, 1);
    columns->addWidget(printBox, 1);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(folderRow);
    layout->addLayout(columns);
    layout->addWidget(buttons);

    const int editWidth = fontMetrics().averageCharWidth() * 32;
    for (QLineEdit* edit : findChildren<QLineEdit*>())
        if (edit != typeSizeEdit_)
            edit->setMinimumWidth(editWidth);

    fill(initial);
    nameEdit_->setFocus();
}

void TDlg13::fill(const EstablishmentForm& form)
{
    setFieldText(*nameEdit_, form.name);
    setFieldText(*managerEdit_, form.manager);
    for (int line = 0; line < 4; ++line)
        setFieldText(*addressEdit_[line], form.address[line]);
    setFieldText(*telephoneEdit_, form.telephone);
    setFieldText(*faxEdit_, form.fax);
    setFieldText(*emailEdit_, form.email);
    setFieldText(*vaccinationEdit_, form.vaccinationYears);
    for (int line = 0; line < 3; ++line)
        setFieldText(*arrivalSheetLineEdit_[line], form.arrivalSheetLine[line]);
    setFieldText(*namesOnAccountsEdit_, form.namesOnAccounts);
    setFieldText(*typeSizeEdit_, form.typeSize);
    setFieldText(*chequesPayableToEdit_, form.chequesPayableTo);
    arrivalSheetCheckBox_->setChecked(form.onArrivalSheet);
    accountSheetCheckBox_->setChecked(form.onAccountSheet);
    (form.inRed ? inRedRadioButton_ : inBlackRadioButton_)->setChecked(true);
}

EstablishmentForm TDlg13::form() const
{
    EstablishmentForm form;
    form.name = fieldText(*nameEdit_);
    form.manager = fieldText(*managerEdit_);
    for (int line = 0; line < 4; ++line)
        form.address[line] = fieldText(*addressEdit_[line]);
    form.telephone = fieldText(*telephoneEdit_);
    form.fax = fieldText(*faxEdit_);
    form.email = fieldText(*emailEdit_);
    form.vaccinationYears = fieldText(*vaccinationEdit_);
    for (int line = 0; line < 3; ++line)
        form.arrivalSheetLine[line] = fieldText(*arrivalSheetLineEdit_[line]);
    form.namesOnAccounts = fieldText(*namesOnAccountsEdit_);
    form.typeSize = fieldText(*typeSizeEdit_);
    form.chequesPayableTo = fieldText(*chequesPayableToEdit_);
    form.onArrivalSheet = arrivalSheetCheckBox_->isChecked();
    form.onAccountSheet = accountSheetCheckBox_->isChecked();
    form.inRed = inRedRadioButton_->isChecked();
    return form;
}

} // namespace purrlodge
