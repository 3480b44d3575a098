#include "gui/housekeeping/BarChart.h"

#include <algorithm>
#include <cmath>

#include <QPaintEvent>
#include <QPainter>

namespace purrlodge {

BarChart::BarChart(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("barChart"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void BarChart::setBars(const QStringList& labels, const QVector<double>& values,
                       const QString& caption)
{
    labels_ = labels;
    values_ = values;
    caption_ = caption;
    update();
}

void BarChart::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().base());
    const QFontMetrics metrics = fontMetrics();
    const int lineHeight = metrics.height();

    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(QRect(0, 2, width(), lineHeight), Qt::AlignHCenter, caption_);

    double largest = 0;
    for (double value : values_)
        largest = std::max(largest, value);
    const QString largestText = QString::number(largest, 'f', largest < 10 ? 2 : 0);
    const int left = metrics.horizontalAdvance(largestText) + 10;
    const QRect plot(left, lineHeight + 8, width() - left - 10, height() - 2 * lineHeight - 16);
    if (plot.width() < 10 || plot.height() < 10)
        return;

    painter.drawLine(plot.bottomLeft(), plot.bottomRight());
    painter.drawLine(plot.bottomLeft(), plot.topLeft());
    if (values_.isEmpty() || largest <= 0) {
        painter.drawText(plot, Qt::AlignCenter, QStringLiteral("Nothing in this period"));
        return;
    }
    painter.drawText(QRect(0, plot.top() - lineHeight / 2, left - 5, lineHeight),
                     Qt::AlignRight | Qt::AlignVCenter, largestText);
    painter.drawText(QRect(0, plot.bottom() - lineHeight / 2, left - 5, lineHeight),
                     Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("0"));

    const double slot = static_cast<double>(plot.width()) / values_.size();
    // Every label needs its own width; show every n-th when they would touch.
    int widest = 1;
    for (const QString& label : labels_)
        widest = std::max(widest, metrics.horizontalAdvance(label) + 6);
    const int labelStep = std::max(1, static_cast<int>(std::ceil(widest / slot)));

    const QColor barColour = palette().color(QPalette::Highlight);
    for (int bar = 0; bar < values_.size(); ++bar) {
        const double x = plot.left() + bar * slot;
        const double barHeight = std::max(0.0, values_[bar]) / largest * (plot.height() - 1);
        const QRectF shape(x + slot * 0.15, plot.bottom() - barHeight, slot * 0.7, barHeight);
        painter.fillRect(shape, barColour);
        if (bar % labelStep == 0 && bar < labels_.size())
            painter.drawText(
                QRectF(x + slot / 2 - widest / 2.0, plot.bottom() + 4, widest, lineHeight),
                Qt::AlignHCenter, labels_[bar]);
    }
}

} // namespace purrlodge
