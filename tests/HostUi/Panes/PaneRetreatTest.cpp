#include "HostUi/SmallPaneRun.h"
#include "Support/TestValues.h"

#include <QDataStream>
#include <QMap>
#include <QMouseEvent>

namespace vesk::test
{
namespace
{

/// A layout with another part that tells which panes have given way.
QByteArray WithRetreat(const QByteArray& layout, const QByteArray& retreat)
{
    QByteArray state;
    QMap<QString, QRect> places;
    QDataStream in(layout);
    in.setVersion(QDataStream::Qt_5_12);
    in >> state >> places;
    QByteArray changed;
    QDataStream out(&changed, QIODevice::WriteOnly);
    out.setVersion(QDataStream::Qt_5_12);
    out << state << places << retreat;
    return changed;
}

}

/// Panes that give way in a small window.
class PaneRetreatTest final : public QObject
{
    Q_OBJECT

private slots:
    void panesGiveWayToTheDrawing_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QString>("docked");

        // At the least, a pane is 160 wide, and the drawing 400 x 300.
        QTest::newRow("room for all") << QSize(1200, 900) << "ABCDEF";
        QTest::newRow("just so wide") << QSize(760, 900) << "ABCDEF";
        QTest::newRow("not wide enough for both sides") << QSize(700, 900) << "ABCF";
        QTest::newRow("not wide enough for one side") << QSize(480, 900) << "F";
        QTest::newRow("not high enough") << QSize(1200, 350) << "ABCDE";
        QTest::newRow("neither") << QSize(480, 350) << "";
        QTest::newRow("too small even without panes") << QSize(200, 150) << "";
    }

    void panesGiveWayToTheDrawing()
    {
        QFETCH(QSize, size);
        SmallRun run;

        run.Resize(size.width(), size.height());

        QFETCH(QString, docked);
        QCOMPARE(run.window.size(), size);
        QCOMPARE(run.Docked(), docked);
        if (size.width() >= 400 && size.height() >= 300)
            QCOMPARE(run.CentreSize().expandedTo(QSize(400, 300)), run.CentreSize());
    }

    void panesGiveWayAndComeBackAtOnce()
    {
        SmallRun run;

        run.window.resize(480, 350);
        QCOMPARE(run.Docked(), QString());

        run.window.resize(1200, 900);
        QCOMPARE(run.Docked(), QString("ABCDEF"));
    }

    void sharesComeBackThoughAPaneHadTheAreaToItself()
    {
        SmallRun run;
        run.Pane("F")->hide();
        for (const char* name : {"A", "B"})
            run.Pane(name)->widget()->setMinimumHeight(200);
        run.window.resizeDocks({run.Pane("A"), run.Pane("B")}, {480, 240}, Qt::Vertical);
        SmallRun::SettleAll();
        const int height = run.Pane("B")->height();
        QVERIFY(height < 300);

        run.Resize(1200, 420);
        QCOMPARE(run.Docked(), QString("BDE"));
        run.Resize(1200, 900);

        QVERIFY(std::abs(run.Pane("B")->height() - height) <= 1);
    }

    void allComesBackAsItWas()
    {
        SmallRun run;
        run.window.resizeDocks({run.Pane("A"), run.Pane("D")}, {310, 220}, Qt::Horizontal);
        run.window.resizeDocks({run.Pane("F")}, {170}, Qt::Vertical);
        run.Pane("C")->raise();
        Run::Settle();
        const QList<QRect> before = run.Places();
        const QString docked = run.Docked();

        for (const QSize size : {QSize(800, 600), QSize(480, 350), QSize(640, 480)})
            run.Resize(size.width(), size.height());
        run.Resize(1200, 900);

        QCOMPARE(run.Docked(), docked);
        QVERIFY(AreAlike(run.Places(), before));
        QVERIFY(!run.Pane("C")->visibleRegion().isEmpty());
        QVERIFY(run.Pane("A")->visibleRegion().isEmpty());
    }

    void clickInASmallWindowChangesNothing()
    {
        SmallRun run;
        run.window.resizeDocks({run.Pane("A")}, {310}, Qt::Horizontal);
        SmallRun::SettleAll();
        run.Resize(800, 900);
        QVERIFY(run.Pane("A")->width() < 310);

        QTest::mouseClick(&run.window, Qt::LeftButton, {}, QPoint(2, 2));
        run.Resize(1200, 900);

        QCOMPARE(run.Pane("A")->width(), 310);
    }

    void separatorThatIsDraggedInASmallWindowStays()
    {
        SmallRun run;
        run.Resize(800, 900);
        const QPoint separator = run.Pane("A")->geometry().topRight() + QPoint(3, 50);
        const int before = run.Pane("A")->width();

        QTest::mousePress(&run.window, Qt::LeftButton, {}, separator);
        QMouseEvent move(QEvent::MouseMove, separator - QPoint(20, 0),
                         run.window.mapToGlobal(separator - QPoint(20, 0)), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&run.window, &move);
        SmallRun::SettleAll();
        QTest::mouseRelease(&run.window, Qt::LeftButton, {}, separator - QPoint(20, 0));
        QVERIFY(run.Pane("A")->width() < before);
        const int dragged = run.Pane("A")->width();
        run.Resize(480, 350);
        run.Resize(1200, 900);

        QCOMPARE(run.Pane("A")->width(), dragged);
    }

    void panesComeBackOneByOne()
    {
        SmallRun run;
        run.Resize(480, 350);

        run.Resize(600, 350);
        QCOMPARE(run.Docked(), QString("ABC"));
        run.Resize(760, 350);
        QCOMPARE(run.Docked(), QString("ABCDE"));
        run.Resize(760, 700);
        QCOMPARE(run.Docked(), QString("ABCDEF"));
    }

    void aPaneThatTheUserShowsStays()
    {
        SmallRun run;
        run.Resize(600, 350);
        QCOMPARE(run.Docked(), QString("ABC"));

        run.Pane("D")->show();
        SmallRun::SettleAll();

        QCOMPARE(run.Docked(), QString("D"));
        run.Resize(450, 350);
        QCOMPARE(run.Docked(), QString("D"));
        QCOMPARE(run.window.width(), 450);
    }

    void aPaneThatTheUserHidesStaysHidden()
    {
        SmallRun run;
        run.Pane("E")->hide();
        run.Resize(480, 350);

        run.Resize(1200, 900);

        QCOMPARE(run.Docked(), QString("ABCDF"));
    }

    void aPaneThatTheUserShowsAndHidesAgainIsNotShown()
    {
        SmallRun run;
        run.Resize(480, 350);
        run.Pane("D")->show();
        Run::Settle();
        run.Pane("D")->hide();

        run.Resize(1200, 900);

        QCOMPARE(run.Docked(), QString("ABCEF"));
    }

    void floatingPanesDoNotGiveWay()
    {
        SmallRun run;
        run.Pane("D")->setFloating(true);
        run.Pane("F")->setFloating(true);
        Run::Settle();

        run.Resize(480, 350);

        QVERIFY(run.Pane("D")->isVisible());
        QVERIFY(run.Pane("F")->isVisible());
        QCOMPARE(run.Docked(), QString());
    }

    void paneInAnotherAreaHasASizeOfItsOwn()
    {
        SmallRun run;
        run.Pane("E")->hide();
        run.window.resizeDocks({run.Pane("A")}, {310}, Qt::Horizontal);
        SmallRun::SettleAll();
        run.Resize(800, 900);
        QVERIFY(run.Pane("A")->width() < 310);

        run.window.addDockWidget(Qt::TopDockWidgetArea, run.Pane("D"));
        SmallRun::SettleAll();
        const int height = run.Pane("D")->height();
        run.Resize(1200, 950);

        QCOMPARE(run.Pane("D")->height(), height);
    }

    void windowStaysAnimated()
    {
        SmallRun run;
        run.window.setAnimated(true);

        run.Resize(480, 350);
        run.Resize(1200, 900);

        QVERIFY(run.window.isAnimated());
    }

    void theLayoutOfASmallWindowHoldsAllPanes_data()
    {
        QTest::addColumn<QSize>("size");

        QTest::newRow("panes have given way") << QSize(480, 350);
        QTest::newRow("panes are smaller") << QSize(800, 900);
    }

    void theLayoutOfASmallWindowHoldsAllPanes()
    {
        QFETCH(QSize, size);
        SmallRun run;
        run.window.resizeDocks({run.Pane("A")}, {310}, Qt::Horizontal);
        run.Pane("C")->raise();
        Run::Settle();
        const QList<QRect> before = run.Places();
        run.Resize(size.width(), size.height());
        const QByteArray saved = run.pLayout->Save();

        SmallRun other;
        QVERIFY(other.pLayout->Restore(saved));
        SmallRun::SettleAll();

        QCOMPARE(other.Docked(), QString("ABCDEF"));
        QVERIFY(AreAlike(other.Places(), before));
    }

    void damagedPartOfALayoutIsForgotten_data()
    {
        QTest::addColumn<QByteArray>("part");

        QTest::newRow("empty") << QByteArray();
        QTest::newRow("too short") << QByteArray("\0\0\0\1", 4);
        QTest::newRow("too many") << QByteArray("\x7f\xff\xff\xff", 4);
    }

    void damagedPartOfALayoutIsForgotten()
    {
        QFETCH(QByteArray, part);
        SmallRun other;
        other.Pane("D")->hide();
        other.Pane("E")->hide();
        const QByteArray damaged = WithRetreat(other.pLayout->Save(), part);
        SmallRun run;
        run.Resize(700, 900);
        QCOMPARE(run.Docked(), QString("ABCF"));

        QVERIFY(run.pLayout->Restore(damaged));
        run.Resize(1200, 900);

        QCOMPARE(run.Docked(), QString("ABCF"));
    }

    void panesOfALayoutWithoutSizesComeBackAsTheyWere()
    {
        SmallRun other;
        other.window.resizeDocks({other.Pane("A")}, {310}, Qt::Horizontal);
        SmallRun::SettleAll();
        SmallRun run;

        QVERIFY(run.pLayout->Restore(WithRetreat(other.pLayout->Save(), {})));
        SmallRun::SettleAll();
        QCOMPARE(run.Pane("A")->width(), 310);
        run.Resize(800, 900);
        run.Resize(1200, 900);

        QCOMPARE(run.Pane("A")->width(), 310);
    }

    void theFactoryLayoutGivesWayToo()
    {
        SmallRun run;
        run.Resize(600, 350);

        run.pLayout->RestoreDefault();
        SmallRun::SettleAll();

        QCOMPARE(run.Docked(), QString("ABC"));
        run.Resize(1200, 900);
        QCOMPARE(run.Docked(), QString("ABCDEF"));
    }

    void allHiddenStayHiddenWhenTheWindowGrows()
    {
        SmallRun run;
        run.Resize(600, 350);
        run.pLayout->ToggleAllHidden();

        run.Resize(1200, 900);
        QCOMPARE(run.Docked(), QString());

        run.pLayout->ToggleAllHidden();
        SmallRun::SettleAll();
        QCOMPARE(run.Docked(), QString("ABCDEF"));
    }

    void aContentThatNeedsMoreGivesWayLater()
    {
        SmallRun run;
        run.Resize(760, 900);
        QCOMPARE(run.Docked(), QString("ABCDEF"));

        run.Pane("A")->widget()->setMinimumWidth(260);
        SmallRun::SettleAll();

        QCOMPARE(run.Docked(), QString("ABCF"));
    }

    void panesSideBySideGiveWayToTheWidth()
    {
        SmallRun run;
        run.Pane("C")->hide();
        for (const char* name : {"A", "B", "D", "E", "F"})
            run.window.addDockWidget(Qt::BottomDockWidgetArea, run.Pane(name));
        Run::Settle();

        run.Resize(700, 900);

        QCOMPARE(run.Docked(), QString("ABDE"));
    }

    void aWindowWithoutALeastSizeKeepsItsPanes()
    {
        Run run;
        run.window.setCentralWidget(new Centre);
        Run::Settle();

        run.window.resize(100, 100);
        SmallRun::SettleAll();

        QVERIFY(run.window.width() >= 720);
        for (const char* name : {"A", "B", "C", "D", "E", "F"})
            QVERIFY(!run.Pane(name)->isHidden());
    }
};

}

VESK_TESTS(vesk::test::PaneRetreatTest);
#include "PaneRetreatTest.moc"
