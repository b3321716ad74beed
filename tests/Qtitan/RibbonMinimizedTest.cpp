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

/// Counts the presses that a widget gets.
class PressCounter final : public QObject
{
public:
    explicit PressCounter(QWidget& widget) { widget.installEventFilter(this); }
    int GetCount() const { return m_count; }

protected:
    bool eventFilter(QObject*, QEvent* pEvent) override
    {
        m_count += pEvent->type() == QEvent::MouseButtonPress ? 1 : 0;
        return false;
    }

private:
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

        f.type(Qt::Key_Space);

        QCOMPARE(clicks.count(), 1);
        QTRY_VERIFY(!f.isOpen());
    }

    void clickElsewhereOnlyClosesThePage()
    {
        const MinimizedFixture f;
        const PressCounter presses(*f.pView);
        f.clickTab(0);

        QTest::mouseClick(f.pView, Qt::LeftButton);

        QTRY_VERIFY(!f.isOpen());
        QCOMPARE(presses.GetCount(), 0);
        QTest::mouseClick(f.pView, Qt::LeftButton);
        QCOMPARE(presses.GetCount(), 1);
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
        const PressCounter presses(*f.pView);
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
