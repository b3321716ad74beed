#include "View/IUiDocumentViewManager.h"

#include "Host/View/StubView.h"
#include "Support/TestValues.h"

#include <memory>

namespace vesk
{

namespace
{

/// Two views and their manager.
struct Fixture
{
    Fixture()
    {
        manager.AddView(&first);
        manager.AddView(&second);
    }

    StubView first{1};
    StubView second{2};
    StubView unknown{3};
    UiDocumentViewManager manager;
};

const IUiView* Base(const StubView& view)
{
    return &view;
}

}

class UiDocumentViewManagerTest : public QObject
{
    Q_OBJECT

private slots:
    void isInstalledWhileItLives();
    void anOlderManagerDoesNotRemoveANewerOne();
    void isEmptyAtFirst();
    void theFirstViewBecomesCurrent();
    void findsAViewByItsId();
    void anAddedViewCanBecomeCurrent();
    void anUnknownViewCannot();
    void noneMayBeCurrent();
    void aViewAddedWhileNoneIsCurrentStaysBehind();
    void removingTheCurrentViewMakesTheFirstOneCurrent();
    void removingAnotherViewKeepsTheCurrentOne();
    void removingTheLastViewLeavesNone();
    void removingAnUnknownViewChangesNothing();
    void nullAndSecondAdditionsAreIgnored();
};

void UiDocumentViewManagerTest::isInstalledWhileItLives()
{
    QVERIFY(IUiDocumentViewManager::Get() == nullptr);
    {
        const UiDocumentViewManager manager;
        QCOMPARE(IUiDocumentViewManager::Get(),
                 static_cast<const IUiDocumentViewManager*>(&manager));
    }

    QVERIFY(IUiDocumentViewManager::Get() == nullptr);
}

void UiDocumentViewManagerTest::anOlderManagerDoesNotRemoveANewerOne()
{
    auto pOlder = std::make_unique<UiDocumentViewManager>();
    const UiDocumentViewManager newer;

    pOlder.reset();

    QCOMPARE(IUiDocumentViewManager::Get(), static_cast<const IUiDocumentViewManager*>(&newer));
}

void UiDocumentViewManagerTest::isEmptyAtFirst()
{
    const UiDocumentViewManager manager;

    QVERIFY(manager.GetCurrentUiView() == nullptr);
    QVERIFY(manager.GetUiViewById(0) == nullptr);
}

void UiDocumentViewManagerTest::theFirstViewBecomesCurrent()
{
    const Fixture f;

    QCOMPARE(f.manager.GetCurrentUiView(), Base(f.first));
}

void UiDocumentViewManagerTest::findsAViewByItsId()
{
    const Fixture f;

    QCOMPARE(f.manager.GetUiViewById(2), Base(f.second));
    QVERIFY(f.manager.GetUiViewById(3) == nullptr);
}

void UiDocumentViewManagerTest::anAddedViewCanBecomeCurrent()
{
    Fixture f;

    f.manager.SetCurrentView(&f.second);

    QCOMPARE(f.manager.GetCurrentUiView(), Base(f.second));
}

void UiDocumentViewManagerTest::anUnknownViewCannot()
{
    Fixture f;

    f.manager.SetCurrentView(&f.unknown);

    QCOMPARE(f.manager.GetCurrentUiView(), Base(f.first));
}

void UiDocumentViewManagerTest::noneMayBeCurrent()
{
    Fixture f;

    f.manager.SetCurrentView(nullptr);

    QVERIFY(f.manager.GetCurrentUiView() == nullptr);
}

void UiDocumentViewManagerTest::aViewAddedWhileNoneIsCurrentStaysBehind()
{
    Fixture f;
    f.manager.SetCurrentView(nullptr);

    f.manager.AddView(&f.unknown);

    QVERIFY(f.manager.GetCurrentUiView() == nullptr);
}

void UiDocumentViewManagerTest::removingTheCurrentViewMakesTheFirstOneCurrent()
{
    Fixture f;

    f.manager.RemoveView(&f.first);

    QCOMPARE(f.manager.GetCurrentUiView(), Base(f.second));
    QVERIFY(f.manager.GetUiViewById(1) == nullptr);
}

void UiDocumentViewManagerTest::removingAnotherViewKeepsTheCurrentOne()
{
    Fixture f;
    f.manager.AddView(&f.unknown);
    f.manager.SetCurrentView(&f.second);

    f.manager.RemoveView(&f.first);

    QCOMPARE(f.manager.GetCurrentUiView(), Base(f.second));
}

void UiDocumentViewManagerTest::removingTheLastViewLeavesNone()
{
    Fixture f;

    f.manager.RemoveView(&f.second);
    f.manager.RemoveView(&f.first);

    QVERIFY(f.manager.GetCurrentUiView() == nullptr);
}

void UiDocumentViewManagerTest::removingAnUnknownViewChangesNothing()
{
    Fixture f;

    f.manager.RemoveView(&f.unknown);
    f.manager.RemoveView(nullptr);

    QCOMPARE(f.manager.GetCurrentUiView(), Base(f.first));
    QCOMPARE(f.manager.GetUiViewById(2), Base(f.second));
}

void UiDocumentViewManagerTest::nullAndSecondAdditionsAreIgnored()
{
    Fixture f;

    f.manager.AddView(nullptr);
    f.manager.AddView(&f.first);
    f.manager.RemoveView(&f.first);

    QVERIFY(f.manager.GetUiViewById(1) == nullptr);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::UiDocumentViewManagerTest);
#include "UiDocumentViewManagerTest.moc"
