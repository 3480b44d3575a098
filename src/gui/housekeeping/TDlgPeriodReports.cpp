#include "gui/housekeeping/TDlgPeriodReports.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

#include "gui/Text1252.h"
#include "gui/housekeeping/BarChart.h"

namespace purrlodge {

namespace {

// Clients shown in the usage chart: more would crowd the labels.
constexpr int chartedClients = 15;

QTableWidget* newTable(const ReportTable& table, QWidget* parent)
{
    auto* widget = new QTableWidget(static_cast<int>(table.rows.size()),
                                    static_cast<int>(table.columns.size()), parent);
    QStringList headings;
    for (const ReportTable::Column& column : table.columns)
        headings << fromWindows1252(column.heading);
    widget->setHorizontalHeaderLabels(headings);
    widget->verticalHeader()->hide();
    widget->setEditTriggers(QAbstractItemView::NoEditTriggers);
    widget->setSelectionBehavior(QAbstractItemView::SelectRows);
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        const bool bold = table.lastRowBold && row + 1 == table.rows.size();
        for (std::size_t cell = 0; cell < table.rows[row].size() && cell < table.columns.size();
             ++cell) {
            auto* item = new QTableWidgetItem(fromWindows1252(table.rows[row][cell]));
            item->setTextAlignment(
                (table.columns[cell].rightAligned ? Qt::AlignRight : Qt::AlignLeft) |
                Qt::AlignVCenter);
            if (bold) {
                QFont font = item->font();
                font.setBold(true);
                item->setFont(font);
            }
            widget->setItem(static_cast<int>(row), static_cast<int>(cell), item);
        }
    }
    // The first column (months, clients) takes the room the figures leave.
    widget->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    widget->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    return widget;
}

void fillChart(BarChart& chart, const PeriodReportsView& view, PeriodReport report)
{
    QStringList labels;
    QVector<double> values;
    const PeriodFigures& figures = view.figures;
    if (report == PeriodReport::ClientUsage) {
        const std::vector<ClientUsage> top = rankedByCash(figures.clients, chartedClients);
        for (std::size_t rank = 0; rank < top.size(); ++rank) {
            labels << QString::number(rank + 1);
            values << top[rank].cash / 100.0;
        }
        chart.setBars(
            labels, values,
            QStringLiteral("Cash of the first %1 clients, by their rank").arg(chartedClients));
        return;
    }
    for (const MonthFigures& month : figures.months) {
        labels << fromWindows1252(monthLabel(month));
        values << (report == PeriodReport::FinancialSummary ? month.balances
                                                            : occupancyHundredths(month)) /
                      100.0;
    }
    chart.setBars(labels, values,
                  report == PeriodReport::FinancialSummary
                      ? QStringLiteral("Balances of the accounts, by month")
                      : QStringLiteral("Average cats in residence per day, by month"));
}

QString objectNameOf(PeriodReport report, const char* what)
{
    static const char* const names[] = {"financialSummary", "daysUse", "clientUsage"};
    return QString::fromLatin1(names[static_cast<int>(report)]) + QString::fromLatin1(what);
}

} // namespace

TDlgPeriodReports::TDlgPeriodReports(const PeriodReportsView& view,
                                     std::function<void(PeriodReport)> print, QWidget* parent)
    : QDialog(parent), print_(std::move(print))
{
    setObjectName(QStringLiteral("periodReportsDialog"));
    setWindowTitle(QStringLiteral("Client Usage"));

    auto* period =
        new QLabel(QStringLiteral("Accounts arriving from %1 (%2 accounts from %3 clients)")
                       .arg(fromWindows1252(view.period))
                       .arg(view.figures.totals.accounts)
                       .arg(view.figures.clients.size()),
                   this);
    tabs_ = new QTabWidget(this);
    tabs_->setObjectName(QStringLiteral("reportTabs"));
    for (PeriodReport report :
         {PeriodReport::FinancialSummary, PeriodReport::DaysUse, PeriodReport::ClientUsage})
        tabs_->addTab(newReportTab(view, report),
                      fromWindows1252(std::string(periodReportTitle(report))));

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(period);
    layout->addWidget(tabs_, 1);
    layout->addWidget(buttons);
    resize(1000, 700);
}

QWidget* TDlgPeriodReports::newReportTab(const PeriodReportsView& view, PeriodReport report)
{
    auto* tab = new QWidget(this);
    tab->setObjectName(objectNameOf(report, "Tab"));
    auto* layout = new QVBoxLayout(tab);
    auto* chart = new BarChart(tab);
    chart->setObjectName(objectNameOf(report, "Chart"));
    fillChart(*chart, view, report);
    layout->addWidget(chart, 2);
    // Two rankings stand side by side.
    auto* tables = new QHBoxLayout;
    for (const ReportTable& table : view.tables[static_cast<std::size_t>(report)]) {
        auto* column = new QVBoxLayout;
        if (!table.subtitle.empty())
            column->addWidget(new QLabel(fromWindows1252(table.subtitle), tab));
        column->addWidget(newTable(table, tab));
        tables->addLayout(column);
    }
    layout->addLayout(tables, 3);
    auto* printButton = new QPushButton(QStringLiteral("&Print"), tab);
    printButton->setObjectName(objectNameOf(report, "PrintButton"));
    connect(printButton, &QPushButton::clicked, this, [this, report] { print_(report); });
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(printButton);
    layout->addLayout(row);
    return tab;
}

} // namespace purrlodge
