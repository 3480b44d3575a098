#include "gui/housekeeping/TDlg42.h"

#include <QButtonGroup>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"
#include "gui/RadioButtons.h"
#include "gui/Text1252.h"
#include "gui/housekeeping/TDlg43.h"

namespace purrlodge {

namespace {

constexpr int textLetters = 64;

QLabel* newTextLabel(const QString& objectName, std::string_view text, QWidget* parent)
{
    QLabel* label = newStaticLabel(objectName, parent);
    label->setText(fromWindows1252(text));
    return label;
}

void makeSmall(QWidget* widget)
{
    QFont small = widget->font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    widget->setFont(small);
}

// The letter the drive edit names, if it holds just one.
std::optional<char> driveLetterOf(const std::string& drive)
{
    if (drive.size() != 1)
        return std::nullopt;
    const char letter = drive.front();
    if ((letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z'))
        return letter;
    return std::nullopt;
}

// The letter as the person sees it named: in capitals.
QString driveName(char letter)
{
    return QString(QChar(QLatin1Char(letter)).toUpper());
}

} // namespace

TDlg42::TDlg42(const BackupOptionsDialog& dialog, QWidget* parent)
    : FormDialog([this] { return judge(); }, parent), dialog_(dialog)
{
    setObjectName(QStringLiteral("backupOptionsDialog"));
    setWindowTitle(QStringLiteral("Backup Options"));

    auto* content = new QWidget(this);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(newTextLabel(QStringLiteral("dataFilesLabel"), dialog.dataFilesText, this));
    column->addWidget(newTextLabel(QStringLiteral("estimateLabel"), dialog.estimateText, this));
    column->addSpacing(8);

    choices_ = new QButtonGroup(this);
    floppyButton_ = newRadioButton(QStringLiteral("Use &Floppy (drive A:)"),
                                   QStringLiteral("floppyButton"), choices_, this);
    otherDriveButton_ = newRadioButton(QStringLiteral("Use &another drive"),
                                       QStringLiteral("otherDriveButton"), choices_, this);
    keepOneTabStop(choices_);
    connect(floppyButton_, &QRadioButton::clicked, this, [this] { choose(BackupMedium::Floppy); });
    connect(otherDriveButton_, &QRadioButton::clicked, this,
            [this] { choose(BackupMedium::OtherDrive); });
    column->addWidget(floppyButton_);
    column->addWidget(otherDriveButton_);

    floppyTexts_ = new QWidget(this);
    auto* floppyColumn = new QVBoxLayout(floppyTexts_);
    floppyColumn->setContentsMargins(0, 0, 0, 0);
    floppyColumn->addWidget(
        newTextLabel(QStringLiteral("floppyWarningLabel"), backupText::floppyWarning, this));
    floppyColumn->addWidget(
        newTextLabel(QStringLiteral("floppyPatienceLabel"), backupText::floppyPatience, this));
    auto* floppyBrowse = new QPushButton(QStringLiteral("B&rowse..."), floppyTexts_);
    floppyBrowse->setObjectName(QStringLiteral("floppyBrowseButton"));
    floppyBrowse->setAutoDefault(false);
    connect(floppyBrowse, &QPushButton::clicked, this, [this] { browseForDriveFolder('A'); });
    floppyFolderLabel_ = newStaticLabel(QStringLiteral("floppyFolderLabel"), floppyTexts_);
    makeSmall(floppyFolderLabel_);
    auto* floppyRow = new QHBoxLayout;
    floppyRow->addWidget(floppyBrowse);
    floppyRow->addWidget(floppyFolderLabel_, 1);
    floppyColumn->addLayout(floppyRow);
    column->addWidget(floppyTexts_);

    folderControls_ = new QWidget(this);
    auto* folderColumn = new QVBoxLayout(folderControls_);
    folderColumn->setContentsMargins(0, 0, 0, 0);
    folderColumn->addWidget(newTextLabel(QStringLiteral("instructionLabel"),
                                         backupText::folderInstruction, folderControls_));
    folderColumn->addSpacing(8);
    folderEdit_ = newFieldEdit(QStringLiteral("folderEdit"), backupFolderLength + 1, this);
    folderColumn->addWidget(newTextLabel(QStringLiteral("folderPromptLabel"),
                                         backupText::folderPrompt, folderControls_));
    folderColumn->addWidget(folderEdit_);
    folderColumn->addSpacing(8);
    driveEdit_ = newFieldEdit(QStringLiteral("driveEdit"), backupDriveLength + 1, this);
    driveEdit_->setFixedWidth(driveEdit_->fontMetrics().horizontalAdvance(QStringLiteral("WW")) +
                              16);
    folderColumn->addWidget(
        newTextLabel(QStringLiteral("drivePromptLabel"), backupText::drivePrompt, folderControls_));
    auto* browse = new QPushButton(QStringLiteral("&Browse..."), folderControls_);
    browse->setObjectName(QStringLiteral("browseButton"));
    browse->setAutoDefault(false);
    connect(browse, &QPushButton::clicked, this, &TDlg42::browseForTypedDrive);
    driveFolderLabel_ = newStaticLabel(QStringLiteral("driveFolderLabel"), folderControls_);
    makeSmall(driveFolderLabel_);
    auto* driveRow = new QHBoxLayout;
    driveRow->addWidget(driveEdit_);
    driveRow->addWidget(browse);
    driveRow->addWidget(driveFolderLabel_, 1);
    folderColumn->addLayout(driveRow);
    column->addWidget(folderControls_);
    connect(driveEdit_, &QLineEdit::textChanged, this, &TDlg42::showDriveFolders);

    column->addSpacing(12);
    QLabel* reminder = newTextLabel(QStringLiteral("reminderLabel"), dialog.reminderNote, this);
    reminder->setWordWrap(true);
    reminder->setMinimumWidth(fontMetrics().averageCharWidth() * textLetters);
    makeSmall(reminder);
    column->addWidget(reminder);

    buttons_ = newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                      QDialogButtonBox::Help);
    buttons_->button(QDialogButtonBox::Ok)->setDefault(true);
    connectHelp(this, buttons_, [this] { showHelp(); });

    layOutAboveButtons(this, content, buttons_);

    showEntries(dialog.entries, false);
}

BackupOptions TDlg42::entries() const
{
    return {medium_, fieldText(*folderEdit_), fieldText(*driveEdit_)};
}

FormVerdict TDlg42::judge()
{
    BackupOptions entries = this->entries();
    const BackupMedium chosen = entries.medium;
    const FormVerdict verdict = dialog_.onOk(entries);
    if (verdict == FormVerdict::StayOpen)
        showEntries(entries, entries.medium != chosen);
    return verdict;
}

void TDlg42::accept()
{
    // The backup lets the window system in while it copies: a second OK must
    // not start a second backup, nor Cancel end the dialog under it.
    if (running_)
        return;
    running_ = true;
    buttons_->setEnabled(false);
    FormDialog::accept();
    buttons_->setEnabled(true);
    running_ = false;
}

void TDlg42::reject()
{
    if (!running_)
        FormDialog::reject();
}

void TDlg42::showEntries(const BackupOptions& entries, bool choiceShown)
{
    setFieldText(*folderEdit_, entries.folder);
    setFieldText(*driveEdit_, entries.drive);
    showMedium(entries.medium, choiceShown);
}

void TDlg42::showMedium(BackupMedium medium, bool choiceShown)
{
    medium_ = medium;
    // Nothing is ticked until the person chooses, which the group alone
    // would not allow.
    choices_->setExclusive(false);
    floppyButton_->setChecked(medium == BackupMedium::Floppy);
    otherDriveButton_->setChecked(medium == BackupMedium::OtherDrive);
    choices_->setExclusive(true);

    const bool choosing = medium == BackupMedium::None;
    floppyButton_->setVisible(choosing || (choiceShown && medium == BackupMedium::Floppy));
    otherDriveButton_->setVisible(choosing || (choiceShown && medium == BackupMedium::OtherDrive));
    floppyTexts_->setVisible(medium == BackupMedium::Floppy);
    folderControls_->setVisible(medium == BackupMedium::OtherDrive);
    showDriveFolders();
}

void TDlg42::choose(BackupMedium medium)
{
    showMedium(medium, false);
    if (medium == BackupMedium::OtherDrive)
        folderEdit_->setFocus();
    else
        buttons_->button(QDialogButtonBox::Ok)->setFocus();
}

QString TDlg42::driveFolderText(char letter) const
{
    const std::optional<std::string> folder = dialog_.driveFolder(letter);
    return folder ? QStringLiteral("%1: stands for %2")
                        .arg(driveName(letter), fromWindows1252(*folder))
                  : QStringLiteral("%1: is not set up on this computer").arg(driveName(letter));
}

void TDlg42::showDriveFolders()
{
    floppyFolderLabel_->setText(driveFolderText('A'));
    const std::optional<char> letter = driveLetterOf(fieldText(*driveEdit_));
    if (letter)
        driveFolderLabel_->setText(driveFolderText(*letter));
    else
        driveFolderLabel_->clear();
}

void TDlg42::browseForTypedDrive()
{
    const std::optional<char> letter = driveLetterOf(fieldText(*driveEdit_));
    if (!letter) {
        QMessageBox box(QMessageBox::Information, QStringLiteral("Drive Letter"),
                        QStringLiteral("First type the drive letter (just one letter, eg: D),\n"
                                       "then click Browse... to choose the folder on this "
                                       "computer that the letter stands for."),
                        QMessageBox::Ok, this);
        box.setObjectName(QStringLiteral("driveLetterFirstBox"));
        box.exec();
        driveEdit_->setFocus();
        return;
    }
    browseForDriveFolder(*letter);
}

void TDlg42::browseForDriveFolder(char letter)
{
    const std::optional<std::string> current = dialog_.driveFolder(letter);
    const QString chosen = QFileDialog::getExistingDirectory(
        this, QStringLiteral("The folder that drive %1: stands for").arg(driveName(letter)),
        current ? fromWindows1252(*current) : QDir::homePath());
    if (chosen.isEmpty())
        return;
    const QString folder = QDir::toNativeSeparators(chosen);
    const std::string bytes = toWindows1252(folder);
    // A name the data files' character set cannot spell would name another folder.
    if (fromWindows1252(bytes) != folder) {
        QMessageBox box(QMessageBox::Warning, QStringLiteral("Folder Error"),
                        QStringLiteral("The name of the folder\n      %1\nholds characters "
                                       "Purrlodge cannot keep.\nPlease choose or make another "
                                       "folder.")
                            .arg(folder),
                        QMessageBox::Ok, this);
        box.setTextFormat(Qt::PlainText);
        box.exec();
        return;
    }
    if (dialog_.setDriveFolder(letter, bytes))
        showDriveFolders();
}

void TDlg42::showHelp()
{
    TDlg43 help(this);
    help.exec();
}

} // namespace purrlodge
