#include "Control/CommandButtonDefinition.h"
#include "Control/IControl.h"
#include "Control/LabelDefinition.h"
#include "Control/LineEditDefinition.h"
#include "Control/NqUiInterfaceFactory.h"
#include "Control/VeskIControlFactory.h"
#include "Dimension/ITemporaryDimensionHandler.h"
#include "Dimension/LinearTemporaryDimensionContext.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Foundation/IDebugWarningDisplayer.h"
#include "Support/HostFixture.h"

#include <QApplication>
#include <QFile>
#include <QStringList>
#include <QTimer>
#include <QToolButton>
#include <QtTest>

#include <dlfcn.h>
#include <elf.h>

namespace
{

/// What the library registered and withdrew, in order, as the host's operations were told.
QStringList s_notes;

QString Describe(const char* what, const void* pFactory)
{
    const bool hasUiFactory = vesk::NqUiInterfaceFactory::m_pFactory != nullptr;
    return QString("%1 %2, user-interface factory %3")
        .arg(what, pFactory != nullptr ? "registered" : "withdrawn",
             hasUiFactory ? "there" : "gone");
}

/// The host's own operation, which stands behind the one of this program.
template <class Function>
Function Next(const char* symbol)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, symbol));
}

}

namespace vesk
{

// The program's operations stand before the host's: they note the call and hand it on.
void VeskIControlFactory::Set(VeskIControlFactory* pFactory)
{
    s_notes << Describe("control factory", pFactory);
    Next<void (*)(VeskIControlFactory*)>("_ZN4vesk19VeskIControlFactory3SetEPS0_")(pFactory);
}

void TemporaryDimensionMgr::SetHandlerFactory(ITemporaryDimensionHandlerFactory* pFactory)
{
    s_notes << Describe("handler factory", pFactory);
    using Function = void (*)(TemporaryDimensionMgr*, ITemporaryDimensionHandlerFactory*);
    Next<Function>("_ZN4vesk21TemporaryDimensionMgr17SetHandlerFactoryEPNS_"
                   "33ITemporaryDimensionHandlerFactoryE")(this, pFactory);
}

NqUiInterfaceFactory::~NqUiInterfaceFactory()
{
    s_notes << (m_pFactory == nullptr ? "user-interface factory destroyed when it was gone"
                                      : "user-interface factory destroyed while registered");
}

}

namespace vesk::test
{

/// The library, loaded as a host loads it.
class Loaded
{
public:
    Loaded() : m_pHandle(dlopen(VESK_LIBRARY_PATH, RTLD_NOW | RTLD_LOCAL)) {}
    ~Loaded() { Unload(); }
    Loaded(const Loaded&) = delete;
    Loaded& operator=(const Loaded&) = delete;

    bool IsLoaded() const { return m_pHandle != nullptr; }

    void Unload()
    {
        if (m_pHandle != nullptr)
            dlclose(std::exchange(m_pHandle, nullptr));
    }

private:
    void* m_pHandle;
};

bool IsLibraryInTheProcess()
{
    void* pHandle = dlopen(VESK_LIBRARY_PATH, RTLD_NOW | RTLD_NOLOAD);
    if (pHandle != nullptr)
        dlclose(pHandle);
    return pHandle != nullptr;
}

QStringList TakeNotes()
{
    return std::exchange(s_notes, {});
}

template <class T>
T ReadAt(const QByteArray& bytes, quint64 offset)
{
    T value;
    std::memcpy(&value, bytes.constData() + offset, sizeof value);
    return value;
}

/// How many symbols of the kind that pins a library in the process a file has.
int CountUniqueSymbols(const QByteArray& elf)
{
    const auto header = ReadAt<Elf64_Ehdr>(elf, 0);
    int count = 0;
    for (int i = 0; i < header.e_shnum; ++i)
    {
        const auto section =
            ReadAt<Elf64_Shdr>(elf, header.e_shoff + quint64(i) * header.e_shentsize);
        if (section.sh_type != SHT_DYNSYM)
            continue;
        for (quint64 at = 0; at < section.sh_size; at += sizeof(Elf64_Sym))
        {
            const auto symbol = ReadAt<Elf64_Sym>(elf, section.sh_offset + at);
            count += ELF64_ST_BIND(symbol.st_info) == STB_GNU_UNIQUE ? 1 : 0;
        }
    }
    return count;
}

class StaticRegistrationsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void registersInOrderAndWithdrawsInReverse();
    void leavesNothingRegistered();
    void isReallyUnloaded();
    void isUnloadedAfterWork();
    void isUnloadedAfterAWarningWasShown();
    void mayBeLoadedAgain();
    void hasNoSymbolThatPinsIt();
};

void StaticRegistrationsTest::init()
{
    TakeNotes();
    QVERIFY(!IsLibraryInTheProcess());
}

void StaticRegistrationsTest::registersInOrderAndWithdrawsInReverse()
{
    Loaded library;
    QVERIFY2(library.IsLoaded(), dlerror());
    QCOMPARE(TakeNotes(),
             (QStringList{"control factory registered, user-interface factory there",
                          "handler factory registered, user-interface factory there"}));
    QVERIFY(VeskIControlFactory::Get() != nullptr);

    library.Unload();

    QCOMPARE(TakeNotes(), (QStringList{"handler factory withdrawn, user-interface factory there",
                                       "control factory withdrawn, user-interface factory there",
                                       "user-interface factory destroyed when it was gone"}));
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
    // What is of the library's classes has to go before it: the editor, which is the view's child,
    // and the posted refresh of the controls.
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

void StaticRegistrationsTest::hasNoSymbolThatPinsIt()
{
    QFile file(VESK_LIBRARY_PATH);
    QVERIFY(file.open(QIODevice::ReadOnly));

    QCOMPARE(CountUniqueSymbols(file.readAll()), 0);
}

}

QTEST_MAIN(vesk::test::StaticRegistrationsTest)
#include "StaticRegistrationsTest.moc"
