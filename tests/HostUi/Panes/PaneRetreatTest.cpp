#include "HostUi/PaneRun.h"
#include "Support/TestValues.h"

#include <QMouseEvent>

#include <algorithm>
#include <cstdlib>

namespace vesk::test
{
namespace
{

/// A drawing that needs 400 x 300.
class Centre final : public QWidget
{
public:
    QSize minimumSizeHint() const override { return {400, 300}; }
};

/// A run whose window may be as small as the user likes, at first with room for all panes.
struct SmallRun : Run
{
    SmallRun()
    {
        window.setMinimumSize(100, 100);
        window.setCentralWidget(new Centre);
        pLayout->RestoreDefault();
        Resize(1200, 900);
    }

    void Resize(int width, int height)
    {
        window.resize(width, height);
        SettleAll();
    }

    /// Until the panes are arranged for the window, in as many steps as it takes.
    static void SettleAll()
    {
        for (int i = 0; i < 5; ++i)
            Settle();
    }

    /// The names of the panes that take room in the window.
    QString Docked()
    {
        QString names;
        for (const char* name : {"A", "B", "C", "D", "E", "F"})
        {
            if (!Pane(name)->isHidden() && !Pane(name)->isFloating())
                names += QLatin1String(name);
        }
        return names;
    }

    /// Where those are that are in front when C is.
    QList<QRect> Places()
    {
        QList<QRect> places;
        for (const char* name : {"B", "C", "D", "E", "F"})
            places << Pane(name)->geometry();
        return places;
    }

    QSize CentreSize() const { return window.centralWidget()->size(); }
};

/// The toolkit rounds when panes share the height of their area.
bool AreAlike(const QList<QRect>& places, const QList<QRect>& others)
{
    return std::equal(places.begin(), places.end(), others.begin(), others.end(),
                      [](const QRect& place, const QRect& other) {
                          return place.left() == other.left() && place.width() == other.width() &&
                                 std::abs(place.top() - other.top()) <= 1 &&
                                 std::abs(place.height() - other.height()) <= 1;
                      });
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
        run.Pane("F")->setFloating(true);
        Run::Settle();

        run.Resize(480, 350);

        QVERIFY(run.Pane("F")->isVisible());
        QCOMPARE(run.Docked(), QString());
    }

    void theLayoutOfASmallWindowHoldsAllPanes()
    {
        SmallRun run;
        run.window.resizeDocks({run.Pane("A")}, {310}, Qt::Horizontal);
        run.Pane("C")->raise();
        Run::Settle();
        const QList<QRect> before = run.Places();
        run.Resize(480, 350);
        const QByteArray saved = run.pLayout->Save();

        SmallRun other;
        QVERIFY(other.pLayout->Restore(saved));
        other.Resize(1200, 900);

        QCOMPARE(other.Docked(), QString("ABCDEF"));
        QVERIFY(AreAlike(other.Places(), before));
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
