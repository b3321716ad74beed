#include "Control/VeskIControlFactory.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Support/Platform/LoadedLibrary.h"
#include "Support/TestValues.h"
#include "Warnings/NqUiInterfaceFactory.h"

#include <QFile>
#include <QStringList>

#include <dlfcn.h>
#include <elf.h>

#include <cstring>
#include <utility>

namespace
{

/// What the library registered and unregistered, in order, as seen by the functions of the host.
QStringList s_notes;

/// The last handler factory that was registered.
const void* s_pHandlerFactory = nullptr;

QString Describe(const char* what, const void* pFactory)
{
    const bool hasUiFactory = vesk::NqUiInterfaceFactory::m_pFactory != nullptr;
    return QString("%1 %2, user-interface factory %3")
        .arg(what, pFactory != nullptr ? "registered" : "withdrawn",
             hasUiFactory ? "there" : "gone");
}

/// The original function of the host behind the one of this program.
template <class Function>
Function Next(const char* symbol)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, symbol));
}

}

namespace vesk
{

// These functions of the program take precedence over the host's: they record the call and forward
// it.
void VeskIControlFactory::Set(VeskIControlFactory* pFactory)
{
    s_notes << Describe("control factory", pFactory);
    Next<void (*)(VeskIControlFactory*)>("_ZN4vesk19VeskIControlFactory3SetEPS0_")(pFactory);
}

void TemporaryDimensionMgr::SetHandlerFactory(ITemporaryDimensionHandlerFactory* pFactory)
{
    s_notes << Describe("handler factory", pFactory);
    if (pFactory != nullptr)
        s_pHandlerFactory = pFactory;
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

/// All entries of the sections of one type that are loaded.
template <class Entry>
QVector<Entry> EntriesOf(const QByteArray& elf, quint32 type)
{
    const auto header = ReadAt<Elf64_Ehdr>(elf, 0);
    QVector<Entry> entries;
    for (int i = 0; i < header.e_shnum; ++i)
    {
        const auto section =
            ReadAt<Elf64_Shdr>(elf, header.e_shoff + quint64(i) * header.e_shentsize);
        if (section.sh_type != type || (section.sh_flags & SHF_ALLOC) == 0)
            continue;
        for (quint64 at = 0; at < section.sh_size; at += sizeof(Entry))
            entries << ReadAt<Entry>(elf, section.sh_offset + at);
    }
    return entries;
}

QByteArray ReadLibrary()
{
    QFile file(VESK_LIBRARY_PATH);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

class StaticRegistrationsOrderTest : public QObject
{
    Q_OBJECT

private slots:
    void registersInOrderAndWithdrawsInReverse();
    void registersTheFactoryOfHandlersThatItGives();
    void hasNoSymbolThatPinsIt();
    void looksUpNoneOfItsOwnFunctions();
};

void StaticRegistrationsOrderTest::registersInOrderAndWithdrawsInReverse()
{
    LoadedLibrary library(VESK_LIBRARY_PATH);
    QVERIFY2(library.IsLoaded(), qPrintable(library.GetError()));
    QCOMPARE(TakeNotes(),
             (QStringList{"control factory registered, user-interface factory there",
                          "handler factory registered, user-interface factory there"}));

    library.Unload();

    QCOMPARE(TakeNotes(), (QStringList{"handler factory withdrawn, user-interface factory there",
                                       "control factory withdrawn, user-interface factory there",
                                       "user-interface factory destroyed when it was gone"}));
}

void StaticRegistrationsOrderTest::registersTheFactoryOfHandlersThatItGives()
{
    const LoadedLibrary library(VESK_LIBRARY_PATH);
    void* pLoaded = dlopen(VESK_LIBRARY_PATH, RTLD_NOW | RTLD_NOLOAD);
    const auto pGetInstance = reinterpret_cast<const void* (*)()>(
        dlsym(pLoaded, "_ZN4vesk32TemporaryDimensionHandlerFactory11GetInstanceEv"));

    const void* pInstance = pGetInstance != nullptr ? pGetInstance() : nullptr;
    dlclose(pLoaded);

    QVERIFY(pInstance != nullptr);
    QCOMPARE(pInstance, s_pHandlerFactory);
}

void StaticRegistrationsOrderTest::hasNoSymbolThatPinsIt()
{
    int count = 0;

    const auto symbols = EntriesOf<Elf64_Sym>(ReadLibrary(), SHT_DYNSYM);
    for (const Elf64_Sym& symbol : symbols)
        count += ELF64_ST_BIND(symbol.st_info) == STB_GNU_UNIQUE ? 1 : 0;

    QVERIFY(symbols.size() > 100);
    QCOMPARE(count, 0);
}

void StaticRegistrationsOrderTest::looksUpNoneOfItsOwnFunctions()
{
    const auto symbols = EntriesOf<Elf64_Sym>(ReadLibrary(), SHT_DYNSYM);
    int count = 0;

    const auto relocations = EntriesOf<Elf64_Rela>(ReadLibrary(), SHT_RELA);
    for (const Elf64_Rela& relocation : relocations)
    {
        const Elf64_Sym& symbol = symbols[static_cast<int>(ELF64_R_SYM(relocation.r_info))];
        const bool isFunction = ELF64_ST_TYPE(symbol.st_info) == STT_FUNC;
        count += isFunction && symbol.st_shndx != SHN_UNDEF ? 1 : 0;
    }

    QVERIFY(relocations.size() > 100);
    QCOMPARE(count, 0);
}

}

VESK_TESTS(vesk::test::StaticRegistrationsOrderTest);
#include "StaticRegistrationsOrderTest.moc"
