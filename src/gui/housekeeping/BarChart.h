#pragma once

#include <QStringList>
#include <QVector>
#include <QWidget>

namespace purrlodge {

// Vertical bars with a label under each and the largest value marked on the
// axis, drawn with QPainter to fit whatever room the widget has. Labels that
// would collide are thinned out.
class BarChart : public QWidget {
    Q_OBJECT

public:
    explicit BarChart(QWidget* parent = nullptr);

    // The bars, left to right; `caption` names what they measure.
    void setBars(const QStringList& labels, const QVector<double>& values, const QString& caption);

    [[nodiscard]] int barCount() const { return static_cast<int>(values_.size()); }

    [[nodiscard]] QSize sizeHint() const override { return {600, 220}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {200, 120}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QStringList labels_;
    QVector<double> values_;
    QString caption_;
};

} // namespace purrlodge
