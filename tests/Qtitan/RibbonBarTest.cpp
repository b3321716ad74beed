#include "RibbonFixture.h"

#include <QSignalSpy>
#include <QTabBar>

using namespace Qtitan;

namespace
{

QPalette paletteOf(const QColor& window, const QColor& text, const QColor& highlight)
{
    QPalette palette(window);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::Base, window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::Highlight, highlight);
    return palette;
}

/// The colour of a point of a widget as drawn on the bar.
QColor drawnColor(const RibbonBar& bar, const QWidget& widget, const QPoint& point)
{
    const QPoint place = widget.mapTo(const_cast<RibbonBar*>(&bar), point);
    return const_cast<RibbonBar&>(bar).grab().toImage().pixelColor(place);
}

} // namespace

class RibbonBarTest final : public QObject
{
    Q_OBJECT

private slots:
    void firstPageBecomesTheCurrentOne()
    {
        RibbonBar bar;
        QSignalSpy spy(&bar, &RibbonBar::currentPageChanged);
        QCOMPARE(bar.currentPageIndex(), -1);

        RibbonPage* pFirst = bar.addPage("草图");
        bar.addPage("View");

        QCOMPARE(bar.pageCount(), 2);
        QCOMPARE(bar.page(0), pFirst);
        QCOMPARE(bar.currentPageIndex(), 0);
        QCOMPARE(spy.count(), 1);
    }

    void firstPageMakesRoomForItsTab()
    {
        RibbonBar bar;
        const int height = bar.sizeHint().height();

        bar.addPage("草图");

        QVERIFY(bar.sizeHint().height() > height);
        bar.resize(bar.sizeHint());
        bar.show();
        QTRY_COMPARE(bar.findChild<QTabBar*>()->height(), bar.tabRect(0).height());
        QVERIFY(bar.tabRect(0).height() > 0);
    }

    void tabUnderTheCursorIsMarked()
    {
        // Not where the tabs will appear.
        QCursor::setPos(QPoint());
        RibbonFixture f;
        f.pBar->addPage("View");
        f.show();
        auto* pTabs = f.pBar->findChild<QTabBar*>();
        const QPoint corner = pTabs->tabRect(1).topLeft() + QPoint(3, 3);
        QCursor::setPos(f.pView->mapToGlobal(f.pView->rect().center()));
        QTRY_VERIFY(!pTabs->underMouse());
        const QColor before = drawnColor(*f.pBar, *pTabs, corner);

        QCursor::setPos(pTabs->mapToGlobal(corner));
        QTRY_VERIFY(drawnColor(*f.pBar, *pTabs, corner) != before);
        QCursor::setPos(f.pView->mapToGlobal(f.pView->rect().center()));
        QTRY_COMPARE(drawnColor(*f.pBar, *pTabs, corner), before);
    }

    void choosingAPageShowsItAndTellsOnce()
    {
        RibbonFixture f;
        RibbonPage* pSecond = f.pBar->addPage("View");
        f.show();
        QSignalSpy spy(f.pBar, &RibbonBar::currentPageChanged);

        f.pBar->setCurrentPageIndex(1);
        f.pBar->setCurrentPageIndex(1);

        QVERIFY(pSecond->isVisible());
        QVERIFY(!f.pPage->isVisible());
        QCOMPARE(spy, QList<QVariantList>{{1}});
    }

    void clickOnATabChoosesItsPage()
    {
        RibbonFixture f;
        f.pBar->addPage("View");
        f.show();

        const QPoint tab = f.pBar->mapTo(f.window.get(), f.pBar->tabRect(1).center());
        QTest::mouseClick(f.window->windowHandle(), Qt::LeftButton, Qt::NoModifier, tab);

        QCOMPARE(f.pBar->currentPageIndex(), 1);
    }

    void indexThatDoesNotExistChangesNothing_data()
    {
        QTest::addColumn<int>("index");
        QTest::newRow("negative") << -1;
        QTest::newRow("behind the last") << 1;
    }

    void indexThatDoesNotExistChangesNothing()
    {
        QFETCH(int, index);
        RibbonFixture f;

        f.pBar->setCurrentPageIndex(index);

        QCOMPARE(f.pBar->currentPageIndex(), 0);
        QCOMPARE(f.pBar->page(index), nullptr);
        QVERIFY(f.pBar->tabRect(index).isNull());
    }

    void deletedPageTakesItsTabAlong()
    {
        RibbonFixture f;
        RibbonPage* pSecond = f.pBar->addPage("View");
        f.show();

        delete f.pPage;

        QCOMPARE(f.pBar->pageCount(), 1);
        QCOMPARE(f.pBar->page(0), pSecond);
        QCOMPARE(f.pBar->currentPageIndex(), 0);
        QVERIFY(pSecond->isVisible());
        QCOMPARE(f.pBar->findChild<QTabBar*>()->accessibleTabName(0), QString("View"));
    }

    void titleIsNamedWithoutItsAmpersand()
    {
        RibbonBar bar;

        RibbonPage* pPage = bar.addPage("&View && more");

        QCOMPARE(bar.findChild<QTabBar*>()->accessibleTabName(0), QString("View & more"));
        QCOMPARE(pPage->accessibleName(), QString("View & more"));
        QCOMPARE(pPage->title(), QString("&View && more"));
    }

    void doubleClickOnATabMinimisesAndRestores()
    {
        RibbonFixture f;
        f.addButton("直线");
        f.show();
        const int height = f.pBar->height();
        auto* pTabs = f.pBar->findChild<QTabBar*>();
        const QPoint tab = pTabs->tabRect(0).center();

        QTest::mouseDClick(pTabs, Qt::LeftButton, Qt::NoModifier, tab);
        QVERIFY(f.pBar->isMinimized());
        QVERIFY(!f.pPage->isVisible());
        QTRY_VERIFY(f.pBar->height() < height / 2);

        QTest::mouseDClick(pTabs, Qt::LeftButton, Qt::NoModifier, tab);
        QVERIFY(!f.pBar->isMinimized());
        QVERIFY(f.pPage->isVisible());
        QTRY_COMPARE(f.pBar->height(), height);
    }

    void heightIsThatOfTheContent()
    {
        RibbonFixture f;
        f.addButton("直线");

        f.show();

        QCOMPARE(f.pBar->height(), f.pBar->sizeHint().height());
        QCOMPARE(f.pPage->height(), f.pPage->sizeHint().height());
    }

    void colorsFollowThePalette_data()
    {
        QTest::addColumn<QColor>("window");
        QTest::addColumn<QColor>("text");
        QTest::newRow("light") << QColor(240, 240, 240) << QColor(Qt::black);
        QTest::newRow("dark") << QColor(40, 40, 40) << QColor(Qt::white);
    }

    void colorsFollowThePalette()
    {
        QFETCH(QColor, window);
        QFETCH(QColor, text);
        RibbonFixture f;
        QToolButton* pButton = f.addButton("直线");
        pButton->setCheckable(true);
        pButton->setChecked(true);
        f.show();

        f.window->setPalette(paletteOf(window, text, Qt::red));
        const QColor page = drawnColor(*f.pBar, *f.pPage, {f.pPage->width() - 3, 3});
        const QColor red = drawnColor(*f.pBar, *pButton, {pButton->width() / 2, 4});
        f.window->setPalette(paletteOf(window, text, Qt::green));
        const QColor green = drawnColor(*f.pBar, *pButton, {pButton->width() / 2, 4});

        QVERIFY(qAbs(page.lightness() - window.lightness()) < 30);
        QVERIFY(red.red() > red.green() + 20);
        QVERIFY(green.green() > green.red() + 20);
    }

    void rowsGrowWithTheFont()
    {
        RibbonFixture f;
        QToolButton* pButton = f.addButton("直线");
        f.show();
        const int height = f.pBar->height();
        QFont font = f.window->font();
        font.setPointSize(2 * font.pointSize());

        f.window->setFont(font);

        QTRY_VERIFY(f.pBar->height() > height + 40);
        QTRY_VERIFY(pButton->height() >= pButton->sizeHint().height());
    }

    void clickOnTheRibbonLeavesTheFocusInTheView_data()
    {
        QTest::addColumn<QString>("part");
        QTest::newRow("tab") << "tab";
        QTest::newRow("button") << "button";
        QTest::newRow("group") << "group";
    }

    void clickOnTheRibbonLeavesTheFocusInTheView()
    {
        QFETCH(QString, part);
        RibbonFixture f;
        const QToolButton* pButton = f.addButton("直线");
        f.show();
        const QHash<QString, QPoint> places{
            {"tab", f.pBar->tabRect(0).center()},
            {"button", pButton->mapTo(f.pBar, pButton->rect().center())},
            {"group", f.pGroup->mapTo(f.pBar, QPoint(4, f.pGroup->height() - 3))}};

        const QPoint place = f.pBar->mapTo(f.window.get(), places.value(part));
        QTest::mouseClick(f.window->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);

        QCOMPARE(QApplication::focusWidget(), f.pView);
    }
};

VESK_TESTS(RibbonBarTest);
#include "RibbonBarTest.moc"
