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
    PaneMenu menu{window, nullptr};
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

    void titleThatIsRightClickedOpensTheMenu_data()
    {
        QTest::addColumn<bool>("isTitle");

        QTest::newRow("title") << true;
        QTest::newRow("content") << false;
    }

    void titleThatIsRightClickedOpensTheMenu()
    {
        QFETCH(bool, isTitle);
        MenuFixture fixture;
        QDockWidget& pane = fixture.Pane("right");
        const QPoint place = isTitle ? QPoint(20, 3) : pane.widget()->geometry().center();
        const QPoint inWindow = pane.mapTo(&fixture.window, place);
        QContextMenuEvent click(QContextMenuEvent::Mouse, inWindow,
                                fixture.window.mapToGlobal(inWindow));

        PaneMenu& filter = fixture.menu;
        const bool isTaken = static_cast<QObject&>(filter).eventFilter(&fixture.window, &click);

        QCOMPARE(isTaken, isTitle);
        QCOMPARE(fixture.Menu() != nullptr, isTitle);
    }

    void menuGoesWithItsPane()
    {
        const MenuFixture fixture;
        fixture.PressKey();
        const QPointer<QMenu> pMenu = fixture.Menu();
        QVERIFY(pMenu != nullptr);

        delete &fixture.Pane("upper");

        QVERIFY(pMenu == nullptr);
    }
};

}

VESK_TESTS(vesk::PaneMenuTest);
#include "PaneMenuTest.moc"
