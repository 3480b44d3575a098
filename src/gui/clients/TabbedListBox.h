#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include <QListWidget>
#include <QTextOption>
#include <QWidget>

class QFontMetricsF;

namespace purrlodge {

// The program's list boxes show lines whose columns are separated by tab
// characters and lined up at tab stops given in dialog units. These widgets
// lay such lines out with the stops converted to pixels at their own font, so
// the core's lines are shown exactly as it makes them.

// Pixels across for a distance in horizontal dialog units: a quarter of the
// font's average letter width per unit, as dialog layouts are measured.
[[nodiscard]] qreal dialogUnitsAcross(int units, const QFontMetricsF& metrics);

// The text option that puts tabs at the given stops (dialog units); beyond the
// last stop a tab moves on by eight average letters.
[[nodiscard]] QTextOption tabbedTextOption(std::span<const int> tabStops,
                                           const QFontMetricsF& metrics);

// A read-only list of tabbed lines, one item per line, selectable one at a time.
class TabbedListBox : public QListWidget {
    Q_OBJECT

public:
    explicit TabbedListBox(std::span<const int> tabStops, QWidget* parent = nullptr);

    // Replaces the items with the lines (1252 bytes, tabs kept).
    void setLines(const std::vector<std::string>& lines);

    // The lines as shown, in order.
    [[nodiscard]] QStringList lines() const;

    // Where the text of a line starts, from the list's left edge, so that a
    // heading above can line up with the columns.
    [[nodiscard]] int textIndent() const;

    // The width that shows columns up to the given dialog-unit position.
    [[nodiscard]] int widthFor(int dialogUnits) const;

    [[nodiscard]] const std::vector<int>& tabStops() const { return tabStops_; }

    // The text option with the stops at the list's font.
    [[nodiscard]] const QTextOption& textOption() const;

    // The width of the widest line's text at the list's font, in pixels.
    [[nodiscard]] int widestLine() const;

    // The list asks for room to show all its lines whole, or as much of them
    // as most of the screen holds, and at least the given rows and width.
    void fitToLines(int minimumRows, int minimumWidth);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void forgetMeasures();

    std::vector<int> tabStops_;
    QSize preferredSize_;
    // Measured when first asked for, again after a new font or new lines: a
    // list may hold thousands of lines, and the view asks for every measure
    // many times over while it lays out and paints.
    mutable std::optional<QTextOption> textOption_;
    mutable std::optional<int> widestLine_;
};

// One tabbed line drawn with the stops of a list box below it, indented as its
// items are: the column headings of a list.
class TabbedHeading : public QWidget {
    Q_OBJECT

public:
    TabbedHeading(const QString& text, const TabbedListBox* list, QWidget* parent = nullptr);

    [[nodiscard]] QString text() const { return text_; }
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString text_;
    const TabbedListBox* list_;
};

} // namespace purrlodge
