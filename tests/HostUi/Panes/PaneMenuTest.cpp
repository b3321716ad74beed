#include "Panes/PaneMenu.h"

#include "Support/TestValues.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDockWidget>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QPointer>

#include <memory>

namespace vesk
{

namespace
{

/// A window with a view, and panes with a list each at its left, where two are one above the
/// other, and at its right.
struct MenuFixture
{
    MenuFixture()
    {
        window.setAnimated(false);
        window.setCentralWidget(new QLineEdit);
        for (const auto& [name, area] : {std::pair{"upper", Qt::LeftDockWidgetArea},
                                         {"lower", Qt::LeftDockWidgetArea},
                                         {"right", Qt::RightDockWidgetArea}})
        {
            auto* pPane = new QDockWidget(name, &window);
            pPane->setObjectName(name);
            pPane->setWidget(new QListWidget);
            window.addDockWidget(area, pPane);
        }
        window.resize(800, 600);
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window, test::PatienceMs))
            qFatal("the window is not active");
        Pane("upper").widget()->setFocus();
    }

    QDockWidget& Pane(const char* name) const { return *window.findChild<QDockWidget*>(name); }

    QMenu* Menu() const { return window.findChild<QMenu*>("PaneMenu"); }

    void PressKey() const
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Minus, Qt::AltModifier);
    }

    /// As the widget under the mouse passes it on to the window.
    void RightClick(const QPoint& place)
    {
        QContextMenuEvent click(QContextMenuEvent::Mouse, place, window.mapToGlobal(place));
        QCoreApplication::sendEvent(&window, &click);
    }

    /// Opens the menu by its key and chooses an entry by its letter.
    void Choose(char letter) const
    {
        PressKey();
        QTRY_VERIFY(Menu() != nullptr && Menu()->isVisible());
        QTest::keyClick(Menu(), letter);
        QTRY_VERIFY(Menu() == nullptr);
    }

    QAction* Entry(const QString& text) const
    {
        for (QAction* pEntry : Menu()->actions())
        {
            if (pEntry->text().startsWith(text))
                return pEntry;
        }
        return nullptr;
    }

    QMainWindow window;
    std::unique_ptr<PaneMenu> pMenu = std::make_unique<PaneMenu>(window, nullptr);
};

/// Destroys what is closed.
class Deleter final : public QObject
{
protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        if (pEvent->type() != QEvent::Close)
            return false;
        delete pWatched;
        return true;
    }
};

}

/// What a pane's menu does.
class PaneMenuTest final : public QObject
{
    Q_OBJECT

private slots:
    void paneIsMovedToAnotherSide_data()
    {
        QTest::addColumn<char>("letter");
        QTest::addColumn<int>("area");

        QTest::newRow("right") << 'r' << int(Qt::RightDockWidgetArea);
        QTest::newRow("top") << 't' << int(Qt::TopDockWidgetArea);
        QTest::newRow("bottom") << 'b' << int(Qt::BottomDockWidgetArea);
    }

    void paneIsMovedToAnotherSide()
    {
        QFETCH(char, letter);
        const MenuFixture fixture;

        fixture.Choose(letter);

        QTEST(int(fixture.window.dockWidgetArea(&fixture.Pane("upper"))), "area");
        QCOMPARE(QApplication::focusWidget(), fixture.Pane("upper").widget());
    }

    void placeWhereThePaneIsCannotBeChosen()
    {
        const MenuFixture fixture;

        fixture.PressKey();

        QVERIFY(!fixture.Entry("移到左侧")->isEnabled());
        QVERIFY(fixture.Entry("移到右侧")->isEnabled());
    }

    void placeThatIsForbiddenCannotBeChosen()
    {
        const MenuFixture fixture;
        fixture.Pane("upper").setAllowedAreas(Qt::LeftDockWidgetArea | Qt::TopDockWidgetArea);

        fixture.PressKey();

        QVERIFY(!fixture.Entry("移到右侧")->isEnabled());
        QVERIFY(fixture.Entry("移到上方")->isEnabled());
    }

    void floatingPaneGoesBackToTheSideThatIsChosen()
    {
        const MenuFixture fixture;
        QDockWidget& pane = fixture.Pane("upper");

        fixture.Choose('f');
        QVERIFY(pane.isFloating());
        QTRY_COMPARE(QApplication::focusWidget(), pane.widget());
        fixture.Choose('l');

        QVERIFY(!pane.isFloating());
        QCOMPARE(fixture.window.dockWidgetArea(&pane), Qt::LeftDockWidgetArea);
    }

    void floatingPaneIsDockedByTheSameEntry()
    {
        MenuFixture fixture;
        QDockWidget& pane = fixture.Pane("upper");
        fixture.window.tabifyDockWidget(&pane, &fixture.Pane("lower"));
        pane.raise();
        pane.widget()->setFocus();
        fixture.PressKey();
        QVERIFY(fixture.Entry("浮动")->isCheckable());
        QVERIFY(!fixture.Entry("浮动")->isChecked());
        QTest::keyClick(fixture.Menu(), 'f');
        QTRY_COMPARE(QApplication::focusWidget(), pane.widget());

        fixture.PressKey();
        QVERIFY(fixture.Entry("浮动")->isChecked());
        QTest::keyClick(fixture.Menu(), 'f');

        QVERIFY(!pane.isFloating());
        QTRY_COMPARE(QApplication::focusWidget(), pane.widget());
        QVERIFY(!pane.visibleRegion().isEmpty());
    }

    void paneGetsMoreRoomOrLess_data()
    {
        QTest::addColumn<char>("letter");
        QTest::addColumn<QPoint>("change");
        QTest::addColumn<bool>("isFloating");

        for (const bool isFloating : {false, true})
        {
            const QByteArray where = isFloating ? ", floating" : ", docked";
            QTest::newRow("wider" + where) << 'w' << QPoint(1, 0) << isFloating;
            QTest::newRow("narrower" + where) << 'n' << QPoint(-1, 0) << isFloating;
            QTest::newRow("taller" + where) << 'a' << QPoint(0, 1) << isFloating;
            QTest::newRow("shorter" + where) << 's' << QPoint(0, -1) << isFloating;
        }
    }

    void paneGetsMoreRoomOrLess()
    {
        QFETCH(char, letter);
        QFETCH(QPoint, change);
        QFETCH(bool, isFloating);
        MenuFixture fixture;
        QDockWidget& pane = fixture.Pane("upper");
        fixture.window.resizeDocks({&pane}, {300}, Qt::Horizontal);
        QTRY_COMPARE(pane.width(), 300);
        if (isFloating)
            fixture.Choose('f');
        QTRY_COMPARE(QApplication::focusWidget(), pane.widget());
        const QSize before = pane.size();

        fixture.Choose(letter);

        const auto sign = [](int number) { return (number > 0) - (number < 0); };
        const auto changed = [&] {
            const QSize difference = pane.size() - before;
            return QPoint(sign(difference.width()), sign(difference.height()));
        };
        QTRY_COMPARE(changed(), change);
    }

    void paneIsClosed()
    {
        const MenuFixture fixture;

        fixture.Choose('c');

        QVERIFY(fixture.Pane("upper").isHidden());
    }

    void menuHasOnlyWhatThePaneAllows()
    {
        const MenuFixture fixture;
        fixture.Pane("upper").setFeatures(QDockWidget::NoDockWidgetFeatures);

        fixture.PressKey();

        QCOMPARE(fixture.Entry("浮动"), nullptr);
        QCOMPARE(fixture.Entry("移到"), nullptr);
        QCOMPARE(fixture.Entry("关闭"), nullptr);
        QVERIFY(fixture.Entry("加宽") != nullptr);
    }

    void keyDoesNothingOutsideThePanes()
    {
        const MenuFixture fixture;
        fixture.window.centralWidget()->setFocus();

        fixture.PressKey();

        QCOMPARE(fixture.Menu(), nullptr);
    }

    void keyDoesNothingInPanesOfAWindowWithin()
    {
        MenuFixture fixture;
        auto* pInner = new QMainWindow;
        auto* pPane = new QDockWidget(pInner);
        pPane->setWidget(new QListWidget);
        pInner->addDockWidget(Qt::LeftDockWidgetArea, pPane);
        fixture.window.setCentralWidget(pInner);
        QCoreApplication::processEvents();
        pPane->widget()->setFocus();
        QCOMPARE(QApplication::focusWidget(), pPane->widget());

        fixture.PressKey();

        QCOMPARE(fixture.Menu(), nullptr);
    }

    void keyIsFreeOnceTheMenusAreGone()
    {
        MenuFixture fixture;
        fixture.pMenu.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        fixture.PressKey();
        QCOMPARE(fixture.Menu(), nullptr);

        fixture.pMenu = std::make_unique<PaneMenu>(fixture.window, nullptr);
        fixture.PressKey();

        QVERIFY(fixture.Menu() != nullptr);
    }

    void keyOpensTheMenuAtThePane()
    {
        const MenuFixture fixture;
        fixture.Pane("right").widget()->setFocus();

        fixture.PressKey();

        QCOMPARE(fixture.Menu()->pos(), fixture.Pane("right").mapToGlobal(QPoint()));
    }

    void titleThatIsRightClickedOpensTheMenu_data()
    {
        QTest::addColumn<QString>("place");
        QTest::addColumn<bool>("isTitle");

        QTest::newRow("title") << "title" << true;
        QTest::newRow("title of a pane without content") << "empty" << true;
        QTest::newRow("content") << "plain" << false;
        QTest::newRow("part of the content") << "list" << false;
        QTest::newRow("view") << "view" << false;
    }

    void titleThatIsRightClickedOpensTheMenu()
    {
        QFETCH(QString, place);
        MenuFixture fixture;
        QDockWidget& pane = fixture.Pane("right");
        if (place == "empty")
            delete pane.widget();
        if (place == "plain")
            pane.setWidget(new QWidget);
        QCoreApplication::processEvents();
        QWidget* pWidget = place == "view" ? fixture.window.centralWidget() : pane.widget();
        const bool isTitle = place == "title" || place == "empty";
        const QPoint click = isTitle ? pane.mapTo(&fixture.window, QPoint(20, 3))
                                     : pWidget->mapTo(&fixture.window, pWidget->rect().center());

        fixture.RightClick(click);

        QTEST(fixture.Menu() != nullptr, "isTitle");
        if (isTitle)
        {
            QCOMPARE(fixture.Menu()->pos(), fixture.window.mapToGlobal(click));
            QCOMPARE(QApplication::activePopupWidget(), fixture.Menu());
        }
    }

    void otherEventsOfTheWindowOpenNothing()
    {
        MenuFixture fixture;
        const QPoint title = fixture.Pane("right").mapTo(&fixture.window, QPoint(20, 3));

        QTest::mouseMove(&fixture.window, title);

        QCOMPARE(fixture.Menu(), nullptr);
    }

    void choiceWithoutTheKeyboardAnywhereGivesItToNobody()
    {
        MenuFixture fixture;
        QApplication::focusWidget()->clearFocus();
        fixture.RightClick(fixture.Pane("right").mapTo(&fixture.window, QPoint(20, 3)));

        QTest::keyClick(fixture.Menu(), 'l');

        QCOMPARE(fixture.window.dockWidgetArea(&fixture.Pane("right")), Qt::LeftDockWidgetArea);
        QCOMPARE(QApplication::focusWidget(), nullptr);
    }

    void paneMayBeDestroyedByWhatIsChosen()
    {
        const MenuFixture fixture;
        const QPointer<QDockWidget> pPane = &fixture.Pane("upper");
        Deleter deleter;
        pPane->installEventFilter(&deleter);

        fixture.PressKey();
        QTest::keyClick(fixture.Menu(), 'c');

        QVERIFY(pPane == nullptr);
    }

    void menuGoesWithItsPane()
    {
        const MenuFixture fixture;
        fixture.PressKey();
        const QPointer<QMenu> pMenu = fixture.Menu();
        QVERIFY(pMenu != nullptr);

        delete &fixture.Pane("upper");

        QTRY_VERIFY(pMenu == nullptr);
    }
};

}

VESK_TESTS(vesk::PaneMenuTest);
#include "PaneMenuTest.moc"
