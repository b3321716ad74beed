#include "Control/ControlDefinitionChangeEvent.h"

#include "Control/ControlDefinitionChangeByUser.h"
#include "Host/Control/ChangeEventFixture.h"

#include "Support/TestValues.h"

#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>

namespace vesk
{

namespace
{

using Type = ControlDefinitionChangeEventType;
using Fixture = ChangeEventFixture;

}

/// Changes that are made while another one is being delivered.
class ControlDefinitionChangeEventNestingTest : public QObject
{
    Q_OBJECT

private slots:
    void changesOfItemsReachEveryHandlerInTheirOrder();
    void changesOfItemsMadeInLaterOnesComeAfterwards();
    void propertiesAreToldOnceTheItemsAre();
    void propertiesOfTheSameMarkAreToldOnce();
    void nothingFollowsAChangeInWhichNothingHappens();
    void whatWaitsIsToldBeforeTheOutermostCallReturns();
    void whatWaitsOwnsItsCaption();
    void whatWaitsKeepsItsItem();
    void whatWaitsKeepsTheMarkOfTheUser();
    void whoSubscribesHearsOnlyWhatHappensAfterwards();
    void whoUnsubscribesHearsNothingMore();
    void changesMadeWhilePropertiesAreToldDoNotWait();
    void changesMadeInTheLastChangeOfPropertiesAreToldInOrder();
    void eventsOfTwoDefinitionsDoNotWaitForEachOther();
    void destroyingTheEventDropsWhatWaits_data();
    void destroyingTheEventDropsWhatWaits();
    void aHandlerThatThrowsKeepsTheOthersFromNothing();
    void anExceptionOfALaterChangeLeavesTheOutermostCall();
    void ofTwoExceptionsTheFirstLeaves();
    void theEventIsUsableAfterAnException();
};

void ControlDefinitionChangeEventNestingTest::changesOfItemsReachEveryHandlerInTheirOrder()
{
    Fixture f;
    f.first.Then([&] { f.Add(L"b"); });

    f.Add(L"a");

    QCOMPARE(Fixture::GetHeard(f.first), std::wstring(L"ab*"));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"ab*"));
}

void ControlDefinitionChangeEventNestingTest::changesOfItemsMadeInLaterOnesComeAfterwards()
{
    Fixture f;
    f.first.Then([&] {
        f.first.Then([&] { f.Add(L"d"); });
        f.Add(L"b");
        f.Add(L"c");
    });

    f.Add(L"a");

    QCOMPARE(Fixture::GetHeard(f.first), std::wstring(L"abcd*"));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"abcd*"));
}

void ControlDefinitionChangeEventNestingTest::propertiesAreToldOnceTheItemsAre()
{
    Fixture f;
    f.first.Then([&] {
        f.pEvent->RaisePropertyChanged();
        f.Add(L"b");
    });

    f.Add(L"a");

    QCOMPARE(Fixture::GetHeard(f.first), std::wstring(L"ab*"));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"ab*"));
}

void ControlDefinitionChangeEventNestingTest::propertiesOfTheSameMarkAreToldOnce()
{
    Fixture f;
    f.first.Then([&] {
        f.pEvent->RaisePropertyChanged();
        f.pEvent->RaisePropertyChanged();
        const ControlDefinitionChangeByUser byUser(L"id");
        f.pEvent->RaisePropertyChanged();
    });

    f.Add(L"a");

    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"a**!"));
}

void ControlDefinitionChangeEventNestingTest::nothingFollowsAChangeInWhichNothingHappens()
{
    Fixture f;

    f.Add(L"a");
    f.Add(L"b");

    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"ab"));
}

void ControlDefinitionChangeEventNestingTest::whatWaitsIsToldBeforeTheOutermostCallReturns()
{
    Fixture f;
    std::wstring heardInside;
    f.first.Then([&] {
        f.Add(L"b");
        heardInside = Fixture::GetHeard(f.first) + L"|" + Fixture::GetHeard(f.second);
    });

    f.Add(L"a");

    QCOMPARE(heardInside, std::wstring(L"a|"));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"ab*"));
}

void ControlDefinitionChangeEventNestingTest::whatWaitsOwnsItsCaption()
{
    Fixture f;
    f.first.Then([&] {
        std::wstring caption(100, L'b');
        f.Add(caption);
        caption.assign(100, L'x');
    });

    f.Add(L"a");

    QCOMPARE(f.second.GetChanges().at(1).caption, std::wstring(100, L'b'));
}

void ControlDefinitionChangeEventNestingTest::whatWaitsKeepsItsItem()
{
    Fixture f;
    std::weak_ptr<int> pWatched;
    bool isKept = false;
    f.first.Then([&] {
        auto pItem = std::make_shared<int>();
        pWatched = pItem;
        f.pEvent->RaiseItemsChanged(Type::Delete, 0, {}, nullptr, std::move(pItem));
        f.second.Then([&] { f.second.Then([&] { isKept = !pWatched.expired(); }); });
    });

    f.Add(L"a");

    QVERIFY(isKept);
    QVERIFY(pWatched.expired());
}

void ControlDefinitionChangeEventNestingTest::whatWaitsKeepsTheMarkOfTheUser()
{
    Fixture f;
    f.first.Then([&] {
        const ControlDefinitionChangeByUser byUser(L"id");
        f.Add(L"b");
    });

    f.Add(L"a");

    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"ab!*"));
}

void ControlDefinitionChangeEventNestingTest::whoSubscribesHearsOnlyWhatHappensAfterwards()
{
    Fixture f;
    std::optional<ChangeRecorder> late;
    f.first.Then([&] {
        f.Add(L"b");
        late.emplace(*f.pEvent);
        f.Add(L"c");
    });

    f.Add(L"a");

    QCOMPARE(Fixture::GetHeard(*late), std::wstring(L"c*"));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"abc*"));
}

void ControlDefinitionChangeEventNestingTest::whoUnsubscribesHearsNothingMore()
{
    Fixture f;
    f.first.Then([&] {
        f.Add(L"b");
        f.pEvent->Delete(&f.first);
        f.second.Then([&] { f.pEvent->Delete(&f.second); });
    });

    f.Add(L"a");

    QCOMPARE(Fixture::GetHeard(f.first), std::wstring(L"a"));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"a"));
    QVERIFY(f.pEvent->IsEmpty());
}

void ControlDefinitionChangeEventNestingTest::changesMadeWhilePropertiesAreToldDoNotWait()
{
    Fixture f;
    std::wstring heardInside;
    f.first.Then([&] {
        f.Add(L"a");
        f.pEvent->RaisePropertyChanged();
        heardInside = Fixture::GetHeard(f.second);
    });

    f.pEvent->RaisePropertyChanged();

    // Items are followed by properties: the handler being notified may have been interrupted.
    QCOMPARE(heardInside, std::wstring(L"a**"));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"a***"));
}

void ControlDefinitionChangeEventNestingTest::changesMadeInTheLastChangeOfPropertiesAreToldInOrder()
{
    Fixture f;
    f.first.Then([&] {
        f.pEvent->RaisePropertyChanged();
        f.first.Then([&] {
            f.first.Then([&] { f.Add(L"c"); });
            f.Add(L"b");
        });
    });

    f.Add(L"a");

    QCOMPARE(Fixture::GetHeard(f.first), std::wstring(L"a*bc*"));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"abc**"));
}

void ControlDefinitionChangeEventNestingTest::eventsOfTwoDefinitionsDoNotWaitForEachOther()
{
    Fixture f;
    Fixture other;
    std::wstring heardInside;
    f.first.Then([&] {
        other.first.Then([&] { f.Add(L"b"); });
        other.Add(L"x");
        heardInside = Fixture::GetHeard(other.second);
    });

    f.Add(L"a");

    QCOMPARE(heardInside, std::wstring(L"x"));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"ab*"));
}

void ControlDefinitionChangeEventNestingTest::destroyingTheEventDropsWhatWaits_data()
{
    QTest::addColumn<QString>("whenHeard");
    QTest::addColumn<QString>("heard");
    QTest::newRow("in the change that is told") << "a"
                                                << "";
    QTest::newRow("in one that waited") << "ab"
                                        << "a";
    QTest::newRow("in the last change of properties") << "abc*"
                                                      << "abc";
}

void ControlDefinitionChangeEventNestingTest::destroyingTheEventDropsWhatWaits()
{
    QFETCH(QString, whenHeard);
    QFETCH(QString, heard);
    Fixture f;
    std::function<void()> destroyInTime = [&] {
        if (Fixture::GetHeard(f.first) == whenHeard.toStdWString())
            f.pEvent.reset();
        else
            f.first.Then(destroyInTime);
    };
    f.first.Then([&] {
        f.Add(L"b");
        f.Add(L"c");
        destroyInTime();
    });

    f.Add(L"a");

    QCOMPARE(Fixture::GetHeard(f.first), whenHeard.toStdWString());
    QCOMPARE(Fixture::GetHeard(f.second), heard.toStdWString());
    QVERIFY(f.pEvent == nullptr);
}

void ControlDefinitionChangeEventNestingTest::aHandlerThatThrowsKeepsTheOthersFromNothing()
{
    Fixture f;
    f.first.Then([&] {
        f.Add(L"b");
        throw std::runtime_error("handler");
    });

    QVERIFY_EXCEPTION_THROWN(f.Add(L"a"), std::runtime_error);

    QCOMPARE(Fixture::GetHeard(f.first), std::wstring(L"ab*"));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"ab*"));
}

void ControlDefinitionChangeEventNestingTest::anExceptionOfALaterChangeLeavesTheOutermostCall()
{
    Fixture f;
    bool isLeftByTheInner = false;
    f.first.Then([&] {
        f.first.Then([] { throw std::runtime_error("later"); });
        try
        {
            f.Add(L"b");
        }
        catch (...)
        {
            isLeftByTheInner = true;
        }
        f.Add(L"c");
    });

    QVERIFY_EXCEPTION_THROWN(f.Add(L"a"), std::runtime_error);

    QVERIFY(!isLeftByTheInner);
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"abc*"));
}

void ControlDefinitionChangeEventNestingTest::ofTwoExceptionsTheFirstLeaves()
{
    Fixture f;
    f.first.Then([&] {
        f.first.Then([] { throw std::logic_error("second"); });
        f.Add(L"b");
        throw std::runtime_error("first");
    });

    QVERIFY_EXCEPTION_THROWN(f.Add(L"a"), std::runtime_error);

    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"ab*"));
}

void ControlDefinitionChangeEventNestingTest::theEventIsUsableAfterAnException()
{
    Fixture f;
    f.first.Then([&] {
        f.Add(L"b");
        throw std::runtime_error("handler");
    });
    QVERIFY_EXCEPTION_THROWN(f.Add(L"a"), std::runtime_error);

    f.Add(L"c");
    f.pEvent->RaisePropertyChanged();

    QCOMPARE(Fixture::GetHeard(f.first), std::wstring(L"ab*c*"));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"ab*c*"));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::ControlDefinitionChangeEventNestingTest);
#include "ControlDefinitionChangeEventNestingTest.moc"
