#include "gui/clients/TDlg62.h"

#include <algorithm>

#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTextCursor>
#include <QVBoxLayout>

#include "clients/NoteBook.h"
#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"
#include "gui/HelpPage.h"
#include "gui/Text1252.h"

namespace purrlodge {

namespace {

constexpr int memoLetters = 60;
constexpr int memoRows = 10;

// The text as the memo file will keep it.
std::string memoBytes(const QString& text)
{
    return memoFileText(toWindows1252(text));
}

QLabel* newText(const QString& objectName, const QString& text, QWidget* parent)
{
    QLabel* label = newStaticLabel(objectName, parent);
    label->setText(text);
    label->setWordWrap(true);
    return label;
}

} // namespace

TDlg62::TDlg62(const std::string& memo, const OkRule<std::string>& onOk, QWidget* parent)
    : FormDialog([this, onOk] { return onOk(this->memo()); }, parent)
{
    setObjectName(QStringLiteral("autoMemoDialog"));
    setWindowTitle(QStringLiteral("Auto Memo"));

    QLabel* guide = newText(QStringLiteral("guideLabel"),
                            QStringLiteral("Enter the Memo you wish to be brought to your notice "
                                           "when you create an Arrival Sheet or Account for this "
                                           "client."),
                            this);
    QLabel* addTo = newText(QStringLiteral("addToLabel"),
                            QStringLiteral("(You can add to, or modify, any existing memo "
                                           "displayed)"),
                            this);

    memoEdit_ = new QPlainTextEdit(this);
    memoEdit_->setObjectName(QStringLiteral("memoEdit"));
    memoEdit_->setTabChangesFocus(true);
    memoEdit_->setPlainText(fromWindows1252(memo));
    memoEdit_->setMinimumSize(fontMetrics().averageCharWidth() * memoLetters,
                              fontMetrics().height() * memoRows);
    memoEdit_->moveCursor(QTextCursor::End);
    keepWithinLimit();
    connect(memoEdit_, &QPlainTextEdit::textChanged, this, &TDlg62::keepWithinLimit);

    QDialogButtonBox* buttons = newButtonBox(
        this, QDialogButtonBox::Save | QDialogButtonBox::Cancel | QDialogButtonBox::Help);
    buttons->button(QDialogButtonBox::Save)->setText(QStringLiteral("&Save"));
    connectHelp(this, buttons, [this] { showHelp(); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(guide);
    layout->addWidget(memoEdit_, 1);
    layout->addWidget(addTo);
    layout->addWidget(buttons);

    memoEdit_->setFocus();
}

std::string TDlg62::memo() const
{
    return memoBytes(memoEdit_->toPlainText());
}

void TDlg62::keepWithinLimit()
{
    std::size_t size = memoBytes(memoEdit_->toPlainText()).size();
    if (size <= autoMemoLimit)
        return;
    // What went past the limit is what was just typed or pasted: it is taken
    // back from before the cursor (from the end when the cursor is at the
    // start). The removal changes the text again, which needs no second look.
    const QSignalBlocker quiet(memoEdit_);
    QTextCursor cursor = memoEdit_->textCursor();
    cursor.beginEditBlock();
    while (size > autoMemoLimit) {
        if (cursor.atStart())
            cursor.movePosition(QTextCursor::End);
        cursor.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor);
        QString removed = cursor.selectedText();
        removed.replace(QChar::ParagraphSeparator, u'\n');
        size -= std::min(size, memoBytes(removed).size());
        cursor.removeSelectedText();
    }
    cursor.endEditBlock();
    memoEdit_->setTextCursor(cursor);
}

void TDlg62::showHelp()
{
    HelpPage help(QStringLiteral("autoMemoHelpDialog"), QStringLiteral("Auto Memo Help"),
                  QStringLiteral("Type a short memo about this client, up to 1000 characters. It "
                                 "is shown to you each time an Arrival Sheet or an Account is "
                                 "made for the client, and you can then delete it or leave it "
                                 "for next time.\n\n"
                                 "Save keeps the memo as it stands; Cancel leaves the memo as it "
                                 "was."),
                  50, this);
    help.exec();
}

} // namespace purrlodge
