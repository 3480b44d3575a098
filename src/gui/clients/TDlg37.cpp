#include "gui/clients/TDlg37.h"

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
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"
#include "gui/PackedRow.h"
#include "gui/RadioButtons.h"
#include "gui/clients/TDlg39.h"

namespace purrlodge {

namespace {

// The longest text field searched is 80 characters.
constexpr std::size_t searchTextWidth = 81;
constexpr int groupColumns = 3;

} // namespace

TDlg37::TDlg37(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("globalSearchDialog"));
    setWindowTitle(QStringLiteral("Global Search"));

    textEdit_ = newFieldEdit(QStringLiteral("searchTextEdit"), searchTextWidth, this);
    textEdit_->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
    QLabel* textLabel = newBuddyLabel(QStringLiteral("&Look for:"), textEdit_, this);
    auto* textRow = new QHBoxLayout;
    textRow->addWidget(textLabel);
    textRow->addWidget(textEdit_, 1);

    auto* caseBox = new QGroupBox(this);
    auto* caseGroup = new QButtonGroup(this);
    caseSpecificRadioButton_ =
        newRadioButton(QStringLiteral("Case s&pecific"), QStringLiteral("caseSpecificRadioButton"),
                       caseGroup, caseBox);
    caseIndependentRadioButton_ =
        newRadioButton(QStringLiteral("Case i&ndependent"),
                       QStringLiteral("caseIndependentRadioButton"), caseGroup, caseBox);
    (GlobalSearchRequest{}.caseSpecific ? caseSpecificRadioButton_ : caseIndependentRadioButton_)
        ->setChecked(true);
    newPackedRow({caseSpecificRadioButton_, caseIndependentRadioButton_}, caseBox);

    auto* groupsBox = new QGroupBox(QStringLiteral("Look in"), this);
    auto* groupsGrid = new QGridLayout(groupsBox);
    int placed = 0;
    auto newGroup = [&](const QString& text, const QString& objectName) {
        auto* box = new QCheckBox(text, groupsBox);
        box->setObjectName(objectName);
        groupsGrid->addWidget(box, placed / groupColumns, placed % groupColumns);
        ++placed;
        return box;
    };
    surnameCheckBox_ = newGroup(QStringLiteral("S&urname"), QStringLiteral("surnameCheckBox"));
    firstNameCheckBox_ =
        newGroup(QStringLiteral("&First name"), QStringLiteral("firstNameCheckBox"));
    styleCheckBox_ = newGroup(QStringLiteral("St&yle"), QStringLiteral("styleCheckBox"));
    addressCheckBox_ = newGroup(QStringLiteral("&Address"), QStringLiteral("addressCheckBox"));
    telMobileCheckBox_ =
        newGroup(QStringLiteral("&Tel \\ Mobile"), QStringLiteral("telMobileCheckBox"));
    vetCheckBox_ = newGroup(QStringLiteral("&Vet"), QStringLiteral("vetCheckBox"));
    catNameCheckBox_ = newGroup(QStringLiteral("&Cat Name"), QStringLiteral("catNameCheckBox"));
    catBreedCheckBox_ = newGroup(QStringLiteral("Cat &Breed"), QStringLiteral("catBreedCheckBox"));
    catColourCheckBox_ =
        newGroup(QStringLiteral("Cat C&olour"), QStringLiteral("catColourCheckBox"));
    notesAutoMemoCheckBox_ =
        newGroup(QStringLiteral("Notes/Auto&memo"), QStringLiteral("notesAutoMemoCheckBox"));
    favouriteFoodCheckBox_ =
        newGroup(QStringLiteral("Fav-Foo&d"), QStringLiteral("favouriteFoodCheckBox"));
    forbiddenFoodCheckBox_ =
        newGroup(QStringLiteral("Fo&rbid-Food"), QStringLiteral("forbiddenFoodCheckBox"));
    emailCheckBox_ = newGroup(QStringLiteral("&Email"), QStringLiteral("emailCheckBox"));

    auto* tickAllButton = new QPushButton(QStringLiteral("T&ick all"), this);
    tickAllButton->setObjectName(QStringLiteral("tickAllButton"));
    tickAllButton->setAutoDefault(false);
    auto* untickAllButton = new QPushButton(QStringLiteral("Untic&k all"), this);
    untickAllButton->setObjectName(QStringLiteral("untickAllButton"));
    untickAllButton->setAutoDefault(false);
    connect(tickAllButton, &QPushButton::clicked, this,
            [this] { setGroups(GlobalSearchGroups::all()); });
    connect(untickAllButton, &QPushButton::clicked, this,
            [this] { setGroups(GlobalSearchGroups{}); });
    QHBoxLayout* tickRow = newPackedRow({tickAllButton, untickAllButton});

    QDialogButtonBox* buttons =
        newButtonBox(this, QDialogButtonBox::Cancel | QDialogButtonBox::Help);
    QPushButton* searchButton =
        buttons->addButton(QStringLiteral("&Search"), QDialogButtonBox::AcceptRole);
    searchButton->setObjectName(QStringLiteral("searchButton"));
    searchButton->setDefault(true);
    connectHelp(this, buttons, [this] { showHelp(); });

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(textRow);
    layout->addWidget(caseBox);
    layout->addWidget(groupsBox);
    layout->addLayout(tickRow);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    textEdit_->setFocus();
}

GlobalSearchRequest TDlg37::request() const
{
    GlobalSearchRequest request;
    request.text = fieldText(*textEdit_);
    request.caseSpecific = caseSpecificRadioButton_->isChecked();
    GlobalSearchGroups& groups = request.groups;
    groups.surname = surnameCheckBox_->isChecked();
    groups.firstName = firstNameCheckBox_->isChecked();
    groups.style = styleCheckBox_->isChecked();
    groups.address = addressCheckBox_->isChecked();
    groups.telMobile = telMobileCheckBox_->isChecked();
    groups.vet = vetCheckBox_->isChecked();
    groups.catName = catNameCheckBox_->isChecked();
    groups.catBreed = catBreedCheckBox_->isChecked();
    groups.catColour = catColourCheckBox_->isChecked();
    groups.notesAutoMemo = notesAutoMemoCheckBox_->isChecked();
    groups.favouriteFood = favouriteFoodCheckBox_->isChecked();
    groups.forbiddenFood = forbiddenFoodCheckBox_->isChecked();
    groups.email = emailCheckBox_->isChecked();
    return request;
}

void TDlg37::setGroups(const GlobalSearchGroups& groups)
{
    surnameCheckBox_->setChecked(groups.surname);
    firstNameCheckBox_->setChecked(groups.firstName);
    styleCheckBox_->setChecked(groups.style);
    addressCheckBox_->setChecked(groups.address);
    telMobileCheckBox_->setChecked(groups.telMobile);
    vetCheckBox_->setChecked(groups.vet);
    catNameCheckBox_->setChecked(groups.catName);
    catBreedCheckBox_->setChecked(groups.catBreed);
    catColourCheckBox_->setChecked(groups.catColour);
    notesAutoMemoCheckBox_->setChecked(groups.notesAutoMemo);
    favouriteFoodCheckBox_->setChecked(groups.favouriteFood);
    forbiddenFoodCheckBox_->setChecked(groups.forbiddenFood);
    emailCheckBox_->setChecked(groups.email);
}

void TDlg37::showHelp()
{
    TDlg39 help(this);
    help.exec();
}

} // namespace purrlodge
