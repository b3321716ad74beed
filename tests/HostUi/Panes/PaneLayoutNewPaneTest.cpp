#include "HostUi/PaneLayout.h"

#include "HostUi/PaneRun.h"
#include "Support/TestValues.h"

using vesk::test::Run;

/// Where a pane goes that is tabbed by default, and that a saved layout does not know.
class PaneLayoutNewPaneTest final : public QObject
{
    Q_OBJECT

private slots:
    void aNewPaneIsTabbedAsByDefault()
    {
        QByteArray saved;
        {
            Run run({"A", "B", "D", "E", "F"});
            saved = run.pLayout->Save();
        }

        Run next;
        QVERIFY(next.pLayout->Restore(saved));
        Run::Settle();

        QCOMPARE(next.window.tabifiedDockWidgets(next.Pane("A")),
                 QList<QDockWidget*>{next.Pane("C")});
        QVERIFY(!next.Pane("A")->visibleRegion().isEmpty());
        QVERIFY(next.Pane("C")->visibleRegion().isEmpty());
        QVERIFY(!next.Pane("C")->isHidden());
    }

    void withoutItsFrontANewPaneStandsAlone_data()
    {
        QTest::addColumn<bool>("isFloating");

        QTest::newRow("floating") << true;
        QTest::newRow("hidden") << false;
    }

    void withoutItsFrontANewPaneStandsAlone()
    {
        QFETCH(bool, isFloating);
        QByteArray saved;
        {
            Run run({"A", "B", "D", "E", "F"});
            if (isFloating)
                run.Pane("A")->setFloating(true);
            else
                run.Pane("A")->hide();
            saved = run.pLayout->Save();
        }

        Run next;
        QVERIFY(next.pLayout->Restore(saved));
        Run::Settle();

        QCOMPARE(next.window.dockWidgetArea(next.Pane("C")), Qt::LeftDockWidgetArea);
        QVERIFY(next.window.tabifiedDockWidgets(next.Pane("C")).isEmpty());
        QVERIFY(!next.Pane("C")->visibleRegion().isEmpty());
    }
};

VESK_TESTS(PaneLayoutNewPaneTest);
#include "PaneLayoutNewPaneTest.moc"
