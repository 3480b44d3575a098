#include "gui/app/TDlgPictureNote.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>

#include "app/commands/HelpPages.h"
#include "gui/DialogButtons.h"
#include "gui/Text1252.h"

namespace purrlodge {

namespace {

constexpr int pictureSize = 160;

} // namespace

QPixmap notePicture(int pictureIndex)
{
    return QPixmap(
        QStringLiteral(":/pictures/picture-%1.png").arg(pictureIndex, 2, 10, QLatin1Char('0')));
}

TDlgPictureNote::TDlgPictureNote(const PictureNote& note, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("pictureNoteDialog"));
    setWindowTitle(QStringLiteral("Picture Note"));

    auto* picture = new QLabel(this);
    picture->setObjectName(QStringLiteral("pictureLabel"));
    const QPixmap pixmap = notePicture(note.pictureIndex);
    if (!pixmap.isNull()) {
        picture->setPixmap(
            pixmap.scaled(pictureSize, pictureSize, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    }

    auto* text = new QLabel(fromWindows1252(note.text), this);
    text->setObjectName(QStringLiteral("noteLabel"));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
    QFont larger = text->font();
    larger.setPointSizeF(larger.pointSizeF() * 1.15);
    text->setFont(larger);

    auto* content = new QWidget(this);
    auto* row = new QHBoxLayout(content);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(picture, 0, Qt::AlignTop);
    row->addSpacing(12);
    row->addWidget(text, 1, Qt::AlignVCenter);

    layOutAboveButtons(this, content, newButtonBox(this, QDialogButtonBox::Close));
}

} // namespace purrlodge
