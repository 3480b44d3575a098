#include "gui/app/ClockFace.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QRadialGradient>

#include "app/Session.h"
#include "gui/app/TDlgPictureNote.h"

namespace purrlodge {

namespace {

constexpr std::array<const char*, 7> weekdayNames = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                     "Thursday", "Friday", "Saturday"};
constexpr std::array<const char*, 12> monthNames = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};

const QColor ink(0x2b, 0x33, 0x40);
const QColor accent(0xb8, 0x3b, 0x2e);

// The picture-note indicator's side, in pixels.
constexpr double indicatorSize = 88;

// The point at `fraction` of a full turn clockwise from twelve, `length` from the centre.
QPointF onDial(QPointF centre, double fraction, double length)
{
    const double angle = fraction * 2.0 * std::numbers::pi;
    return {centre.x() + std::sin(angle) * length, centre.y() - std::cos(angle) * length};
}

QFont fontOfPixelSize(const QString& family, double pixelSize, QFont::Weight weight)
{
    QFont font(family);
    font.setPixelSize(std::max(1, static_cast<int>(pixelSize)));
    font.setWeight(weight);
    return font;
}

} // namespace

bool ClockFace::showsPictureNoteIndicator() const
{
    return session_.shell.pictureNoteIndicator && session_.shell.pictureHasNotes();
}

ClockFace::ClockFace(const Session& session, QWidget* parent) : QWidget(parent), session_(session)
{
    setObjectName(QStringLiteral("clockFace"));
    setAutoFillBackground(false);
}

void ClockFace::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    QLinearGradient background(0, 0, 0, height());
    background.setColorAt(0.0, QColor(0xf4, 0xef, 0xe6));
    background.setColorAt(1.0, QColor(0xe2, 0xd8, 0xc8));
    painter.fillRect(rect(), background);

    const CivilTime now = session_.ports.clock.toLocal(session_.ports.clock.now());
    const QRectF whole = QRectF(rect()).adjusted(16, 16, -16, -16);
    const double dateHeight = std::clamp(whole.height() * 0.1, 18.0, 40.0);
    QRectF clockArea(whole.left(), whole.top(), whole.width(), whole.height() - dateHeight);
    const bool indicator = showsPictureNoteIndicator();
    if (indicator) {
        // The clock keeps clear of the picture at its left, and stays centred.
        const int left =
            session_.shell.pictureTable[static_cast<std::size_t>(session_.shell.pictureIndex)]
                .first;
        const double reserve = std::max(0.0, left + indicatorSize + 8 - whole.left());
        if (clockArea.width() > 2 * reserve)
            clockArea.adjust(reserve, 0, -reserve, 0);
    }
    const QRectF dateArea(whole.left(), clockArea.bottom(), whole.width(), dateHeight);

    if (session_.shell.digitalClock)
        paintDigital(painter, clockArea, now);
    else
        paintAnalog(painter, clockArea, now);
    paintDate(painter, dateArea, now);

    if (indicator)
        paintPictureNoteIndicator(painter);
}

void ClockFace::paintAnalog(QPainter& painter, const QRectF& area, const CivilTime& time) const
{
    const double radius = std::min(area.width(), area.height()) / 2.0 - 4.0;
    if (radius < 20)
        return;
    const QPointF centre = area.center();

    // Rim and dial.
    QRadialGradient rim(centre, radius);
    rim.setColorAt(0.90, QColor(0x5a, 0x4a, 0x3c));
    rim.setColorAt(1.00, QColor(0x3a, 0x2e, 0x25));
    painter.setPen(Qt::NoPen);
    painter.setBrush(rim);
    painter.drawEllipse(centre, radius, radius);

    const double dial = radius * 0.92;
    QRadialGradient face(centre - QPointF(dial * 0.3, dial * 0.3), dial * 1.5);
    face.setColorAt(0.0, Qt::white);
    face.setColorAt(1.0, QColor(0xec, 0xe6, 0xdc));
    painter.setBrush(face);
    painter.drawEllipse(centre, dial, dial);

    // Minute and hour marks.
    for (int mark = 0; mark < 60; ++mark) {
        const bool hour = mark % 5 == 0;
        const double outer = dial * 0.94;
        const double inner = dial * (hour ? 0.80 : 0.89);
        painter.setPen(QPen(ink, hour ? std::max(2.0, dial * 0.025) : std::max(1.0, dial * 0.008),
                            Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(onDial(centre, mark / 60.0, inner), onDial(centre, mark / 60.0, outer));
    }

    // Numerals.
    painter.setPen(ink);
    painter.setFont(fontOfPixelSize(QStringLiteral("Times New Roman"), dial * 0.15, QFont::Normal));
    for (int hour = 1; hour <= 12; ++hour) {
        const QPointF at = onDial(centre, hour / 12.0, dial * 0.64);
        const QRectF box(at.x() - dial * 0.15, at.y() - dial * 0.12, dial * 0.3, dial * 0.24);
        painter.drawText(box, Qt::AlignCenter, QString::number(hour));
    }

    // Hands: the hour hand moves on with the minutes.
    const double minuteTurn = (time.minute + time.second / 60.0) / 60.0;
    const double hourTurn = ((time.hour % 12) + minuteTurn) / 12.0;
    painter.setPen(QPen(ink, std::max(4.0, dial * 0.055), Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(onDial(centre, hourTurn, -dial * 0.08), onDial(centre, hourTurn, dial * 0.5));
    painter.setPen(QPen(ink, std::max(3.0, dial * 0.035), Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(onDial(centre, minuteTurn, -dial * 0.1),
                     onDial(centre, minuteTurn, dial * 0.78));

    painter.setPen(Qt::NoPen);
    painter.setBrush(accent);
    painter.drawEllipse(centre, dial * 0.05, dial * 0.05);
}

void ClockFace::paintDigital(QPainter& painter, const QRectF& area, const CivilTime& time) const
{
    const double panelWidth = std::min(area.width() * 0.85, area.height() * 2.4);
    const double panelHeight = panelWidth / 2.4;
    if (panelHeight < 20)
        return;
    const QRectF panel(area.center().x() - panelWidth / 2, area.center().y() - panelHeight / 2,
                       panelWidth, panelHeight);

    QLinearGradient body(panel.topLeft(), panel.bottomLeft());
    body.setColorAt(0.0, QColor(0x2a, 0x2d, 0x33));
    body.setColorAt(1.0, QColor(0x14, 0x16, 0x1a));
    painter.setPen(QPen(QColor(0x5a, 0x4a, 0x3c), std::max(3.0, panelHeight * 0.03)));
    painter.setBrush(body);
    painter.drawRoundedRect(panel, panelHeight * 0.1, panelHeight * 0.1);

    // "Digital SF" is the program's seven-segment face (substituted at start).
    QFont segments =
        fontOfPixelSize(QStringLiteral("Digital SF"), panelHeight * 0.5, QFont::Normal);
    painter.setFont(segments);
    const QString reading = QStringLiteral("%1:%2")
                                .arg(time.hour, 2, 10, QLatin1Char('0'))
                                .arg(time.minute, 2, 10, QLatin1Char('0'));
    // The unlit segments first, as on a real display.
    painter.setPen(QColor(0x3a, 0x24, 0x22));
    painter.drawText(panel, Qt::AlignCenter, QStringLiteral("88:88"));
    painter.setPen(QColor(0xff, 0x5a, 0x3c));
    painter.drawText(panel, Qt::AlignCenter, reading);
}

void ClockFace::paintDate(QPainter& painter, const QRectF& area, const CivilTime& time) const
{
    const auto weekday = static_cast<std::size_t>(std::clamp(time.weekday, 0, 6));
    const auto month = static_cast<std::size_t>(std::clamp(time.month, 1, 12) - 1);
    const QString date = QStringLiteral("%1, %2 %3 %4")
                             .arg(QString::fromLatin1(weekdayNames[weekday]))
                             .arg(time.day)
                             .arg(QString::fromLatin1(monthNames[month]))
                             .arg(time.year);
    painter.setPen(ink);
    painter.setFont(
        fontOfPixelSize(QStringLiteral("Times New Roman"), area.height() * 0.6, QFont::Normal));
    painter.drawText(area, Qt::AlignCenter, date);
}

void ClockFace::paintPictureNoteIndicator(QPainter& painter) const
{
    // The current picture, small, at its place from the picture table: at the
    // left, where a round or wide clock leaves room. A corner badge marks it
    // as a note to read under Help | See Picture Notes.
    const int picture = session_.shell.pictureIndex;
    const auto [left, top] = session_.shell.pictureTable[static_cast<std::size_t>(picture)];
    const QPixmap pixmap = notePicture(picture);
    const QRectF frame(left, top, indicatorSize, indicatorSize);
    if (!pixmap.isNull())
        painter.drawPixmap(frame, pixmap, QRectF(pixmap.rect()));

    const double badgeSize = indicatorSize * 0.34;
    const QRectF badge(frame.right() - badgeSize * 0.75, frame.top() - badgeSize * 0.25, badgeSize,
                       badgeSize);
    painter.setPen(QPen(QColor(0x8a, 0x6d, 0x1f), 1.5));
    painter.setBrush(QColor(0xf6, 0xd3, 0x6b));
    painter.drawEllipse(badge);
    painter.setPen(ink);
    QFont noteFont = font();
    noteFont.setPixelSize(static_cast<int>(badgeSize * 0.62));
    noteFont.setBold(true);
    painter.setFont(noteFont);
    painter.drawText(badge, Qt::AlignCenter, QStringLiteral("i"));

    QFont captionFont = font();
    captionFont.setPixelSize(12);
    painter.setFont(captionFont);
    painter.setPen(ink);
    painter.drawText(QRectF(frame.left() - 20, frame.bottom() + 2, frame.width() + 40, 16),
                     Qt::AlignHCenter | Qt::AlignTop, QStringLiteral("Picture note"));
}

} // namespace purrlodge
