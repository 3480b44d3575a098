#include "gui/app/TDlg30.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"
#include "gui/app/TDlg31.h"

namespace purrlodge {

namespace {
// The folder is kept in an 81-byte buffer: 80 characters and the terminator.
constexpr std::size_t folderFieldWidth = 81;
} // namespace

TDlg30::TDlg30(const std::string& current, const OkRule<std::string>& onOk, QWidget* parent)
    : FormDialog([this, onOk] { return onOk(fieldText(*folderEdit_)); }, parent)
{
    setObjectName(QStringLiteral("changeDataSourceDialog"));
    setWindowTitle(QStringLiteral("Change Data Source"));

    folderEdit_ = newFieldEdit(QStringLiteral("folderEdit"), folderFieldWidth, this);
    setFieldText(*folderEdit_, current);
    folderEdit_->setMinimumWidth(fontMetrics().averageCharWidth() * 60);
    folderEdit_->selectAll();

    QLabel* label = newBuddyLabel(QStringLiteral("&Folder of the data set to use from now on:"),
                                  folderEdit_, this);

    auto* browseButton = new QPushButton(QStringLiteral("&Browse..."), this);
    browseButton->setObjectName(QStringLiteral("browseButton"));
    browseButton->setAutoDefault(false);
    connect(browseButton, &QPushButton::clicked, this, &TDlg30::browse);

    auto* folderRow = new QHBoxLayout;
    folderRow->addWidget(folderEdit_, 1);
    folderRow->addWidget(browseButton);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                                       QDialogButtonBox::Help);
    // Return always means OK, even after Help was clicked; F1 opens the help too.
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    connectHelp(this, buttons, [this] { showHelp(); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addLayout(folderRow);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void TDlg30::browse()
{
    const QString chosen = QFileDialog::getExistingDirectory(
        this, QStringLiteral("Select Directory"), folderEdit_->text());
    if (!chosen.isEmpty())
        folderEdit_->setText(QDir::toNativeSeparators(chosen));
}

void TDlg30::showHelp()
{
    TDlg31 help(this);
    help.exec();
}

} // namespace purrlodge
