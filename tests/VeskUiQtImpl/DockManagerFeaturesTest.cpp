#include "VeskUiQtImpl/DockManagerImpl.h"

#include "DockFixture.h"

#include "Support/TestValues.h"

namespace vesk::test
{

/// What the manager allows a user to do with a pane.
class DockManagerFeaturesTest : public QObject
{
    Q_OBJECT

private slots:
    void askingForAFeatureRefuses_data();
    void askingForAFeatureRefuses();
    void dockableIsWhatHasExactlyThreeFeatures_data();
    void dockableIsWhatHasExactlyThreeFeatures();
    void dockableIsSwitchedOn();
    void dockableIsSwitchedOff();
    void aRemovedTitleBarLeavesAnEmptyWidgetAndNoFeature();
    void anotherTitleBarMayBeRemovedAgain();
    void askingWhetherItIsDockableChangesNothing();
    void beingDockableLeavesTheRest_data();
    void beingDockableLeavesTheRest();
    void aRemovedTitleBarLeavesTheRest();
    void aRemovedTitleBarStaysRemoved();
    void featuresAreThoseOfTheNamedDock();
};

void DockManagerFeaturesTest::askingForAFeatureRefuses_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("message");
    const QString noDock = QString::fromUtf8("pDock是空指针");
    const QString noWidget = QString::fromUtf8("pQDock是空指针");
    QTest::newRow("IsDockable, unknown") << "IsDockable"
                                         << "unknown"
                                         << "";
    QTest::newRow("IsDockable, null") << "IsDockable"
                                      << "null" << noDock;
    QTest::newRow("IsDockable, no widget") << "IsDockable"
                                           << "plain" << noWidget;
    QTest::newRow("SetIsDockable, unknown") << "SetIsDockable"
                                            << "unknown"
                                            << "";
    QTest::newRow("SetIsDockable, null") << "SetIsDockable"
                                         << "null" << noDock;
    QTest::newRow("SetIsDockable, no widget") << "SetIsDockable"
                                              << "plain" << noWidget;
    QTest::newRow("RemoveDockTitleBar, unknown") << "RemoveDockTitleBar"
                                                 << "unknown"
                                                 << "";
    QTest::newRow("RemoveDockTitleBar, null") << "RemoveDockTitleBar"
                                              << "null" << noDock;
    QTest::newRow("RemoveDockTitleBar, no widget") << "RemoveDockTitleBar"
                                                   << "plain" << noWidget;
}

void DockManagerFeaturesTest::askingForAFeatureRefuses()
{
    QFETCH(QString, operation);
    QFETCH(QString, name);
    QFETCH(QString, message);
    DockFixture f;
    QStringList notes;
    PlainDock plain(L"plain", &notes);
    f.Enter(L"null", nullptr);
    f.Enter(L"plain", &plain);
    const std::wstring wideName = name.toStdWString();

    const bool result = operation == "IsDockable"      ? f.manager.IsDockable(wideName)
                        : operation == "SetIsDockable" ? f.manager.SetIsDockable(wideName, true)
                                                       : f.manager.RemoveDockTitleBar(wideName);

    QVERIFY(!result);
    if (!message.isEmpty())
        EXPECT_WARNING(f.host.warnings, message.toStdWString(),
                       "vesk::DockManagerImpl::" + operation.toStdString());
}

void DockManagerFeaturesTest::dockableIsWhatHasExactlyThreeFeatures_data()
{
    QTest::addColumn<int>("features");
    QTest::addColumn<bool>("isDockable");
    QTest::newRow("none") << 0 << false;
    QTest::newRow("closable") << 1 << false;
    QTest::newRow("closable and movable") << 3 << false;
    QTest::newRow("closable and floatable") << 5 << false;
    QTest::newRow("movable and floatable") << 6 << false;
    QTest::newRow("all three") << 7 << true;
    QTest::newRow("all three and a vertical title bar") << 15 << false;
}

void DockManagerFeaturesTest::dockableIsWhatHasExactlyThreeFeatures()
{
    QFETCH(int, features);
    DockFixture f;
    IDock* pDock = f.Add(L"name");

    WidgetOf(pDock)->setFeatures(QDockWidget::DockWidgetFeatures(features));

    QTEST(f.manager.IsDockable(L"name"), "isDockable");
}

void DockManagerFeaturesTest::dockableIsSwitchedOn()
{
    DockFixture f;
    IDock* pDock = f.Add(L"name");
    WidgetOf(pDock)->setFeatures(QDockWidget::DockWidgetClosable |
                                 QDockWidget::DockWidgetVerticalTitleBar);

    QVERIFY(f.manager.SetIsDockable(L"name", true));

    QCOMPARE(int(WidgetOf(pDock)->features()), 7);
    QVERIFY(f.manager.IsDockable(L"name"));
}

void DockManagerFeaturesTest::dockableIsSwitchedOff()
{
    DockFixture f;
    IDock* pDock = f.Add(L"name");

    QVERIFY(f.manager.SetIsDockable(L"name", false));

    QCOMPARE(int(WidgetOf(pDock)->features()), 0);
    QVERIFY(!f.manager.IsDockable(L"name"));
}

void DockManagerFeaturesTest::aRemovedTitleBarLeavesAnEmptyWidgetAndNoFeature()
{
    DockFixture f;
    IDock* pDock = f.Add(L"name");

    QVERIFY(f.manager.RemoveDockTitleBar(L"name"));

    const QWidget* pTitleBar = WidgetOf(pDock)->titleBarWidget();
    QVERIFY(pTitleBar != nullptr);
    QCOMPARE(pTitleBar->metaObject(), &QWidget::staticMetaObject);
    QVERIFY(pTitleBar->children().isEmpty());
    QCOMPARE(pTitleBar->parentWidget(), static_cast<QWidget*>(WidgetOf(pDock)));
    QCOMPARE(int(WidgetOf(pDock)->features()), 0);
    QVERIFY(!f.manager.IsDockable(L"name"));
}

void DockManagerFeaturesTest::anotherTitleBarMayBeRemovedAgain()
{
    DockFixture f;
    QDockWidget* pWidget = WidgetOf(f.Add(L"name"));
    f.manager.RemoveDockTitleBar(L"name");
    const QWidget* pFirst = pWidget->titleBarWidget();

    QVERIFY(f.manager.RemoveDockTitleBar(L"name"));

    QVERIFY(pWidget->titleBarWidget() != nullptr);
    QVERIFY(pWidget->titleBarWidget() != pFirst);
}

void DockManagerFeaturesTest::askingWhetherItIsDockableChangesNothing()
{
    DockFixture f;
    QDockWidget* pWidget = WidgetOf(f.Add(L"name"));
    pWidget->setFeatures(QDockWidget::DockWidgetMovable);

    QVERIFY(!f.manager.IsDockable(L"name"));

    QCOMPARE(int(pWidget->features()), int(QDockWidget::DockWidgetMovable));
}

void DockManagerFeaturesTest::beingDockableLeavesTheRest_data()
{
    QTest::addColumn<bool>("isDockable");
    QTest::addColumn<bool>("isHidden");
    QTest::newRow("on, shown") << true << false;
    QTest::newRow("on, hidden") << true << true;
    QTest::newRow("off, shown") << false << false;
    QTest::newRow("off, hidden") << false << true;
}

void DockManagerFeaturesTest::beingDockableLeavesTheRest()
{
    QFETCH(bool, isDockable);
    QFETCH(bool, isHidden);
    DockFixture f;
    IDock* pDock = f.Add(L"name", DockArea::Right);
    WidgetOf(pDock)->setVisible(!isHidden);
    const Qt::DockWidgetAreas areas = WidgetOf(pDock)->allowedAreas();

    QVERIFY(f.manager.SetIsDockable(L"name", isDockable));

    QVERIFY(WidgetOf(pDock)->titleBarWidget() == nullptr);
    QCOMPARE(pDock->IsHidden(), isHidden);
    QVERIFY(!pDock->IsFloating());
    QCOMPARE(f.window.dockWidgetArea(WidgetOf(pDock)), Qt::RightDockWidgetArea);
    QCOMPARE(WidgetOf(pDock)->allowedAreas(), areas);
    QCOMPARE(pDock->GetTitle(), std::wstring(L"name"));
}

void DockManagerFeaturesTest::aRemovedTitleBarLeavesTheRest()
{
    DockFixture f;
    IDock* pDock = f.Add(L"name", DockArea::Right);
    pDock->SetWidget(MakeOwner<WidgetContent>());
    const QWidget* pContent = WidgetOf(pDock)->widget();
    pDock->Hide();

    QVERIFY(f.manager.RemoveDockTitleBar(L"name"));

    QVERIFY(pDock->IsHidden());
    QVERIFY(!pDock->IsFloating());
    QCOMPARE(f.window.dockWidgetArea(WidgetOf(pDock)), Qt::RightDockWidgetArea);
    QCOMPARE(pDock->GetTitle(), std::wstring(L"name"));
    QCOMPARE(WidgetOf(pDock)->widget(), pContent);
    QCOMPARE(f.manager.GetDock(L"name"), pDock);
}

void DockManagerFeaturesTest::aRemovedTitleBarStaysRemoved()
{
    DockFixture f;
    QDockWidget* pWidget = WidgetOf(f.Add(L"name"));
    f.manager.RemoveDockTitleBar(L"name");
    const QWidget* pTitleBar = pWidget->titleBarWidget();

    QVERIFY(f.manager.SetIsDockable(L"name", true));

    QCOMPARE(pWidget->titleBarWidget(), pTitleBar);
    QVERIFY(f.manager.IsDockable(L"name"));
}

void DockManagerFeaturesTest::featuresAreThoseOfTheNamedDock()
{
    DockFixture f;
    const QDockWidget* pOther = WidgetOf(f.Add(L"a"));
    f.Add(L"b");

    f.manager.SetIsDockable(L"b", false);
    f.manager.RemoveDockTitleBar(L"b");

    QCOMPARE(int(pOther->features()), 7);
    QVERIFY(pOther->titleBarWidget() == nullptr);
    QVERIFY(f.manager.IsDockable(L"a"));
    QVERIFY(!f.manager.IsDockable(L"b"));
}

}

VESK_TESTS(vesk::test::DockManagerFeaturesTest);
#include "DockManagerFeaturesTest.moc"
