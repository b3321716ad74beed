#include "Control/ControlDefinitionChangeEvent.h"

#include "Control/ControlDefinitionChangeByUser.h"
#include "Control/LabelDefinition.h"
#include "Host/AllocationCounter.h"
#include "Host/Control/ChangeRecorder.h"
#include "Support/TestValues.h"

#include <memory>

namespace vesk
{

namespace
{

/// Reads all arguments and keeps nothing.
class Reader final : public IControlDefinitionChangeEventHandler
{
public:
    void On(IControlDefinitionChangeEventArgs* pArgs) override
    {
        m_isHeard = pArgs->GetType() >= 0 && pArgs->GetIndex() >= -1 && !pArgs->IsChangeByUser() &&
                    pArgs->GetItemDefinition() == nullptr;
    }

    bool IsHeard() const { return m_isHeard; }

private:
    bool m_isHeard = false;
};

}

class ControlDefinitionChangeEventTest : public QObject
{
    Q_OBJECT

private slots:
    void typesHaveTheirNumbers();
    void aPropertyChangeNamesNoItem();
    void anItemChangeCarriesItsItem();
    void isByUserWhileAScopeWithItsIdLives();
    void isNotByUserUnderAScopeOfAnotherId();
    void byUserIsReadWhenTheChangeIsRaised();
    void theEventMayBeDestroyedByAHandler();
    void raisingAllocatesNothing();
};

void ControlDefinitionChangeEventTest::typesHaveTheirNumbers()
{
    QCOMPARE(int{ControlDefinitionChangeEventType::Add}, 0);
    QCOMPARE(int{ControlDefinitionChangeEventType::Insert}, 1);
    QCOMPARE(int{ControlDefinitionChangeEventType::Delete}, 2);
    QCOMPARE(int{ControlDefinitionChangeEventType::Clear}, 3);
    QCOMPARE(int{ControlDefinitionChangeEventType::PropertyChanged}, 6);
}

void ControlDefinitionChangeEventTest::aPropertyChangeNamesNoItem()
{
    ControlDefinitionChangeEvent event(L"id");
    const ChangeRecorder recorder(event);

    event.RaisePropertyChanged();

    QCOMPARE(recorder.GetCount(), 1);
    const Change& change = recorder.GetChanges().front();
    QCOMPARE(change.type, 6);
    QCOMPARE(change.index, -1);
    QCOMPARE(change.caption, std::wstring());
    QVERIFY(change.pItem == nullptr);
    QVERIFY(!change.isByUser);
}

void ControlDefinitionChangeEventTest::anItemChangeCarriesItsItem()
{
    ControlDefinitionChangeEvent event(L"id");
    const ChangeRecorder recorder(event);
    const LabelDefinition item(L"item");

    event.RaiseItemsChanged(ControlDefinitionChangeEventType::Insert, 4, L"caption", &item);

    QCOMPARE(recorder.GetCount(), 1);
    const Change& change = recorder.GetChanges().front();
    QCOMPARE(change.type, 1);
    QCOMPARE(change.index, 4);
    QCOMPARE(change.caption, std::wstring(L"caption"));
    QCOMPARE(change.pItem, static_cast<const IControlDefinition*>(&item));
}

void ControlDefinitionChangeEventTest::isByUserWhileAScopeWithItsIdLives()
{
    ControlDefinitionChangeEvent event(L"id");
    const ChangeRecorder recorder(event);

    {
        const ControlDefinitionChangeByUser byUser(L"id");
        event.RaisePropertyChanged();
    }
    event.RaisePropertyChanged();

    QVERIFY(recorder.GetChanges().at(0).isByUser);
    QVERIFY(!recorder.GetChanges().at(1).isByUser);
}

void ControlDefinitionChangeEventTest::isNotByUserUnderAScopeOfAnotherId()
{
    ControlDefinitionChangeEvent event(L"id");
    const ChangeRecorder recorder(event);

    const ControlDefinitionChangeByUser byUser(L"id2");
    event.RaisePropertyChanged();

    QVERIFY(!recorder.GetChanges().at(0).isByUser);
}

void ControlDefinitionChangeEventTest::byUserIsReadWhenTheChangeIsRaised()
{
    ControlDefinitionChangeEvent event(L"id");
    ChangeRecorder first(event);
    const ChangeRecorder second(event);
    std::unique_ptr<ControlDefinitionChangeByUser> pScope;
    first.Then([&] { pScope = std::make_unique<ControlDefinitionChangeByUser>(L"id"); });

    event.RaisePropertyChanged();

    QVERIFY(ControlDefinitionChangeByUser::IsChangeByUser(L"id"));
    QVERIFY(!second.GetChanges().at(0).isByUser);
}

void ControlDefinitionChangeEventTest::theEventMayBeDestroyedByAHandler()
{
    auto pEvent = std::make_unique<ControlDefinitionChangeEvent>(L"id");
    ChangeRecorder first(*pEvent);
    const ChangeRecorder second(*pEvent);
    first.Then([&] { pEvent.reset(); });

    pEvent->RaisePropertyChanged();

    QCOMPARE(first.GetCount(), 1);
    QCOMPARE(second.GetCount(), 0);
}

void ControlDefinitionChangeEventTest::raisingAllocatesNothing()
{
    ControlDefinitionChangeEvent event(L"an id that is too long for the string's own buffer");
    Reader reader;
    event.Add(&reader);
    const std::wstring caption(100, L'x');

    const std::size_t before = AllocationCounter::s_count;
    event.RaisePropertyChanged();
    event.RaiseItemsChanged(ControlDefinitionChangeEventType::Add, 1, caption, nullptr);
    const std::size_t after = AllocationCounter::s_count;

    QVERIFY(reader.IsHeard());
    QCOMPARE(after - before, std::size_t{0});
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::ControlDefinitionChangeEventTest);
#include "ControlDefinitionChangeEventTest.moc"
