#include "gui/clients/TDlg80.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "clients/NoteBook.h"
#include "gui/FieldEdit.h"

namespace purrlodge {

namespace {

constexpr int noteLetters = 80;

} // namespace

TDlg80::TDlg80(const std::string& note, const OkRule<std::string>& onOk, QWidget* parent)
    : FormDialog([this, onOk] { return onOk(fieldText(*noteEdit_)); }, parent)
{
    setObjectName(QStringLiteral("accountNoteDialog"));
    setWindowTitle(QStringLiteral("Account Note"));

    noteEdit_ = newFieldEdit(QStringLiteral("noteEdit"), accountNoteLimit + 1, this);
    setFieldText(*noteEdit_, note);
    noteEdit_->setMinimumWidth(fontMetrics().averageCharWidth() * noteLetters);
    QLabel* label = newBuddyLabel(QStringLiteral("&Enter the note you wish to appear at the "
                                                 "bottom of Account Sheets (Max 120 chars)"),
                                  noteEdit_, this);

    auto* rows = new QVBoxLayout;
    rows->addWidget(label);
    rows->addWidget(noteEdit_);
    layOutRows(rows);

    noteEdit_->setFocus();
}

} // namespace purrlodge
