#include "RibbonFixture.h"

#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QTabBar>

namespace
{

/// A minimised ribbon with a button, a text field and two pages, above a view with the focus.
struct MinimizedFixture : RibbonFixture
{
    MinimizedFixture() : pButton(addButton(QStringLiteral("直线"))), pField(new QLineEdit)
    {
        pGroup->addWidget(pField);
        pBar->addPage(QStringLiteral("视图"));
        pBar->setMinimized(true);
        show();
    }

    QTabBar* tabs() const { return pBar->findChild<QTabBar*>(); }

    void clickTab(int index) const
    {
        QTest::mouseClick(tabs(), Qt::LeftButton, Qt::NoModifier, tabs()->tabRect(index).center());
    }

    bool isOpen() const
    {
        return pBar->page(pBar->currentPageIndex())->isVisible() && pBar->isMinimized();
    }

    QToolButton* pButton;
    QLineEdit* pField;
};

/// Counts the events of a kind that a widget gets.
class EventCounter final : public QObject
{
public:
    explicit EventCounter(QWidget& widget, QEvent::Type type = QEvent::MouseButtonPress)
        : m_type(type)
    {
        widget.installEventFilter(this);
    }

    int GetCount() const { return m_count; }

protected:
    bool eventFilter(QObject*, QEvent* pEvent) override
    {
        m_count += pEvent->type() == m_type ? 1 : 0;
        return false;
    }

private:
    QEvent::Type m_type;
    int m_count = 0;
};

}

/// A ribbon of which only the tabs are shown.
class RibbonMinimizedTest final : public QObject
{
    Q_OBJECT

private slots:
    void clickOnATabOpensItsPage()
    {
        const MinimizedFixture f;
        const int height = f.pBar->height();
        QVERIFY(!f.isOpen());

        f.clickTab(1);

        QCOMPARE(f.pBar->currentPageIndex(), 1);
        QVERIFY(f.isOpen());
        QTRY_VERIFY(f.pBar->height() > height);
    }

    void clickOnTheTabOfTheOpenPageClosesIt()
    {
        const MinimizedFixture f;
        f.clickTab(0);

        f.clickTab(0);

        QVERIFY(!f.isOpen());
        QVERIFY(f.pBar->isMinimized());
    }

    void clickOnAnotherTabShowsThatPage()
    {
        const MinimizedFixture f;
        f.clickTab(0);

        f.clickTab(1);
        QCoreApplication::processEvents();

        QVERIFY(f.isOpen());
        QCOMPARE(f.pBar->currentPageIndex(), 1);
    }

    void clickOnAButtonClosesThePage()
    {
        const MinimizedFixture f;
        const QSignalSpy clicks(f.pButton, &QToolButton::clicked);
        f.clickTab(0);

        QTest::mouseClick(f.pButton, Qt::LeftButton);

        QCOMPARE(clicks.count(), 1);
        QTRY_VERIFY(!f.isOpen());
        QVERIFY(f.pBar->isMinimized());
    }

    void keyOnAButtonClosesThePage()
    {
        const MinimizedFixture f;
        const QSignalSpy clicks(f.pButton, &QToolButton::clicked);
        f.pButton->setFocusPolicy(Qt::StrongFocus);
        f.clickTab(0);
        f.pButton->setFocus();

        f.type(Qt::Key_Shift);
        QTest::keyPress(f.window->windowHandle(), Qt::Key_Space);
        QCoreApplication::processEvents();
        QVERIFY(f.isOpen());
        QTest::keyRelease(f.window->windowHandle(), Qt::Key_Space);

        QCOMPARE(clicks.count(), 1);
        QTRY_VERIFY(!f.isOpen());
    }

    void scrollingClosesNothing()
    {
        MinimizedFixture f;
        for (int i = 0; i < 10; ++i)
            f.addButton(QString::number(i));
        f.window->resize(150, 400);
        f.clickTab(0);
        QCoreApplication::processEvents();
        QWidget* pArrow = nullptr;
        for (QToolButton* pButton : f.pPage->findChildren<QToolButton*>())
        {
            if (pButton->inherits("Qtitan::RibbonScrollButton") && pButton->isVisible())
                pArrow = pButton;
        }
        QVERIFY(pArrow != nullptr);

        QTest::mouseClick(pArrow, Qt::LeftButton);
        QCoreApplication::processEvents();

        QVERIFY(f.isOpen());
    }

    void clickElsewhereOnlyClosesThePage()
    {
        const MinimizedFixture f;
        const EventCounter presses(*f.pView);
        const EventCounter releases(*f.pView, QEvent::MouseButtonRelease);
        f.clickTab(0);

        QTest::mouseClick(f.pView, Qt::LeftButton);

        QTRY_VERIFY(!f.isOpen());
        QCOMPARE(presses.GetCount(), 0);
        QCOMPARE(releases.GetCount(), 0);
        QTest::mouseClick(f.pView, Qt::LeftButton);
        QCOMPARE(presses.GetCount(), 1);
        QCOMPARE(releases.GetCount(), 1);
    }

    void clickOnATabOpensThePageThatAClickElsewhereHasClosed()
    {
        const MinimizedFixture f;
        f.clickTab(0);
        QTest::mouseClick(f.pView, Qt::LeftButton);
        QTRY_VERIFY(!f.isOpen());

        f.clickTab(0);
        QCoreApplication::processEvents();

        QVERIFY(f.isOpen());
    }

    void doubleClickElsewhereOnlyClosesThePage()
    {
        const MinimizedFixture f;
        const EventCounter doubleClicks(*f.pView, QEvent::MouseButtonDblClick);
        f.clickTab(0);

        QTest::mouseDClick(f.pView, Qt::LeftButton);
        QTest::mouseRelease(f.pView, Qt::LeftButton);

        QTRY_VERIFY(!f.isOpen());
        QCOMPARE(doubleClicks.GetCount(), 0);
    }

    void pageStaysUntilTheMouseIsReleased()
    {
        const MinimizedFixture f;
        const QPoint place = f.pView->mapTo(f.window.get(), f.pView->rect().center());
        f.clickTab(0);
        QTest::mousePress(f.window->windowHandle(), Qt::LeftButton, {}, place);
        QCoreApplication::processEvents();
        QVERIFY(f.isOpen());

        QTest::mouseRelease(f.window->windowHandle(), Qt::LeftButton, {}, place);

        QTRY_VERIFY(!f.isOpen());
    }

    void clickInAnotherWindowClosesThePageToo()
    {
        const MinimizedFixture f;
        QWidget other;
        other.show();
        QVERIFY(QTest::qWaitForWindowExposed(&other));
        const EventCounter presses(other);
        const EventCounter releases(other, QEvent::MouseButtonRelease);
        f.clickTab(0);

        QTest::mousePress(other.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
        QCoreApplication::processEvents();
        QTest::mouseRelease(other.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));

        QTRY_VERIFY(!f.isOpen());
        QCOMPARE(presses.GetCount(), 1);
        QCOMPARE(releases.GetCount(), 1);
    }

    void clickElsewhereThatOpensAListIsForgottenWithTheNext()
    {
        const MinimizedFixture f;
        const QSignalSpy clicks(f.pButton, &QToolButton::clicked);
        QWidget other;
        QMenu menu(&other);
        menu.addAction("1");
        f.clickTab(0);
        QTest::mouseClick(&other, Qt::LeftButton);
        menu.popup(QPoint());
        QCoreApplication::processEvents();
        menu.close();
        QVERIFY(f.isOpen());

        QTest::mouseClick(f.pButton, Qt::LeftButton);

        QCOMPARE(clicks.count(), 1);
    }

    void pageStaysWhileItsButtonIsHeld()
    {
        const MinimizedFixture f;
        const QSignalSpy clicks(f.pButton, &QToolButton::clicked);
        f.clickTab(0);
        QCoreApplication::processEvents();
        const QPoint place = f.pButton->mapTo(f.window.get(), f.pButton->rect().center());
        f.pField->setFocus();

        QTest::mousePress(f.window->windowHandle(), Qt::LeftButton, {}, place);
        f.pView->setFocus();
        QCoreApplication::processEvents();
        QVERIFY(f.isOpen());
        QTest::mouseRelease(f.window->windowHandle(), Qt::LeftButton, {}, place);

        QCOMPARE(clicks.count(), 1);
        QTRY_VERIFY(!f.isOpen());
    }

    void pageThatIsOpenedAgainStays()
    {
        const MinimizedFixture f;
        f.clickTab(0);
        QTest::keyClick(f.pView, Qt::Key_Escape);

        f.pBar->closePage();
        f.pBar->openPage();
        QCoreApplication::processEvents();

        QVERIFY(f.isOpen());
    }

    void escapeOnlyClosesThePage()
    {
        const MinimizedFixture f;
        f.clickTab(0);

        f.type(Qt::Key_Escape);

        QTRY_VERIFY(!f.isOpen());
        QVERIFY(!f.pView->pressedKeys.contains(Qt::Key_Escape));
        f.type(Qt::Key_Escape);
        QVERIFY(f.pView->pressedKeys.contains(Qt::Key_Escape));
    }

    void pageStaysWhileItsFieldIsUsed()
    {
        const MinimizedFixture f;
        f.clickTab(0);

        QTest::mouseClick(f.pField, Qt::LeftButton);
        QTest::keyClicks(f.pField, "12");
        QCoreApplication::processEvents();

        QVERIFY(f.isOpen());
        QCOMPARE(f.pField->text(), QString("12"));
        f.pView->setFocus();
        QTRY_VERIFY(!f.isOpen());
    }

    void choiceFromAMenuClosesThePage()
    {
        const MinimizedFixture f;
        auto* pMenu = new QMenu(f.pButton);
        pMenu->addAction("1");
        f.pButton->setMenu(pMenu);
        f.clickTab(0);
        pMenu->popup(QPoint());
        QCoreApplication::processEvents();
        QVERIFY(f.isOpen());

        pMenu->close();

        QTRY_VERIFY(!f.isOpen());
    }

    void pageStaysWhileTheListOfItsButtonIsOpen()
    {
        const MinimizedFixture f;
        QMenu menu(f.pButton);
        menu.addAction("1");
        connect(f.pButton, &QToolButton::clicked, &menu, [&menu] { menu.popup(QPoint()); });
        f.clickTab(0);

        QTest::mouseClick(f.pButton, Qt::LeftButton);
        QCoreApplication::processEvents();
        QVERIFY(f.isOpen());
        f.type(Qt::Key_Escape);

        QVERIFY(!menu.isVisible());
        QTRY_VERIFY(!f.isOpen());
    }

    void listOfSomethingElseClosesNothing()
    {
        const MinimizedFixture f;
        QMenu menu(f.pView);
        menu.addAction("1");
        f.clickTab(0);
        menu.popup(QPoint());

        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.rect().bottomRight() + QPoint(9, 9));
        QCoreApplication::processEvents();

        QVERIFY(!menu.isVisible());
        QVERIFY(f.isOpen());
    }

    void anotherProgramClosesNothing()
    {
        const MinimizedFixture f;
        f.clickTab(0);
        QVERIFY(QApplication::focusWidget() != nullptr);

        QApplication::focusWidget()->clearFocus();
        QCoreApplication::processEvents();

        QVERIFY(QApplication::focusWidget() == nullptr);
        QVERIFY(f.isOpen());
    }

    void keyOnTheTabsOpensThePage_data()
    {
        QTest::addColumn<Qt::Key>("key");

        QTest::newRow("Space") << Qt::Key_Space;
        QTest::newRow("Return") << Qt::Key_Return;
        QTest::newRow("Enter") << Qt::Key_Enter;
        QTest::newRow("Down") << Qt::Key_Down;
    }

    void keyOnTheTabsOpensThePage()
    {
        QFETCH(Qt::Key, key);
        const MinimizedFixture f;
        f.tabs()->setFocus();

        f.type(key);

        QVERIFY(f.isOpen());
    }

    void keyOfThePageOpensIt()
    {
        const MinimizedFixture f;

        f.type(Qt::Key_2, Qt::AltModifier);

        QCOMPARE(f.pBar->currentPageIndex(), 1);
        QVERIFY(f.isOpen());
    }

    void keyTipOfAButtonClosesThePage()
    {
        const MinimizedFixture f;
        const QSignalSpy clicks(f.pButton, &QToolButton::clicked);
        f.type(Qt::Key_F10);
        f.type(Qt::Key_1);
        QVERIFY(f.isOpen());

        f.type(Qt::Key_1);

        QCOMPARE(clicks.count(), 1);
        QTRY_VERIFY(!f.isOpen());
    }

    void ribbonThatIsRestoredStays()
    {
        const MinimizedFixture f;
        f.clickTab(0);

        f.pBar->setMinimized(false);
        QTest::mouseClick(f.pButton, Qt::LeftButton);
        QCoreApplication::processEvents();

        QVERIFY(f.pPage->isVisible());
    }

    void ribbonThatIsNotMinimisedTakesNoClick()
    {
        const MinimizedFixture f;
        const EventCounter presses(*f.pView);
        f.pBar->setMinimized(false);
        f.clickTab(1);

        f.pBar->openPage();
        QTest::mouseClick(f.pView, Qt::LeftButton);

        QCOMPARE(presses.GetCount(), 1);
        QVERIFY(f.pBar->page(1)->isVisible());
    }

    void buttonInTheRowOfTabsIsSeenWhateverIsShown()
    {
        const MinimizedFixture f;
        auto* pCorner = new QToolButton;

        f.pBar->addTabRowButton(pCorner);

        QTRY_VERIFY(pCorner->isVisible() && !pCorner->visibleRegion().isEmpty());
        QTRY_VERIFY(pCorner->geometry().right() >= f.pBar->width() - 4);
        f.clickTab(0);
        QVERIFY(!pCorner->visibleRegion().isEmpty());
    }
};

VESK_TESTS(RibbonMinimizedTest);
#include "RibbonMinimizedTest.moc"
