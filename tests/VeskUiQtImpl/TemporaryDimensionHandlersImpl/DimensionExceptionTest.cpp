#include "Journal/JournalManager.h"
#include "TemporaryDimensionHandlersImpl/KindInputFixture.h"

#include "Support/TestValues.h"

#include <stdexcept>

namespace vesk::test
{

namespace
{

/// Throws when it is notified of an editor.
class ThrowingObserver final : public IJournalObserver
{
public:
    ThrowingObserver() { JournalManager::GetInstance().AddObserver(this); }
    ~ThrowingObserver() override { JournalManager::GetInstance().RemoveObserver(this); }
    void OnRecord(const JournalRecord&) override {}
    void OnUiObject(const IJournalUiObject&, int) override { throw std::runtime_error("editor"); }
};

}

/// Hosts that throw while a value is typed.
class DimensionExceptionTest : public QObject
{
    Q_OBJECT

private slots:
    void anInputThatCouldNotBeOpenedIsNone_data() { AddKindRows(); }
    void anInputThatCouldNotBeOpenedIsNone();
};

void DimensionExceptionTest::anInputThatCouldNotBeOpenedIsNone()
{
    FETCH_KIND(rules);
    KindInputFixture f(rules);
    auto pObserver = std::make_unique<ThrowingObserver>();

    QVERIFY_EXCEPTION_THROWN(f.opHandler->OnKeyDown('5', false, false, false), std::runtime_error);

    QVERIFY(!f.opHandler->IsInputting());
    pObserver.reset();
    f.opHandler->OnKeyDown('5', false, false, false);
    QVERIFY(f.opHandler->IsInputting());
}

}

VESK_TESTS(vesk::test::DimensionExceptionTest);
#include "DimensionExceptionTest.moc"
