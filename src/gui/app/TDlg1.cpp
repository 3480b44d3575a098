#include "gui/app/TDlg1.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"

namespace purrlodge {

namespace {
// The folder is kept in an 81-byte buffer: 80 characters and the terminator.
constexpr std::size_t folderFieldWidth = 81;
} // namespace

TDlg1::TDlg1(const std::string& suggestion, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("directorySetupDialog"));
    setWindowTitle(QStringLiteral("Directory Setup"));

    auto* intro = new QLabel(
        QStringLiteral("Purrlodge keeps all of its cat-data in one folder.\n"
                       "Please give the folder to use (it is made if it does not exist yet):"),
        this);
    intro->setObjectName(QStringLiteral("introLabel"));

    folderEdit_ = newFieldEdit(QStringLiteral("folderEdit"), folderFieldWidth, this);
    setFieldText(*folderEdit_, suggestion);
    folderEdit_->setMinimumWidth(fontMetrics().averageCharWidth() * 60);
    folderEdit_->selectAll();

    QLabel* label = newBuddyLabel(QStringLiteral("&Data folder:"), folderEdit_, this);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(intro);
    layout->addWidget(label);
    layout->addWidget(folderEdit_);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

std::string TDlg1::folder() const
{
    return fieldText(*folderEdit_);
}

} // namespace purrlodge
