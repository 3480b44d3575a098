#include "gui/clients/TabbedListBox.h"

#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QEvent>
#include <QFontMetricsF>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTextLayout>

#include "gui/Text1252.h"

namespace purrlodge {

namespace {

// Tabs past the last stop move on by this many average letters.
constexpr int lettersPerLooseTab = 8;
// Room left in a dialog for its margins beside a list.
constexpr int dialogMargins = 40;
// A line is laid out on one line, however long.
constexpr qreal unboundedWidth = 1.0e6;

// The gap between an item's edge and its text, as the style draws list items.
int itemTextMargin(const QWidget* widget)
{
    const QStyle* style = widget != nullptr ? widget->style() : QApplication::style();
    return style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, widget) + 1;
}

// A single laid-out line of tabbed text.
struct TabbedLine {
    TabbedLine(const QString& text, const QFont& font, const QTextOption& option)
        : layout(text, font)
    {
        layout.setTextOption(option);
        layout.beginLayout();
        line = layout.createLine();
        line.setLineWidth(unboundedWidth);
        layout.endLayout();
    }

    QTextLayout layout;
    QTextLine line;
};

// Draws an item's background as the style does, then its text with the
// list's stops.
class TabbedLineDelegate : public QStyledItemDelegate {
public:
    explicit TabbedLineDelegate(TabbedListBox* list) : QStyledItemDelegate(list), list_(list) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        QStyleOptionViewItem item = option;
        initStyleOption(&item, index);
        const QString text = item.text;
        item.text.clear();
        const QWidget* widget = item.widget;
        const QStyle* style = widget != nullptr ? widget->style() : QApplication::style();
        style->drawControl(QStyle::CE_ItemViewItem, &item, painter, widget);

        const TabbedLine tabbed(text, item.font, list_->textOption());
        const QPalette::ColorGroup group =
            (item.state & QStyle::State_Enabled) ? QPalette::Normal : QPalette::Disabled;
        const QPalette::ColorRole role =
            (item.state & QStyle::State_Selected) ? QPalette::HighlightedText : QPalette::Text;
        const QRect area = item.rect.adjusted(itemTextMargin(widget), 0, 0, 0);
        painter->save();
        painter->setClipRect(item.rect);
        painter->setPen(item.palette.color(group, role));
        tabbed.layout.draw(
            painter,
            QPointF(area.left(), area.top() + (area.height() - tabbed.line.height()) / 2.0));
        painter->restore();
    }

    // Every row is one line in the list's font, so every row is given the
    // size of the widest: the list takes all rows to be that size, and scrolls
    // across to the end of any line, without measuring each.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const int height = QStyledItemDelegate::sizeHint(option, index).height();
        return {list_->widestLine() + 2 * itemTextMargin(option.widget), height};
    }

private:
    const TabbedListBox* list_;
};

} // namespace

qreal dialogUnitsAcross(int units, const QFontMetricsF& metrics)
{
    static const QString letters =
        QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
    const qreal averageLetter = metrics.horizontalAdvance(letters) / letters.size();
    return std::round(units * averageLetter / 4.0);
}

QTextOption tabbedTextOption(std::span<const int> tabStops, const QFontMetricsF& metrics)
{
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    QList<qreal> stops;
    for (int stop : tabStops)
        stops.append(dialogUnitsAcross(stop, metrics));
    option.setTabArray(stops);
    option.setTabStopDistance(dialogUnitsAcross(4 * lettersPerLooseTab, metrics));
    return option;
}

TabbedListBox::TabbedListBox(std::span<const int> tabStops, QWidget* parent)
    : QListWidget(parent), tabStops_(tabStops.begin(), tabStops.end())
{
    setItemDelegate(new TabbedLineDelegate(this));
    setUniformItemSizes(true);
    QAbstractItemModel* items = model();
    connect(items, &QAbstractItemModel::modelReset, this, &TabbedListBox::forgetMeasures);
    connect(items, &QAbstractItemModel::rowsInserted, this, &TabbedListBox::forgetMeasures);
    connect(items, &QAbstractItemModel::rowsRemoved, this, &TabbedListBox::forgetMeasures);
    connect(items, &QAbstractItemModel::dataChanged, this, &TabbedListBox::forgetMeasures);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
}

void TabbedListBox::setLines(const std::vector<std::string>& lines)
{
    clear();
    QStringList items;
    items.reserve(static_cast<qsizetype>(lines.size()));
    for (const auto& line : lines)
        items.append(fromWindows1252(line));
    addItems(items);
}

QStringList TabbedListBox::lines() const
{
    QStringList result;
    for (int row = 0; row < count(); ++row)
        result.append(item(row)->text());
    return result;
}

const QTextOption& TabbedListBox::textOption() const
{
    if (!textOption_)
        textOption_ = tabbedTextOption(tabStops_, QFontMetricsF(font()));
    return *textOption_;
}

int TabbedListBox::widestLine() const
{
    if (!widestLine_) {
        qreal widest = 0;
        for (int row = 0; row < count(); ++row) {
            const TabbedLine tabbed(item(row)->text(), font(), textOption());
            widest = std::max(widest, tabbed.line.naturalTextWidth());
        }
        widestLine_ = static_cast<int>(std::ceil(widest));
    }
    return *widestLine_;
}

void TabbedListBox::forgetMeasures()
{
    widestLine_.reset();
}

int TabbedListBox::textIndent() const
{
    // The items start at the viewport's edge, inside the frame and any margins.
    return viewport()->geometry().left() + spacing() + itemTextMargin(this);
}

int TabbedListBox::widthFor(int dialogUnits) const
{
    return static_cast<int>(dialogUnitsAcross(dialogUnits, QFontMetricsF(font()))) +
           2 * (frameWidth() + itemTextMargin(this)) +
           style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
}

void TabbedListBox::fitToLines(int minimumRows, int minimumWidth)
{
    const QRect screenArea = screen()->availableGeometry();
    const int rowHeight = count() > 0 ? sizeHintForRow(0) : fontMetrics().height() + 2;
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    const int frames = 2 * frameWidth();
    const int widest = count() > 0 ? widestLine() + 2 * itemTextMargin(this) : 0;

    const int mostRows =
        std::max(minimumRows, (screenArea.height() * 4 / 5 - frames - scrollBar) / rowHeight);
    const int rows = std::clamp(count(), minimumRows, mostRows);
    const bool scrollsDown = count() > rows;
    const int wanted = std::max(minimumWidth, widest + frames + (scrollsDown ? scrollBar : 0));
    // A dialog opens at most two thirds of the screen wide.
    const int mostWidth = screenArea.width() * 2 / 3 - dialogMargins;
    const bool scrollsAcross = wanted > mostWidth;
    preferredSize_ = QSize(std::min(wanted, mostWidth),
                           rows * rowHeight + frames + (scrollsAcross ? scrollBar : 0));
    updateGeometry();
}

QSize TabbedListBox::sizeHint() const
{
    return preferredSize_.isValid() ? preferredSize_ : QListWidget::sizeHint();
}

void TabbedListBox::changeEvent(QEvent* event)
{
    // The stops are measured in the font: a new font moves them.
    if (event->type() == QEvent::FontChange) {
        textOption_.reset();
        widestLine_.reset();
        doItemsLayout();
    }
    QListWidget::changeEvent(event);
}

TabbedHeading::TabbedHeading(const QString& text, const TabbedListBox* list, QWidget* parent)
    : QWidget(parent), text_(text), list_(list)
{
    connect(list->horizontalScrollBar(), &QScrollBar::valueChanged, this,
            qOverload<>(&QWidget::update));
}

QSize TabbedHeading::sizeHint() const
{
    const TabbedLine tabbed(text_, font(), list_->textOption());
    return {list_->textIndent() + static_cast<int>(std::ceil(tabbed.line.naturalTextWidth())),
            fontMetrics().height() + 2};
}

void TabbedHeading::paintEvent(QPaintEvent* /*event*/)
{
    // The columns of the list scroll with it; the heading keeps step with them,
    // at the stops measured in the list's font whatever the heading's own.
    const int scrolled = list_->horizontalScrollBar()->value();
    const TabbedLine tabbed(text_, font(), list_->textOption());
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    tabbed.layout.draw(&painter, QPointF(list_->textIndent() - scrolled, 1));
}

} // namespace purrlodge
