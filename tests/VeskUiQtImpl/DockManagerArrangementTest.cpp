#include "VeskUiQtImpl/DockManagerImpl.h"

#include "DockFixture.h"
#include "Support/TestValues.h"

namespace vesk::test
{

/// How the panes of a window are arranged.
class DockManagerArrangementTest : public QObject
{
    Q_OBJECT

private slots:
    void resizingWantsAsManySizesAsDocks_data();
    void resizingWantsAsManySizesAsDocks();
    void resizingReportsAWindowThatHoldsNoDocks();
    void resizingChangesNoSize_data();
    void resizingChangesNoSize();
    void resizingLooksAtNoDock();

    void arrangingReportsTheFirstThatIsMissing_data();
    void arrangingReportsTheFirstThatIsMissing();
    void splittingPutsTheSecondBesideTheFirst_data();
    void splittingPutsTheSecondBesideTheFirst();
    void tabifyingPutsTheSecondOnTop();

    void tabifiedDocksReportAWindowThatHoldsNoDocks();
    void tabifiedDocksReportADockThatIsNoWidget();
    void tabifiedDocksReportNoDock();
    void arrangingShowsAndHidesNothing_data();
    void arrangingShowsAndHidesNothing();
    void tabifyingHappensOnceAndInTheAreaOfTheFirst();
    void docksThatWereNotAddedAreArrangedToo();
    void aDockThatIsNotTabbedHasNoPartners();
    void partnersComeInTheOrderOfTheTabs();
    void aPartnerOfSomebodyElseIsReportedAndLeftOut();
};

/// Two panes side by side in a shown window.
struct ShownDocks : DockFixture
{
    ShownDocks()
    {
        window.show();
        pFirst->Show();
        pSecond->Show();
    }

    IDock* pFirst = Add(L"first", DockArea::Top, DockOrientation::Horizontal);
    IDock* pSecond = Add(L"second", DockArea::Top, DockOrientation::Horizontal);
};

void DockManagerArrangementTest::resizingWantsAsManySizesAsDocks_data()
{
    QTest::addColumn<int>("sizeCount");
    QTest::newRow("fewer") << 0;
    QTest::newRow("more") << 2;
}

void DockManagerArrangementTest::resizingWantsAsManySizesAsDocks()
{
    QFETCH(int, sizeCount);
    DockFixture f;
    IDock* pDock = f.Add(L"name");
    f.TakeWindow();

    f.manager.ResizeDocks({pDock}, std::vector<int>(std::size_t(sizeCount), 100),
                          DockOrientation::Horizontal);

    EXPECT_WARNING(f.host.warnings, L"docks和sizes个数不相等",
                   "vesk::DockManagerImpl::ResizeDocks");
}

void DockManagerArrangementTest::resizingReportsAWindowThatHoldsNoDocks()
{
    DockFixture f;
    IDock* pDock = f.Add(L"name");
    f.TakeWindow();

    f.manager.ResizeDocks({pDock}, {100}, DockOrientation::Horizontal);

    EXPECT_WARNING(f.host.warnings, L"pQMainWindow是空指针", "vesk::DockManagerImpl::ResizeDocks");
}

void DockManagerArrangementTest::resizingChangesNoSize_data()
{
    QTest::addColumn<int>("orientation");
    QTest::newRow("vertical") << 0;
    QTest::newRow("horizontal") << 1;
}

void DockManagerArrangementTest::resizingChangesNoSize()
{
    QFETCH(int, orientation);
    ShownDocks f;
    QTRY_VERIFY(WidgetOf(f.pSecond)->x() > WidgetOf(f.pFirst)->x());
    const QRect first = WidgetOf(f.pFirst)->geometry();
    const QRect second = WidgetOf(f.pSecond)->geometry();

    f.manager.ResizeDocks({f.pFirst, f.pSecond}, {150, 600},
                          static_cast<DockOrientation>(orientation));
    QCoreApplication::sendPostedEvents();

    QCOMPARE(WidgetOf(f.pFirst)->geometry(), first);
    QCOMPARE(WidgetOf(f.pSecond)->geometry(), second);
}

void DockManagerArrangementTest::resizingLooksAtNoDock()
{
    DockFixture f;

    f.manager.ResizeDocks({nullptr}, {100}, DockOrientation::Horizontal);

    QVERIFY2(f.host.warnings.IsEmpty(), qPrintable(f.host.warnings.Describe()));
}

void DockManagerArrangementTest::arrangingReportsTheFirstThatIsMissing_data()
{
    QTest::addColumn<bool>("isSplit");
    QTest::addColumn<bool>("hasWindow");
    QTest::addColumn<bool>("hasFirst");
    QTest::addColumn<QString>("message");
    const QString window = QString::fromUtf8("pQMainWindow是空指针");
    const QString first = QString::fromUtf8("pFirstQDock是空指针");
    const QString second = QString::fromUtf8("pSecondQDock是空指针");
    QTest::newRow("split, all") << true << false << false << window;
    QTest::newRow("split, both docks") << true << true << false << first;
    QTest::newRow("split, the second dock") << true << true << true << second;
    QTest::newRow("tabify, all") << false << false << false << window;
    QTest::newRow("tabify, both docks") << false << true << false << first;
    QTest::newRow("tabify, the second dock") << false << true << true << second;
}

void DockManagerArrangementTest::arrangingReportsTheFirstThatIsMissing()
{
    QFETCH(bool, isSplit);
    QFETCH(bool, hasWindow);
    QFETCH(bool, hasFirst);
    QFETCH(QString, message);
    DockFixture f;
    IDock* pDock = f.Add(L"name");
    QStringList notes;
    PlainDock plain(L"plain", &notes);
    if (!hasWindow)
        f.TakeWindow();

    if (isSplit)
        f.manager.SplitDock(hasFirst ? pDock : nullptr, &plain, DockOrientation::Horizontal);
    else
        f.manager.TabifyDock(hasFirst ? pDock : &plain, nullptr);

    EXPECT_WARNING(f.host.warnings, message.toStdWString(),
                   isSplit ? "vesk::DockManagerImpl::SplitDock"
                           : "vesk::DockManagerImpl::TabifyDock");
    QCOMPARE(f.window.dockWidgetArea(WidgetOf(pDock)), Qt::LeftDockWidgetArea);
}

void DockManagerArrangementTest::splittingPutsTheSecondBesideTheFirst_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<bool>("isHorizontal");
    QTest::newRow("zero") << 0 << false;
    QTest::newRow("one") << 1 << true;
    QTest::newRow("two") << 2 << false;
}

void DockManagerArrangementTest::splittingPutsTheSecondBesideTheFirst()
{
    QFETCH(int, orientation);
    QFETCH(bool, isHorizontal);
    DockFixture f;
    IDock* pFirst = f.Add(L"first", DockArea::Left);
    IDock* pSecond = f.Add(L"second", DockArea::Right);

    f.manager.SplitDock(pFirst, pSecond, static_cast<DockOrientation>(orientation));
    f.window.show();

    QCOMPARE(f.window.dockWidgetArea(WidgetOf(pSecond)), Qt::LeftDockWidgetArea);
    QTRY_VERIFY(WidgetOf(pSecond)->isVisible());
    QTRY_COMPARE(WidgetOf(pSecond)->x() > WidgetOf(pFirst)->x(), isHorizontal);
    QCOMPARE(WidgetOf(pSecond)->y() > WidgetOf(pFirst)->y(), !isHorizontal);
}

void DockManagerArrangementTest::tabifyingPutsTheSecondOnTop()
{
    DockFixture f;
    IDock* pFirst = f.Add(L"first", DockArea::Left);
    IDock* pSecond = f.Add(L"second", DockArea::Right);

    f.manager.TabifyDock(pFirst, pSecond);
    f.window.show();

    QCOMPARE(f.window.dockWidgetArea(WidgetOf(pSecond)), Qt::LeftDockWidgetArea);
    QTRY_VERIFY(!WidgetOf(pSecond)->visibleRegion().isEmpty());
    QVERIFY(WidgetOf(pFirst)->visibleRegion().isEmpty());
}

void DockManagerArrangementTest::tabifiedDocksReportAWindowThatHoldsNoDocks()
{
    DockFixture f;
    f.TakeWindow();

    QVERIFY(f.manager.TabifiedDocks(nullptr).empty());

    EXPECT_WARNING(f.host.warnings, L"pQMainWindow是空指针",
                   "vesk::DockManagerImpl::TabifiedDocks");
}

void DockManagerArrangementTest::tabifiedDocksReportADockThatIsNoWidget()
{
    DockFixture f;
    QStringList notes;
    PlainDock plain(L"plain", &notes);

    QVERIFY(f.manager.TabifiedDocks(&plain).empty());

    EXPECT_WARNING(f.host.warnings, L"pQDockWidget是空指针",
                   "vesk::DockManagerImpl::TabifiedDocks");
}

void DockManagerArrangementTest::tabifiedDocksReportNoDock()
{
    DockFixture f;
    f.Add(L"name");

    QVERIFY(f.manager.TabifiedDocks(nullptr).empty());

    EXPECT_WARNING(f.host.warnings, L"pQDockWidget是空指针",
                   "vesk::DockManagerImpl::TabifiedDocks");
}

void DockManagerArrangementTest::arrangingShowsAndHidesNothing_data()
{
    QTest::addColumn<bool>("isSplit");
    QTest::newRow("split") << true;
    QTest::newRow("tabify") << false;
}

void DockManagerArrangementTest::arrangingShowsAndHidesNothing()
{
    QFETCH(bool, isSplit);
    DockFixture f;
    f.window.show();
    IDock* pFirst = f.Add(L"first", DockArea::Left);
    IDock* pSecond = f.Add(L"second", DockArea::Right);
    IDock* pThird = f.Add(L"third", DockArea::Right);
    pFirst->Show();
    pSecond->Hide();
    pThird->Show();
    WidgetOf(pFirst)->setFeatures(QDockWidget::DockWidgetMovable);
    WidgetOf(pSecond)->setFeatures(QDockWidget::DockWidgetMovable);

    if (isSplit)
        f.manager.SplitDock(pFirst, pSecond, DockOrientation::Horizontal);
    else
        f.manager.TabifyDock(pFirst, pSecond);
    QCoreApplication::processEvents();

    QVERIFY(!pFirst->IsHidden());
    QVERIFY(pSecond->IsHidden());
    QVERIFY(!pThird->IsHidden());
    QVERIFY(!pFirst->IsFloating() && !pSecond->IsFloating() && !pThird->IsFloating());
    QCOMPARE(f.window.dockWidgetArea(WidgetOf(pThird)), Qt::RightDockWidgetArea);
    QCOMPARE(int(WidgetOf(pFirst)->features()), int(QDockWidget::DockWidgetMovable));
    QCOMPARE(int(WidgetOf(pSecond)->features()), int(QDockWidget::DockWidgetMovable));
    QCOMPARE(pSecond->GetTitle(), std::wstring(L"second"));
}

void DockManagerArrangementTest::tabifyingHappensOnceAndInTheAreaOfTheFirst()
{
    DockFixture f;
    IDock* pFirst = f.Add(L"first", DockArea::Left);
    IDock* pSecond = f.Add(L"second", DockArea::Right);
    IDock* pThird = f.Add(L"third", DockArea::Left);

    f.manager.TabifyDock(pFirst, pSecond);

    QCOMPARE(f.manager.TabifiedDocks(pFirst), std::vector<IDock*>{pSecond});
    QVERIFY(f.manager.TabifiedDocks(pThird).empty());
}

void DockManagerArrangementTest::docksThatWereNotAddedAreArrangedToo()
{
    DockFixture f;
    IDock* pAdded = f.Add(L"name");
    const OwnerPtr<IDock> opTabbed = f.manager.CreateDock(L"tabbed", L"title");
    const OwnerPtr<IDock> opSplit = f.manager.CreateDock(L"split", L"title");

    f.manager.SplitDock(pAdded, opSplit.Get(), DockOrientation::Vertical);
    f.manager.TabifyDock(pAdded, opTabbed.Get());

    QCOMPARE(f.window.tabifiedDockWidgets(WidgetOf(pAdded)),
             QList<QDockWidget*>{WidgetOf(opTabbed.Get())});
    QCOMPARE(f.window.dockWidgetArea(WidgetOf(opSplit.Get())), Qt::LeftDockWidgetArea);
    QCOMPARE(f.manager.TabifiedDocks(opTabbed.Get()), std::vector<IDock*>{pAdded});
    QVERIFY(f.manager.GetDock(L"tabbed") == nullptr);
}

void DockManagerArrangementTest::aDockThatIsNotTabbedHasNoPartners()
{
    DockFixture f;
    f.Add(L"other");

    QVERIFY(f.manager.TabifiedDocks(f.Add(L"name")).empty());
}

void DockManagerArrangementTest::partnersComeInTheOrderOfTheTabs()
{
    DockFixture f;
    IDock* pB = f.Add(L"b");
    IDock* pC = f.Add(L"c");
    IDock* pA = f.Add(L"a");
    f.manager.TabifyDock(pB, pC);
    f.manager.TabifyDock(pC, pA);

    QCOMPARE(f.manager.TabifiedDocks(pB), (std::vector<IDock*>{pC, pA}));
    QCOMPARE(f.manager.TabifiedDocks(pA), (std::vector<IDock*>{pB, pC}));
}

void DockManagerArrangementTest::aPartnerOfSomebodyElseIsReportedAndLeftOut()
{
    DockFixture f;
    IDock* pDock = f.Add(L"name");
    QDockWidget foreign(&f.window);
    f.window.tabifyDockWidget(WidgetOf(pDock), &foreign);
    IDock* pLast = f.Add(L"last");
    f.window.tabifyDockWidget(&foreign, WidgetOf(pLast));

    const std::vector<IDock*> partners = f.manager.TabifiedDocks(pDock);

    EXPECT_WARNING(f.host.warnings, L"m_qDockWidgetToIDockMap里没有要找的东西",
                   "vesk::DockManagerImpl::TabifiedDocks");
    QCOMPARE(partners, std::vector<IDock*>{pLast});
}

}

VESK_TESTS(vesk::test::DockManagerArrangementTest);
#include "DockManagerArrangementTest.moc"
