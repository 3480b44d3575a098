#pragma once

#include <QDialog>
#include <QPixmap>

namespace purrlodge {

struct PictureNote;

// Help | See Picture Notes: the current picture beside its note, with a
// Close button.
class TDlgPictureNote : public QDialog {
    Q_OBJECT

public:
    explicit TDlgPictureNote(const PictureNote& note, QWidget* parent = nullptr);
};

// The picture of a picture index, compiled in; a null pixmap for a picture
// that has no note (and so no picture).
[[nodiscard]] QPixmap notePicture(int pictureIndex);

} // namespace purrlodge
