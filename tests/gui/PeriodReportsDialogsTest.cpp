#include <QTabWidget>

#include "gui/ShellFixture.h"
#include "gui/housekeeping/BarChart.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

class PeriodReportsDialogsTest : public QObject {
    Q_OBJECT

private slots:
    void clientUsageAsksThePeriodThenShowsChartsAndPrints()
    {
        ShellFixture shell;
        shell.session.currentYear = 2023;
        shell.addClient("Nguyen", {"Tibbles"});
        QVERIFY(shell.window.actionsFor(command::clientUsage).first()->isEnabled());

        int bars = 0;
        int tabs = 0;
        ModalAnswers answers({
            [](QWidget* d) {
                retype(d, u"fromDateEdit"_s, u"01/11/23"_s);
                retype(d, u"toDateEdit"_s, u"31/10/23"_s);
                pressOk(d);
            },
            pressOk, // the period ends before it starts
            [](QWidget* d) {
                retype(d, u"toDateEdit"_s, u"30/11/23"_s);
                pressOk(d);
            },
            [&](QWidget* d) {
                tabs = child<QTabWidget>(d, u"reportTabs"_s)->count();
                bars = child<BarChart>(d, u"daysUseChart"_s)->barCount();
                button(d, u"financialSummaryPrintButton"_s)->click();
                standardButton(d, QDialogButtonBox::Close)->click();
            },
        });
        shell.trigger(command::clientUsage);
        QCOMPARE(answers.seen(), u"Client Usage|Report Period|Client Usage|Client Usage"_s);
        QCOMPARE(tabs, 3);
        QCOMPARE(bars, 1);
        QCOMPARE(shell.printer.jobs.size(), std::size_t{1});
        QCOMPARE(shell.printer.jobs[0].title, std::string("Financial Summary"));
    }
};

QTEST_MAIN(PeriodReportsDialogsTest)
#include "PeriodReportsDialogsTest.moc"
