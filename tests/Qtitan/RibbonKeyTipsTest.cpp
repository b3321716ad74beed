#include "RibbonFixture.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QShortcut>
#include <QSignalSpy>

using namespace Qtitan;

namespace
{

/// Two pages; the first has two buttons, one of them with a mnemonic, and a line edit.
struct TipsFixture : RibbonFixture
{
    TipsFixture()
        : pLine(addButton("直线(&L)")), pArc(addButton("圆弧")), pEdit(new QLineEdit),
          pSecondPage(pBar->addPage("&View")), lineSpy(pLine, &QToolButton::clicked),
          arcSpy(pArc, &QToolButton::clicked)
    {
        pGroup->addWidget("长度", pEdit);
        pSecondPage->addGroup("窗格")->addButton(createButton("浏览器"));
        show();
    }

    QToolButton* pLine;
    QToolButton* pArc;
    QLineEdit* pEdit;
    RibbonPage* pSecondPage;
    QSignalSpy lineSpy;
    QSignalSpy arcSpy;
};

const QStringList s_tabTips{"1", "V"};
const QStringList s_pageTips{"L", "1", "2"};

} // namespace

class RibbonKeyTipsTest final : public QObject
{
    Q_OBJECT

private slots:
    void startKeyShowsTipsOverTheTabs_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("Alt") << Qt::Key_Alt;
        QTest::newRow("F10") << Qt::Key_F10;
    }

    void startKeyShowsTipsOverTheTabs()
    {
        QFETCH(Qt::Key, key);
        TipsFixture f;

        f.type(key);
        QCOMPARE(f.tips(), s_tabTips);
        f.type(key);

        QCOMPARE(f.tips(), QStringList());
    }

    void fixedTipStaysWhateverTheOthersHave()
    {
        TipsFixture f;
        f.pArc->setProperty(KeyTipProperty, "L");
        f.pEdit->setProperty(KeyTipProperty, "7");

        f.type(Qt::Key_Alt);
        f.type(Qt::Key_1);

        QCOMPARE(f.tips(), (QStringList{"1", "L", "7"}));
    }

    void fixedTipOfAnUnusableControlIsNobodyElses()
    {
        TipsFixture f;
        f.pArc->setProperty(KeyTipProperty, "1");
        f.pArc->setEnabled(false);

        f.type(Qt::Key_Alt);
        f.type(Qt::Key_1);

        QCOMPARE(f.tips(), (QStringList{"L", "2"}));
    }

    void tipsStandOverTheirTabs()
    {
        TipsFixture f;

        f.type(Qt::Key_Alt);

        const auto badges = f.window->findChildren<QLabel*>("qtitan_keyTip");
        QCOMPARE(badges.size(), 2);
        QVERIFY(badges[1]->isVisible());
        QVERIFY(f.pBar->tabRect(1).intersects(badges[1]->geometry()));
        QVERIFY(!f.pBar->tabRect(0).intersects(badges[1]->geometry()));
    }

    void keyOfATabShowsTheTipsOfItsPage()
    {
        TipsFixture f;
        f.type(Qt::Key_Alt);

        f.type(Qt::Key_V);

        QCOMPARE(f.pBar->currentPageIndex(), 1);
        QCOMPARE(f.tips(), QStringList("1"));
    }

    void keyOfAButtonClicksItOnceAndEnds_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<int>("lineClicks");
        QTest::addColumn<int>("arcClicks");
        QTest::newRow("mnemonic") << Qt::Key_L << 1 << 0;
        QTest::newRow("in order") << Qt::Key_1 << 0 << 1;
    }

    void keyOfAButtonClicksItOnceAndEnds()
    {
        QFETCH(Qt::Key, key);
        QFETCH(int, lineClicks);
        QFETCH(int, arcClicks);
        TipsFixture f;
        f.type(Qt::Key_Alt);
        f.type(Qt::Key_1);
        QCOMPARE(f.tips(), s_pageTips);

        f.type(key);

        QCOMPARE(f.lineSpy.count(), lineClicks);
        QCOMPARE(f.arcSpy.count(), arcClicks);
        QCOMPARE(f.tips(), QStringList());
        QCOMPARE(f.pView->pressedKeys, QList<int>{Qt::Key_Alt});
        QCOMPARE(f.pView->releasedKeys, QList<int>{Qt::Key_Alt});
    }

    void keyOfASmallButtonClicksItAndStandsBeforeItsCaption()
    {
        TipsFixture f;
        QToolButton* pSmall = createButton("&Zoom");
        f.pGroup->addSmallButton(pSmall);
        QSignalSpy spy(pSmall, &QToolButton::clicked);
        QCoreApplication::processEvents();
        f.type(Qt::Key_Alt);
        f.type(Qt::Key_1);
        QCOMPARE(f.tips(), (QStringList{"L", "1", "2", "Z"}));
        const QRect badge = f.window->findChildren<QLabel*>("qtitan_keyTip").last()->geometry();
        const QRect place(pSmall->mapTo(f.pBar, QPoint()), pSmall->size());

        f.type(Qt::Key_Z);

        QVERIFY(badge.top() >= place.top() - 2 && badge.bottom() <= place.bottom() + 2);
        QVERIFY(badge.left() < place.left() && badge.right() < place.left() + 20);
        QCOMPARE(spy.count(), 1);
    }

    void keyOfALineEditGivesItTheFocusAndTypesNothing()
    {
        TipsFixture f;
        f.type(Qt::Key_Alt);
        f.type(Qt::Key_1);

        f.type(Qt::Key_2);

        QCOMPARE(QApplication::focusWidget(), f.pEdit);
        QCOMPARE(f.pEdit->text(), QString());
    }

    void escapeGoesOneLevelBackAndThenEnds()
    {
        TipsFixture f;
        f.type(Qt::Key_Alt);
        f.type(Qt::Key_1);

        f.type(Qt::Key_Escape);
        QCOMPARE(f.tips(), s_tabTips);
        f.type(Qt::Key_Escape);
        QCOMPARE(f.tips(), QStringList());
        QVERIFY(!f.pView->pressedKeys.contains(Qt::Key_Escape));
        f.type(Qt::Key_Escape);

        QVERIFY(f.pView->pressedKeys.contains(Qt::Key_Escape));
    }

    void keyArrivesInTheViewWhileThereAreNoTips_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::newRow("letter of a tip") << Qt::Key_L << Qt::KeyboardModifiers();
        QTest::newRow("digit of a tip") << Qt::Key_1 << Qt::KeyboardModifiers();
        QTest::newRow("Escape") << Qt::Key_Escape << Qt::KeyboardModifiers();
        QTest::newRow("Alt and a letter") << Qt::Key_L << Qt::KeyboardModifiers(Qt::AltModifier);
        QTest::newRow("Alt and the letter of a tab")
            << Qt::Key_V << Qt::KeyboardModifiers(Qt::AltModifier);
        QTest::newRow("Alt and a page too many")
            << Qt::Key_3 << Qt::KeyboardModifiers(Qt::AltModifier);
        QTest::newRow("Ctrl and a digit")
            << Qt::Key_1 << Qt::KeyboardModifiers(Qt::ControlModifier);
        QTest::newRow("Shift and F10") << Qt::Key_F10 << Qt::KeyboardModifiers(Qt::ShiftModifier);
    }

    void keyArrivesInTheViewWhileThereAreNoTips()
    {
        QFETCH(Qt::Key, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        TipsFixture f;

        f.type(key, modifiers);

        QVERIFY(f.pView->pressedKeys.contains(key));
        QCOMPARE(f.pBar->currentPageIndex(), 0);
        QCOMPARE(f.tips(), QStringList());
    }

    void keyThatIsNoTipEndsTheModeAndArrives()
    {
        TipsFixture f;
        f.type(Qt::Key_Alt);

        f.type(Qt::Key_Q);

        QCOMPARE(f.tips(), QStringList());
        QVERIFY(f.pView->pressedKeys.contains(Qt::Key_Q));
    }

    void shortcutWithAltIsLeftToTheApplication()
    {
        TipsFixture f;
        QShortcut letter(QKeySequence("Alt+L"), f.window.get());
        QShortcut digit(QKeySequence("Alt+2"), f.window.get());
        QSignalSpy letterSpy(&letter, &QShortcut::activated);
        QSignalSpy digitSpy(&digit, &QShortcut::activated);

        f.type(Qt::Key_L, Qt::AltModifier);
        f.type(Qt::Key_2, Qt::AltModifier);

        QCOMPARE(letterSpy.count(), 1);
        QCOMPARE(digitSpy.count(), 1);
        QCOMPARE(f.pBar->currentPageIndex(), 0);
        QCOMPARE(f.tips(), QStringList());
    }

    void tipComesBeforeAShortcutOfTheSameKey()
    {
        TipsFixture f;
        QShortcut shortcut(QKeySequence("L"), f.window.get());
        QSignalSpy spy(&shortcut, &QShortcut::activated);
        f.type(Qt::Key_Alt);
        f.type(Qt::Key_1);

        f.type(Qt::Key_L);
        QCOMPARE(f.lineSpy.count(), 1);
        QCOMPARE(spy.count(), 0);
        f.type(Qt::Key_L);

        QCOMPARE(f.lineSpy.count(), 1);
        QCOMPARE(spy.count(), 1);
    }

    void altAndADigitChoosesThePage()
    {
        TipsFixture f;

        f.type(Qt::Key_2, Qt::AltModifier);

        QCOMPARE(f.pBar->currentPageIndex(), 1);
        QCOMPARE(f.tips(), QStringList());
        QVERIFY(!f.pView->pressedKeys.contains(Qt::Key_2));
    }

    void clickEndsTheModeAndIsDelivered()
    {
        TipsFixture f;
        f.type(Qt::Key_Alt);
        f.type(Qt::Key_1);

        const QPoint place = f.pArc->mapTo(f.window.get(), f.pArc->rect().center());
        QTest::mouseClick(f.window->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);

        QCOMPARE(f.tips(), QStringList());
        QCOMPARE(f.arcSpy.count(), 1);
    }

    /// As with a native part of the view, whose clicks do not pass through the ribbon's window.
    void clickBesidesTheWindowEndsTheMode()
    {
        TipsFixture f;
        f.type(Qt::Key_Alt);

        QTest::mousePress(f.pView, Qt::LeftButton);

        QCOMPARE(f.tips(), QStringList());
    }

    void clickBetweenPressAndReleaseOfAltStartsNothing()
    {
        TipsFixture f;
        QWindow* pWindow = f.window->windowHandle();

        QTest::keyPress(pWindow, Qt::Key_Alt);
        QTest::mouseClick(pWindow, Qt::LeftButton, Qt::AltModifier, QPoint(100, 300));
        QTest::keyRelease(pWindow, Qt::Key_Alt);

        QCOMPARE(f.tips(), QStringList());
    }

    void controlThatCannotBeUsedHasNoTip_data()
    {
        QTest::addColumn<bool>("isHidden");
        QTest::newRow("hidden") << true;
        QTest::newRow("disabled") << false;
    }

    void controlThatCannotBeUsedHasNoTip()
    {
        QFETCH(bool, isHidden);
        TipsFixture f;
        f.pLine->setVisible(!isHidden);
        f.pLine->setEnabled(isHidden);
        f.type(Qt::Key_Alt);

        f.type(Qt::Key_1);

        QCOMPARE(f.tips(), (QStringList{"1", "2"}));
    }

    void tipOfAButtonDeletedMeanwhileDoesNothing()
    {
        TipsFixture f;
        f.type(Qt::Key_Alt);
        f.type(Qt::Key_1);

        delete f.pLine;
        f.type(Qt::Key_L);

        QCOMPARE(f.tips(), QStringList());
        QCOMPARE(f.arcSpy.count(), 0);
    }

    void clickedButtonMayDeleteTheRibbon()
    {
        TipsFixture f;
        const QPointer<RibbonBar> pBar(f.pBar);
        connect(f.pLine, &QToolButton::clicked, this, [&f] { delete f.pBar; });
        f.type(Qt::Key_Alt);
        f.type(Qt::Key_1);

        f.type(Qt::Key_L);
        f.type(Qt::Key_5);

        QVERIFY(pBar == nullptr);
        QVERIFY(f.pView->pressedKeys.contains(Qt::Key_5));
    }

    void keysArriveInALoopThatTheClickedButtonRuns()
    {
        TipsFixture f;
        connect(f.pLine, &QToolButton::clicked, this, [&f] { f.type(Qt::Key_5); });
        f.type(Qt::Key_Alt);
        f.type(Qt::Key_1);

        f.type(Qt::Key_L);

        QVERIFY(f.pView->pressedKeys.contains(Qt::Key_5));
    }

    void keyOfATabOpensItsPageInAMinimisedRibbon()
    {
        TipsFixture f;
        f.pBar->setMinimized(true);
        f.type(Qt::Key_Alt);

        f.type(Qt::Key_1);

        QVERIFY(f.pBar->isMinimized());
        QVERIFY(f.pPage->isVisible());
        QCOMPARE(f.tips(), s_pageTips);
    }

    void openMenuKeepsItsKeys()
    {
        TipsFixture f;
        QMenu menu;
        QAction* pAction = menu.addAction("&Zoom");
        QSignalSpy spy(pAction, &QAction::triggered);
        menu.popup(f.window->mapToGlobal(QPoint(50, 300)));
        QVERIFY(QTest::qWaitForWindowExposed(&menu, vesk::test::PatienceMs));

        f.type(Qt::Key_F10);
        QCOMPARE(f.tips(), QStringList());
        f.type(Qt::Key_Z);

        QCOMPARE(spy.count(), 1);
    }

    void moreControlsThanSingleKeysGetTwoEach()
    {
        TipsFixture f;
        f.window->resize(4000, 400);
        QToolButton* pLast = nullptr;
        for (int i = 0; i < 34; ++i)
            pLast = f.addButton("X");
        QSignalSpy spy(pLast, &QToolButton::clicked);
        QCoreApplication::processEvents();
        f.type(Qt::Key_Alt);
        f.type(Qt::Key_1);
        QCOMPARE(f.tips().size(), 37);
        QCOMPARE(f.tips().last(), QString("02"));

        f.type(Qt::Key_0);
        QCOMPARE(f.tips().size(), 37);
        f.type(Qt::Key_2);

        QCOMPARE(spy.count(), 1);
        QCOMPARE(f.tips(), QStringList());
    }

    void scrollButtonHasATipAndLeadsToWhatWasHidden()
    {
        TipsFixture f;
        for (int i = 0; i < 6; ++i)
            f.addButton("Button");
        QToolButton* pLast = f.addButton("&Zoom");
        QSignalSpy spy(pLast, &QToolButton::clicked);
        f.window->resize(400, 400);
        QCoreApplication::processEvents();
        QCOMPARE(f.pPage->width(), 400);
        f.type(Qt::Key_Alt);
        f.type(Qt::Key_1);
        QVERIFY(!f.tips().contains("Z"));

        for (int scrolls = 0; scrolls < 10 && !f.tips().contains("Z"); ++scrolls)
            f.type(static_cast<Qt::Key>(f.tips().last().at(0).unicode()));
        f.type(Qt::Key_Z);

        QCOMPARE(spy.count(), 1);
    }
};

VESK_TESTS(RibbonKeyTipsTest);
#include "RibbonKeyTipsTest.moc"
