#include "HostUi/SmallPaneRun.h"
#include "Support/TestValues.h"

#include <QLayout>
#include <QMap>
#include <QPointer>

namespace vesk::test
{
namespace
{

/// What the contents of panes need.
using Needs = QMap<QString, int>;

/// Counts how often a pane appears.
class ShowCounter final : public QObject
{
public:
    explicit ShowCounter(QObject& pane) { pane.installEventFilter(this); }
    int GetCount() const { return m_count; }

protected:
    bool eventFilter(QObject*, QEvent* pEvent) override
    {
        m_count += pEvent->type() == QEvent::ShowToParent ? 1 : 0;
        return false;
    }

private:
    int m_count = 0;
};

void SetHeights(SmallRun& run, const Needs& heights)
{
    for (auto i = heights.begin(); i != heights.end(); ++i)
        run.Pane(i.key())->widget()->setMinimumHeight(i.value());
    SmallRun::SettleAll();
}

/// A and B side by side at the top, D and E at the bottom.
void ArrangeInRows(SmallRun& run, const Needs& widths)
{
    run.Pane("C")->hide();
    run.Pane("F")->hide();
    for (const auto& [name, area] : {std::pair{"A", Qt::TopDockWidgetArea},
                                     {"B", Qt::TopDockWidgetArea},
                                     {"D", Qt::BottomDockWidgetArea},
                                     {"E", Qt::BottomDockWidgetArea}})
        run.window.addDockWidget(area, run.Pane(name));
    run.window.splitDockWidget(run.Pane("A"), run.Pane("B"), Qt::Horizontal);
    run.window.splitDockWidget(run.Pane("D"), run.Pane("E"), Qt::Horizontal);
    for (auto i = widths.begin(); i != widths.end(); ++i)
        run.Pane(i.key())->widget()->setMinimumWidth(i.value());
    SmallRun::SettleAll();
}

}

/// Which panes give way in a small window, and which come back.
class PaneRetreatChoiceTest final : public QObject
{
    Q_OBJECT

private slots:
    void panesOneAboveTheOtherGiveWayToTheHeight_data()
    {
        QTest::addColumn<Needs>("heights");
        QTest::addColumn<int>("height");
        QTest::addColumn<QString>("docked");

        // A and C are tabbed, and need the higher one's height.
        QTest::newRow("left needs more")
            << Needs{{"A", 250}, {"B", 250}, {"D", 320}, {"F", 200}} << 450 << "BDE";
        QTest::newRow("right needs more")
            << Needs{{"A", 300}, {"D", 250}, {"E", 250}, {"F", 200}} << 450 << "ABCD";
        QTest::newRow("both as much")
            << Needs{{"A", 250}, {"B", 250}, {"D", 250}, {"E", 250}, {"F", 200}} << 450 << "BD";
        QTest::newRow("drawing needs more")
            << Needs{{"A", 150}, {"C", 150}, {"D", 150}} << 250 << "ABCDE";
    }

    void panesOneAboveTheOtherGiveWayToTheHeight()
    {
        QFETCH(Needs, heights);
        QFETCH(int, height);
        SmallRun run;
        SetHeights(run, heights);
        QCOMPARE(run.Docked(), QString("ABCDEF"));

        run.Resize(1200, height);

        QTEST(run.Docked(), "docked");
        run.Resize(1200, 900);
        QCOMPARE(run.Docked(), QString("ABCDEF"));
    }

    void ofPanesSideBySideThoseOfTheFullerSideGiveWay_data()
    {
        QTest::addColumn<Needs>("widths");
        QTest::addColumn<QString>("docked");

        QTest::newRow("top") << Needs{{"A", 500}, {"B", 400}, {"D", 400}, {"E", 340}} << "ADE";
        QTest::newRow("bottom") << Needs{{"A", 400}, {"B", 300}, {"D", 500}, {"E", 400}} << "ABD";
    }

    void ofPanesSideBySideThoseOfTheFullerSideGiveWay()
    {
        QFETCH(Needs, widths);
        SmallRun run;
        ArrangeInRows(run, widths);
        QCOMPARE(run.Docked(), QString("ABDE"));

        run.Resize(800, 900);

        QTEST(run.Docked(), "docked");
    }

    void nothingGivesWayForNothing_data()
    {
        QTest::addColumn<bool>("areInRows");
        QTest::addColumn<QString>("docked");

        QTest::newRow("at the sides") << false << "ABCD";
        QTest::newRow("at top and bottom") << true << "ABD";
    }

    /// The pane that the user wants needs more than there is, and those opposite do not matter.
    void nothingGivesWayForNothing()
    {
        QFETCH(bool, areInRows);
        SmallRun run;
        if (areInRows)
            ArrangeInRows(run, {{"A", 400}, {"B", 350}, {"D", 850}});
        else
            SetHeights(run, {{"A", 300}, {"D", 420}});
        run.Pane("D")->hide();
        run.Pane("D")->show();
        SmallRun::SettleAll();

        run.Resize(areInRows ? 800 : 1200, areInRows ? 900 : 430);

        QTEST(run.Docked(), "docked");
    }

    void panesThatAreTabbedWithTheOneShownLastStay()
    {
        SmallRun run;
        run.Pane("C")->hide();
        run.Pane("C")->show();
        run.Pane("A")->raise();
        SmallRun::SettleAll();

        run.Resize(450, 900);

        QCOMPARE(run.Docked(), QString("ABCF"));
    }

    void paneForWhichThereIsJustEnoughRoomStays()
    {
        SmallRun run;
        const QSize least = run.window.layout()->totalMinimumSize();
        const ShowCounter shown(*run.Pane("E"));

        run.Resize(least.width(), least.height());
        QCOMPARE(run.Docked(), QString("ABCDEF"));
        QCOMPARE(shown.GetCount(), 0);

        run.Resize(least.width() - 1, least.height());
        QCOMPARE(run.Docked(), QString("ABCF"));
    }

    void paneThatHasGivenWayIsNotShownInBetween_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");

        QTest::newRow("across") << Qt::Vertical;
        QTest::newRow("along") << Qt::Horizontal;
    }

    /// It does not make the window's contents smaller, because something else is as large.
    void paneThatHasGivenWayIsNotShownInBetween()
    {
        QFETCH(Qt::Orientation, orientation);
        SmallRun run;
        if (orientation == Qt::Vertical)
            SetHeights(run, {{"A", 250}, {"B", 250}, {"D", 250}, {"E", 250}});
        else
            run.Pane("F")->widget()->setMinimumWidth(750);
        SmallRun::SettleAll();
        const ShowCounter shown(*run.Pane("E"));

        run.Resize(orientation == Qt::Vertical ? 1200 : 700,
                   orientation == Qt::Vertical ? 450 : 900);

        QVERIFY(run.Pane("E")->isHidden());
        QCOMPARE(shown.GetCount(), 0);
    }

    void paneThatTheUserHasPutInFrontStaysThere()
    {
        SmallRun run;
        run.Pane("A")->raise();
        run.Resize(480, 350);
        run.Pane("A")->show();
        run.Pane("C")->show();
        run.Pane("C")->raise();
        SmallRun::SettleAll();

        run.Resize(1200, 900);

        QCOMPARE(run.Docked(), QString("ABCDEF"));
        QVERIFY(!run.Pane("C")->visibleRegion().isEmpty());
    }

    void windowWithoutADrawingIsNoError()
    {
        SmallRun run;
        delete run.window.takeCentralWidget();
        SetHeights(run, {{"A", 250}, {"B", 250}, {"D", 320}});

        run.Resize(1200, 450);

        QCOMPARE(run.Docked(), QString("BDE"));
    }

    void paneThatIsGoneDoesNotComeBack()
    {
        SmallRun run;
        run.Resize(480, 350);
        delete run.Pane("D");

        run.Resize(1200, 900);

        for (const char* name : {"A", "B", "C", "E", "F"})
            QVERIFY(!run.window.findChild<QDockWidget*>(name)->isHidden());
    }

    void whoeverIsToldMayDestroyAnotherPane()
    {
        SmallRun run;
        const QPointer<QDockWidget> pOther = run.Pane("E");
        connect(run.Pane("D"), &QDockWidget::visibilityChanged, &run.window,
                [&pOther] { delete pOther; });

        run.Resize(480, 900);

        QVERIFY(pOther == nullptr);
        QVERIFY(run.Pane("D")->isHidden());
    }

    void hiddenWindowKeepsItsPanes()
    {
        SmallRun run;
        run.Pane("C")->raise();
        SmallRun::SettleAll();
        run.window.hide();

        run.Resize(480, 350);
        QCOMPARE(run.Docked(), QString("ABCDEF"));

        run.window.show();
        SmallRun::SettleAll();
        QCOMPARE(run.Docked(), QString());
        run.Resize(1200, 900);
        QVERIFY(!run.Pane("C")->visibleRegion().isEmpty());
    }

    void minimisedWindowKeepsItsPanes()
    {
        SmallRun run;
        run.window.setWindowState(Qt::WindowMinimized);

        run.Resize(480, 350);

        QCOMPARE(run.Docked(), QString("ABCDEF"));
    }

    void factoryLayoutDoesNotKnowWhatWasShownLast()
    {
        SmallRun run;
        run.Resize(480, 350);
        run.Pane("D")->show();
        SmallRun::SettleAll();
        QCOMPARE(run.Docked(), QString("D"));

        run.pLayout->RestoreDefault();
        SmallRun::SettleAll();

        QCOMPARE(run.Docked(), QString());
    }
};

}

VESK_TESTS(vesk::test::PaneRetreatChoiceTest);
#include "PaneRetreatChoiceTest.moc"
