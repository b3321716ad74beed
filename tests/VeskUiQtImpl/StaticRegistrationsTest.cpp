#include "Control/CommandButtonDefinition.h"
#include "Control/IControl.h"
#include "Control/LabelDefinition.h"
#include "Control/LineEditDefinition.h"
#include "Control/VeskIControlFactory.h"
#include "Dimension/ITemporaryDimensionHandler.h"
#include "Dimension/LinearTemporaryDimensionContext.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Support/HostFixture.h"
#include "Support/Platform/LoadedLibrary.h"
#include "Support/TestValues.h"
#include "Warnings/IDebugWarningDisplayer.h"
#include "Warnings/NqUiInterfaceFactory.h"

#include <QApplication>
#include <QTimer>
#include <QToolButton>

namespace vesk::test
{

/// The library, loaded as a host loads it.
struct Loaded : LoadedLibrary
{
    Loaded() : LoadedLibrary(VESK_LIBRARY_PATH) {}
};

bool IsLibraryInTheProcess()
{
    return LoadedLibrary::IsInTheProcess(VESK_LIBRARY_PATH);
}

class StaticRegistrationsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void registersWhenItIsLoaded();
    void leavesNothingRegistered();
    void isReallyUnloaded();
    void isUnloadedAfterWork();
    void isUnloadedAfterAWarningWasShown();
    void mayBeLoadedAgain();
};

void StaticRegistrationsTest::init()
{
    QVERIFY(!IsLibraryInTheProcess());
}

void StaticRegistrationsTest::registersWhenItIsLoaded()
{
    HostFixture host;
    const Loaded library;
    QVERIFY2(library.IsLoaded(), qPrintable(library.GetError()));

    TemporaryDimensionMgr::GetInstance()->SetContext(MakeOwner<LinearTemporaryDimensionContext>(
        Coordinate3d(), Vector3d(0, 0, 0), Vector3d(10, 0, 0)));

    QVERIFY(NqUiInterfaceFactory::m_pFactory != nullptr);
    QVERIFY(VeskIControlFactory::Get() != nullptr);
    QVERIFY(TemporaryDimensionMgr::GetInstance()->HasHandler());
    TemporaryDimensionMgr::GetInstance()->Drop();
}

void StaticRegistrationsTest::leavesNothingRegistered()
{
    HostFixture host;
    Loaded library;

    library.Unload();
    TemporaryDimensionMgr::GetInstance()->SetContext(MakeOwner<LinearTemporaryDimensionContext>(
        Coordinate3d(), Vector3d(0, 0, 0), Vector3d(10, 0, 0)));

    QVERIFY(NqUiInterfaceFactory::m_pFactory == nullptr);
    QVERIFY(VeskIControlFactory::Get() == nullptr);
    QVERIFY(!TemporaryDimensionMgr::GetInstance()->HasHandler());
}

void StaticRegistrationsTest::isReallyUnloaded()
{
    Loaded library;
    QVERIFY(IsLibraryInTheProcess());

    library.Unload();

    QVERIFY(!IsLibraryInTheProcess());
}

void StaticRegistrationsTest::isUnloadedAfterWork()
{
    HostFixture host;
    host.AddCommand(L"command", [](const CommandParameters&) {});
    Loaded library;
    {
        VeskIControlFactory& factory = *VeskIControlFactory::Get();
        const auto opLabel = factory.CreateQtLabel(MakeOwner<LabelDefinition>(L"label"));
        const auto opEdit = factory.CreateQtLineEdit(MakeOwner<LineEditDefinition>(L"edit"));
        const auto opButton =
            factory.CreateQtButton(MakeOwner<CommandButtonDefinition>(L"button", L"command"));
        dynamic_cast<QToolButton*>(opButton.Get())->click();
        TemporaryDimensionMgr& manager = *TemporaryDimensionMgr::GetInstance();
        manager.SetContext(MakeOwner<LinearTemporaryDimensionContext>(
            Coordinate3d(), Vector3d(0, 0, 0), Vector3d(10, 0, 0)));
        QVERIFY(manager.OnKeyDown('5', false, false, false));
        QVERIFY(manager.IsInputting());
        manager.Drop();
    }
    // Objects of the library's classes must be destroyed before it: the editor, which is a child of
    // the view, and the posted refresh of the controls.
    qDeleteAll(host.view.children());
    QCoreApplication::sendPostedEvents();

    library.Unload();

    QVERIFY(!IsLibraryInTheProcess());
}

void StaticRegistrationsTest::isUnloadedAfterAWarningWasShown()
{
    HostFixture host;
    host.application.SetMainWindow(&host.window);
    Loaded library;
    QTimer::singleShot(0, qApp, [] {
        if (QWidget* pDialog = QApplication::activeModalWidget())
            pDialog->close();
    });

    QVERIFY(NqUiInterfaceFactory::m_pFactory->CreateDebugWarningDialogDisplayer()->Display(
        "File.cpp", 1, "F", L"message", L"person", L"date"));
    library.Unload();

    QVERIFY(!IsLibraryInTheProcess());
    QVERIFY(NqUiInterfaceFactory::m_pFactory == nullptr);
}

void StaticRegistrationsTest::mayBeLoadedAgain()
{
    Loaded().Unload();

    Loaded library;

    QVERIFY(NqUiInterfaceFactory::m_pFactory != nullptr);
    QVERIFY(VeskIControlFactory::Get() != nullptr);
}

}

VESK_TESTS(vesk::test::StaticRegistrationsTest);
#include "StaticRegistrationsTest.moc"
