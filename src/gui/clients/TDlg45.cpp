#include "gui/clients/TDlg45.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextDocumentLayout>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextLayout>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"
#include "gui/Text1252.h"
#include "gui/clients/TDlg46.h"

namespace purrlodge {

namespace {

// The longest line the note book keeps.
constexpr std::size_t lineLimit = 500;
constexpr int pageLetters = 70;
constexpr int pageRows = 18;

} // namespace

TDlg45::TDlg45(const std::string& heading, const std::vector<std::string>& lines,
               const OkRule<std::vector<std::string>>& onOk, QWidget* parent)
    : FormDialog([this, onOk] { return onOk(this->lines()); }, parent)
{
    setObjectName(QStringLiteral("noteBookDialog"));
    setWindowTitle(QStringLiteral("Note Book"));

    // Static 101.
    QLabel* headingLabel = newClientHeading(QStringLiteral("headingLabel"), this);
    headingLabel->setText(fromWindows1252(heading));

    QStringList text;
    for (const std::string& line : lines)
        text.append(fromWindows1252(line));
    notesEdit_ = new QPlainTextEdit(this);
    notesEdit_->setObjectName(QStringLiteral("notesEdit"));
    notesEdit_->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    notesEdit_->setTabChangesFocus(true);
    notesEdit_->setPlainText(text.join(u'\n'));
    notesEdit_->setMinimumSize(fontMetrics().averageCharWidth() * pageLetters,
                               fontMetrics().height() * pageRows);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                                       QDialogButtonBox::Help);
    connectHelp(this, buttons, [this] { showHelp(); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(headingLabel);
    layout->addWidget(notesEdit_, 1);
    layout->addWidget(buttons);

    notesEdit_->setFocus();
}

std::vector<std::string> TDlg45::lines() const
{
    // The edit lays out only what it has shown; every block is laid out at
    // the page's width before its lines are read.
    const auto* pageLayout =
        qobject_cast<QPlainTextDocumentLayout*>(notesEdit_->document()->documentLayout());
    std::vector<std::string> result;
    for (QTextBlock block = notesEdit_->document()->begin(); block.isValid();
         block = block.next()) {
        if (pageLayout != nullptr)
            pageLayout->ensureBlockLayout(block);
        const QString text = block.text();
        const QTextLayout* layout = block.layout();
        const int lineCount = layout != nullptr ? layout->lineCount() : 0;
        const auto add = [&](QStringView line) {
            std::string bytes = toWindows1252(line);
            if (bytes.size() > lineLimit)
                bytes.resize(lineLimit);
            result.push_back(std::move(bytes));
        };
        if (lineCount == 0)
            add(text);
        for (int i = 0; i < lineCount; ++i) {
            const QTextLine line = layout->lineAt(i);
            add(QStringView(text).mid(line.textStart(), line.textLength()));
        }
    }
    return result;
}

void TDlg45::showHelp()
{
    TDlg46 help(this);
    help.exec();
}

} // namespace purrlodge
