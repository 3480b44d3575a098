#pragma once

#include <QWidget>

namespace purrlodge {

class Session;
struct CivilTime;

// The main window's client area: the clock, analog or digital as the shell
// state says, with today's date beneath it, and the picture-note indicator
// when it is on and the current picture has a note. It paints the session's
// state afresh each time; the window repaints it once a minute.
class ClockFace : public QWidget {
    Q_OBJECT

public:
    explicit ClockFace(const Session& session, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override { return {560, 400}; }

    // Whether the picture-note indicator is drawn: it is switched on and the
    // current picture has a note.
    [[nodiscard]] bool showsPictureNoteIndicator() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintAnalog(QPainter& painter, const QRectF& area, const CivilTime& time) const;
    void paintDigital(QPainter& painter, const QRectF& area, const CivilTime& time) const;
    void paintDate(QPainter& painter, const QRectF& area, const CivilTime& time) const;
    void paintPictureNoteIndicator(QPainter& painter) const;

    const Session& session_;
};

} // namespace purrlodge
