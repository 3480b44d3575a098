#include "gui/clients/TDlg3.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QVBoxLayout>

#include "clients/ClientFormRules.h"
#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"
#include "gui/clients/TDlg27.h"
#include "store/ClientRecord.h"

namespace purrlodge {

namespace {

// The record keeps the mobile number with "::" after it.
constexpr std::size_t mobileFieldWidth = sizeof(ClientRecord::mobile) - 2;
// The short boxes (year of birth, sex, chip and insurance, last vaccination,
// known) take twelve characters, as the stay dates do.
constexpr std::size_t shortBoxWidth = sizeof(ClientRecord::lastInDate);
// A red notes line is stored after "#R# ", which takes its room in the field.
constexpr std::size_t noteFieldWidth = sizeof(ClientRecord::notes[0]);
constexpr std::size_t redNoteFieldWidth = noteFieldWidth - (redNoteMarker.size() + 1);

// The width of a box that shows `sample` in full, frame and margins included.
int widthShowing(const QLineEdit& edit, const QString& sample)
{
    QStyleOptionFrame option;
    option.initFrom(&edit);
    option.lineWidth = edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &edit);
    const QMargins margins = edit.textMargins();
    // QLineEdit keeps two pixels of its own either side of the text.
    const int text =
        edit.fontMetrics().horizontalAdvance(sample) + 4 + margins.left() + margins.right();
    return edit.style()
        ->sizeFromContents(QStyle::CT_LineEdit, &option, QSize(text, edit.fontMetrics().height()),
                           &edit)
        .width();
}

QLineEdit* newShortBox(const QString& objectName, const QString& sample, QWidget* parent)
{
    QLineEdit* edit = newFieldEdit(objectName, shortBoxWidth, parent);
    edit->setFixedWidth(widthShowing(*edit, sample));
    return edit;
}

} // namespace

TDlg3::TDlg3(const ClientForm& initial, AcceptForm acceptForm, QWidget* parent)
    : FormDialog([this, acceptForm = std::move(acceptForm)] { return acceptForm(form()); }, parent),
      mode_(initial.mode)
{
    setObjectName(QStringLiteral("fullClientInformationDialog"));
    setWindowTitle(QStringLiteral("Full Client Information"));

    // Who and where on the left, the cats beside them: what a new client is
    // asked for first. Under the cats how well they are known, their last
    // stay and their foods; the notes, long lines, take the whole width below.
    auto* underCats = new QHBoxLayout;
    underCats->addWidget(buildHistoryBox());
    underCats->addWidget(buildFoodsBox(), 1);
    auto* catsColumn = new QVBoxLayout;
    catsColumn->addWidget(buildCatsBox());
    catsColumn->addLayout(underCats);
    auto* upper = new QHBoxLayout;
    upper->addWidget(buildClientBox(), 1);
    upper->addLayout(catsColumn);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                                       QDialogButtonBox::Help);
    // Return means OK from any box; F1 opens the help too.
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    connectHelp(this, buttons, [this] { showHelp(); });

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(upper);
    layout->addWidget(buildNotesBox());
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    setKeyboardOrder({buttons->button(QDialogButtonBox::Ok),
                      buttons->button(QDialogButtonBox::Cancel),
                      buttons->button(QDialogButtonBox::Help)});
    fill(initial);
    surnameEdit_->setFocus();
}

QGroupBox* TDlg3::buildClientBox()
{
    auto* box = new QGroupBox(QStringLiteral("Client"), this);
    box->setObjectName(QStringLiteral("clientGroupBox"));
    auto* form = new QFormLayout(box);

    surnameEdit_ = newFieldEdit(QStringLiteral("surnameEdit"), sizeof(ClientRecord::surname), box);
    firstNameEdit_ =
        newFieldEdit(QStringLiteral("firstNameEdit"), sizeof(ClientRecord::firstName), box);
    styleEdit_ = newFieldEdit(QStringLiteral("styleEdit"), sizeof(ClientRecord::style), box);
    styleEdit_->setFixedWidth(widthShowing(*styleEdit_, QStringLiteral("Mmmmmmmm")));
    form->addRow(QStringLiteral("&Surname"), surnameEdit_);
    form->addRow(QStringLiteral("&First Name"), firstNameEdit_);
    form->addRow(QStringLiteral("St&yle"), styleEdit_);

    for (std::size_t line = 0; line < addressEdit_.size(); ++line) {
        addressEdit_[line] = newFieldEdit(QStringLiteral("address%1Edit").arg(line + 1),
                                          sizeof(ClientRecord::address[0]), box);
        form->addRow(line == 0 ? QStringLiteral("&Address") : QString(), addressEdit_[line]);
    }
    // An address line shows whole: 36 characters.
    addressEdit_[0]->setMinimumWidth(
        widthShowing(*addressEdit_[0], QString(int(sizeof(ClientRecord::address[0]) - 1), u'n')));

    telephoneEdit_ =
        newFieldEdit(QStringLiteral("telephoneEdit"), sizeof(ClientRecord::telephone), box);
    mobileEdit_ = newFieldEdit(QStringLiteral("mobileEdit"), mobileFieldWidth, box);
    emailEdit_ = newFieldEdit(QStringLiteral("emailEdit"), sizeof(ClientRecord::email), box);
    vetEdit_ = newFieldEdit(QStringLiteral("vetEdit"), sizeof(ClientRecord::vet), box);
    form->addRow(QStringLiteral("&Tel No."), telephoneEdit_);
    form->addRow(QStringLiteral("&Mobile"), mobileEdit_);
    form->addRow(QStringLiteral("&E-mail address"), emailEdit_);
    form->addRow(QStringLiteral("&Vet"), vetEdit_);
    return box;
}

QGroupBox* TDlg3::buildCatsBox()
{
    auto* box = new QGroupBox(QStringLiteral("&Cats"), this);
    box->setObjectName(QStringLiteral("catsGroupBox"));
    auto* grid = new QGridLayout(box);
    grid->setHorizontalSpacing(4);

    static const std::array<QString, 7> headings = {QStringLiteral("Name"),
                                                    QStringLiteral("Breed"),
                                                    QStringLiteral("Colour"),
                                                    QStringLiteral("DoB\nyyyy"),
                                                    QStringLiteral("Sex\nMmFf"),
                                                    QStringLiteral("Chip/Ins\nc+- i+-"),
                                                    QStringLiteral("Last Vac\n mm/yy")};
    for (std::size_t column = 0; column < headings.size(); ++column) {
        auto* heading = new QLabel(headings[column], box);
        heading->setObjectName(QStringLiteral("catHeading%1Label").arg(column + 1));
        heading->setTextFormat(Qt::PlainText);
        heading->setAlignment(column < 3 ? Qt::AlignLeft | Qt::AlignBottom
                                         : Qt::AlignHCenter | Qt::AlignBottom);
        grid->addWidget(heading, 0, int(column) + 1);
    }

    const auto name = [](int row, const char* what) {
        return QStringLiteral("cat%1%2Edit").arg(row + 1).arg(QLatin1StringView(what));
    };
    for (int row = 0; row < catSlotCount; ++row) {
        auto* number = new QLabel(QString::number(row + 1), box);
        number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(number, row + 1, 0);

        CatRow& cat = catRows_[static_cast<std::size_t>(row)];
        cat.name = newFieldEdit(name(row, "Name"), sizeof(ClientRecord::catName[0]), box);
        cat.breed = newFieldEdit(name(row, "Breed"), sizeof(ClientRecord::catBreed[0]), box);
        cat.colour = newFieldEdit(name(row, "Colour"), sizeof(ClientRecord::catColour[0]), box);
        cat.birthYear = newShortBox(name(row, "BirthYear"), QStringLiteral("00000"), box);
        cat.sex = newShortBox(name(row, "Sex"), QStringLiteral("MM"), box);
        cat.chipInsurance = newShortBox(name(row, "ChipInsurance"), QStringLiteral("C+ I+"), box);
        cat.lastVaccination =
            newShortBox(name(row, "LastVaccination"), QStringLiteral("00/00"), box);
        // Name and breed show their twelve characters; a long colour scrolls.
        cat.name->setMinimumWidth(widthShowing(*cat.name, QStringLiteral("Nnnnnnnnnnnn")));
        cat.breed->setMinimumWidth(widthShowing(*cat.breed, QStringLiteral("Nnnnnnnnnnnn")));
        cat.colour->setMinimumWidth(widthShowing(*cat.colour, QString(19, u'n')));

        const auto boxes = cat.boxes();
        for (std::size_t column = 0; column < boxes.size(); ++column)
            grid->addWidget(boxes[column], row + 1, int(column) + 1,
                            column < 3 ? Qt::Alignment() : Qt::AlignHCenter);
    }
    return box;
}

QGroupBox* TDlg3::buildHistoryBox()
{
    auto* box = new QGroupBox(QStringLiteral("History"), this);
    box->setObjectName(QStringLiteral("historyGroupBox"));
    knownEdit_ = newShortBox(QStringLiteral("knownEdit"), QStringLiteral("000"), box);
    lastInEdit_ = newShortBox(QStringLiteral("lastInEdit"), QStringLiteral("00/00/0000"), box);
    lastOutEdit_ = newShortBox(QStringLiteral("lastOutEdit"), QStringLiteral("00/00/0000"), box);
    auto* form = new QFormLayout(box);
    form->addRow(QStringLiteral("&Known"), knownEdit_);
    form->addRow(QStringLiteral("&Last In"), lastInEdit_);
    form->addRow(QStringLiteral("Last O&ut"), lastOutEdit_);
    return box;
}

QGroupBox* TDlg3::buildNotesBox()
{
    auto* box = new QGroupBox(QStringLiteral("&Notes"), this);
    box->setObjectName(QStringLiteral("notesGroupBox"));
    auto* grid = new QGridLayout(box);
    for (std::size_t line = 0; line < noteEdit_.size(); ++line) {
        noteEdit_[line] =
            newFieldEdit(QStringLiteral("note%1Edit").arg(line + 1), noteFieldWidth, box);
        redNoteCheckBox_[line] = new QCheckBox(QStringLiteral("Red"), box);
        redNoteCheckBox_[line]->setObjectName(QStringLiteral("redNote%1CheckBox").arg(line + 1));
        connect(redNoteCheckBox_[line], &QCheckBox::toggled, this,
                [this, line] { showNoteColour(int(line)); });
        grid->addWidget(noteEdit_[line], int(line), 0);
        grid->addWidget(redNoteCheckBox_[line], int(line), 1);
    }
    // A line of notes shows whole: 80 characters.
    noteEdit_[0]->setMinimumWidth(widthShowing(*noteEdit_[0], QString(80, u'n')));
    return box;
}

QGroupBox* TDlg3::buildFoodsBox()
{
    auto* box = new QGroupBox(QStringLiteral("Foods"), this);
    box->setObjectName(QStringLiteral("foodsGroupBox"));
    auto* grid = new QGridLayout(box);
    for (std::size_t food = 0; food < foodsPerCat; ++food) {
        favouriteFoodEdit_[food] = newFieldEdit(QStringLiteral("favouriteFood%1Edit").arg(food + 1),
                                                sizeof(ClientRecord::favouriteFoods[0][0]), box);
        forbiddenFoodEdit_[food] = newFieldEdit(QStringLiteral("forbiddenFood%1Edit").arg(food + 1),
                                                sizeof(ClientRecord::forbiddenFoods[0][0]), box);
        grid->addWidget(favouriteFoodEdit_[food], int(food) + 1, 0);
        grid->addWidget(forbiddenFoodEdit_[food], int(food) + 1, 1);
    }
    grid->addWidget(newBuddyLabel(QStringLiteral("Favourite Foo&ds"), favouriteFoodEdit_[0], box),
                    0, 0);
    grid->addWidget(newBuddyLabel(QStringLiteral("Forb&idden Foods"), forbiddenFoodEdit_[0], box),
                    0, 1);
    return box;
}

// Tab goes through the form as it reads: the client's details, the cats row by
// row, known and the last stay, the favourite foods and then the forbidden
// ones, the notes with their "Red" boxes, and the buttons.
void TDlg3::setKeyboardOrder(const std::vector<QWidget*>& buttons)
{
    std::vector<QWidget*> chain{surnameEdit_, firstNameEdit_, styleEdit_};
    chain.insert(chain.end(), addressEdit_.begin(), addressEdit_.end());
    chain.insert(chain.end(), {telephoneEdit_, mobileEdit_, emailEdit_, vetEdit_});
    for (const CatRow& cat : catRows_) {
        const auto boxes = cat.boxes();
        chain.insert(chain.end(), boxes.begin(), boxes.end());
    }
    chain.insert(chain.end(), {knownEdit_, lastInEdit_, lastOutEdit_});
    chain.insert(chain.end(), favouriteFoodEdit_.begin(), favouriteFoodEdit_.end());
    chain.insert(chain.end(), forbiddenFoodEdit_.begin(), forbiddenFoodEdit_.end());
    for (std::size_t line = 0; line < noteEdit_.size(); ++line)
        chain.insert(chain.end(), {noteEdit_[line], redNoteCheckBox_[line]});
    chain.insert(chain.end(), buttons.begin(), buttons.end());
    for (std::size_t at = 0; at + 1 < chain.size(); ++at)
        setTabOrder(chain[at], chain[at + 1]);
}

void TDlg3::fill(const ClientForm& form)
{
    setFieldText(*surnameEdit_, form.surname);
    setFieldText(*firstNameEdit_, form.firstName);
    setFieldText(*styleEdit_, form.style);
    for (std::size_t line = 0; line < addressEdit_.size(); ++line)
        setFieldText(*addressEdit_[line], form.address[line]);
    setFieldText(*telephoneEdit_, form.telephone);
    setFieldText(*mobileEdit_, form.mobile);
    setFieldText(*emailEdit_, form.email);
    setFieldText(*vetEdit_, form.vet);
    for (std::size_t slot = 0; slot < catRows_.size(); ++slot) {
        const CatRow& cat = catRows_[slot];
        const CatRowEntries& entries = form.cats[slot];
        setFieldText(*cat.name, entries.name);
        setFieldText(*cat.breed, entries.breed);
        setFieldText(*cat.colour, entries.colour);
        setFieldText(*cat.birthYear, entries.birthYear);
        setFieldText(*cat.sex, entries.sex);
        setFieldText(*cat.chipInsurance, entries.chipInsurance);
        setFieldText(*cat.lastVaccination, entries.lastVaccination);
    }
    setFieldText(*knownEdit_, form.known);
    setFieldText(*lastInEdit_, form.lastIn);
    setFieldText(*lastOutEdit_, form.lastOut);
    for (std::size_t line = 0; line < noteEdit_.size(); ++line) {
        // The box first, so that a red line is not cut to the shorter length.
        redNoteCheckBox_[line]->setChecked(form.redNote[line]);
        showNoteColour(int(line));
        setFieldText(*noteEdit_[line], form.notes[line]);
    }
    for (std::size_t food = 0; food < foodsPerCat; ++food) {
        setFieldText(*favouriteFoodEdit_[food], form.favouriteFoods[food]);
        setFieldText(*forbiddenFoodEdit_[food], form.forbiddenFoods[food]);
    }
}

ClientForm TDlg3::form() const
{
    ClientForm form;
    form.mode = mode_;
    form.surname = fieldText(*surnameEdit_);
    form.firstName = fieldText(*firstNameEdit_);
    form.style = fieldText(*styleEdit_);
    for (std::size_t line = 0; line < addressEdit_.size(); ++line)
        form.address[line] = fieldText(*addressEdit_[line]);
    form.telephone = fieldText(*telephoneEdit_);
    form.mobile = fieldText(*mobileEdit_);
    form.email = fieldText(*emailEdit_);
    form.vet = fieldText(*vetEdit_);
    for (std::size_t slot = 0; slot < catRows_.size(); ++slot) {
        const CatRow& cat = catRows_[slot];
        CatRowEntries& entries = form.cats[slot];
        entries.name = fieldText(*cat.name);
        entries.breed = fieldText(*cat.breed);
        entries.colour = fieldText(*cat.colour);
        entries.birthYear = fieldText(*cat.birthYear);
        entries.sex = fieldText(*cat.sex);
        entries.chipInsurance = fieldText(*cat.chipInsurance);
        entries.lastVaccination = fieldText(*cat.lastVaccination);
    }
    form.known = fieldText(*knownEdit_);
    form.lastIn = fieldText(*lastInEdit_);
    form.lastOut = fieldText(*lastOutEdit_);
    for (std::size_t line = 0; line < noteEdit_.size(); ++line) {
        form.notes[line] = fieldText(*noteEdit_[line]);
        form.redNote[line] = redNoteCheckBox_[line]->isChecked();
    }
    for (std::size_t food = 0; food < foodsPerCat; ++food) {
        form.favouriteFoods[food] = fieldText(*favouriteFoodEdit_[food]);
        form.forbiddenFoods[food] = fieldText(*forbiddenFoodEdit_[food]);
    }
    return form;
}

// A red line shows in red, and takes only what fits beside its marker.
void TDlg3::showNoteColour(int line)
{
    QLineEdit* edit = noteEdit_[static_cast<std::size_t>(line)];
    const bool red = redNoteCheckBox_[static_cast<std::size_t>(line)]->isChecked();
    QPalette palette = edit->palette();
    palette.setColor(QPalette::Text,
                     red ? QColor(0xC0, 0x00, 0x00) : this->palette().color(QPalette::Text));
    edit->setPalette(palette);
    edit->setMaxLength(int(red ? redNoteFieldWidth : noteFieldWidth) - 1);
}

void TDlg3::showHelp()
{
    TDlg27 help(this);
    help.exec();
}

} // namespace purrlodge
