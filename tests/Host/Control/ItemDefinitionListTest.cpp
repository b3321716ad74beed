#include "Control/ItemDefinitionList.h"

#include "Control/ControlDefinitionChangeByUser.h"
#include "Host/Control/ItemListFixture.h"
#include "Support/TestValues.h"

namespace vesk
{

using Fixture = ItemListFixture;
using Item = ListedItem;
using Type = ControlDefinitionChangeEventType;

namespace
{

/// Reads the item of each change; subscribed last.
class CaptionReader final : public IControlDefinitionChangeEventHandler
{
public:
    explicit CaptionReader(IControlDefinitionChangeEvent& event) { event.Add(this); }

    void On(IControlDefinitionChangeEventArgs* pArgs) override
    {
        const IControlDefinition* pItem = pArgs->GetItemDefinition();
        m_captions += (pItem != nullptr ? pItem->GetCaption() : L"none") + L";";
    }

    const std::wstring& GetCaptions() const { return m_captions; }

private:
    std::wstring m_captions;
};

}

}

using Act = void (*)(vesk::ItemListFixture&);
Q_DECLARE_METATYPE(Act)

namespace vesk
{

class ItemDefinitionListTest : public QObject
{
    Q_OBJECT

private slots:
    void insertingRaisesOneEventWithTheItem_data();
    void insertingRaisesOneEventWithTheItem();
    void deletingRaisesOneEventWithTheItem_data();
    void deletingRaisesOneEventWithTheItem();
    void clearingRaisesOneEventWithoutAnItem();
    void clearingAnEmptyListRaisesNone();
    void badIndexOfAnInsertionIsReportedAndChangesNothing_data();
    void badIndexOfAnInsertionIsReportedAndChangesNothing();
    void badIndexOfADeletionIsReportedAndChangesNothing_data();
    void badIndexOfADeletionIsReportedAndChangesNothing();
    void deletingFromAnEmptyListIsReported();
    void missingItemIsReportedAndChangesNothing();
    void itemIsFoundByIndexAndById();
    void firstOfTwoItemsWithOneIdIsFound();
    void anItemIsFoundInTheListAsItIsNow_data();
    void anItemIsFoundInTheListAsItIsNow();
    void theItemsAreTheListItself();
    void theListIsRightWhenTheEventIsRaised_data();
    void theListIsRightWhenTheEventIsRaised();
    void aChangeOfAnItemIsAPropertyChange();
    void aChangeOfAnItemIsMarkedWithTheScopeOfTheOwner();
    void aRemovedItemIsNotHeardAnyMore_data();
    void aRemovedItemIsNotHeardAnyMore();
    void removedItemsAreFreed();
    void aHandlerMayChangeTheListAgain();
    void aHandlerMayUnsubscribeItself();
    void aHandlerMayUnsubscribeAnother();
    void aHandlerMayRemoveTheItemConcerned_data();
    void aHandlerMayRemoveTheItemConcerned();
    void aHandlerMayRemoveTheItemThatChanges();
    void aHandlerMayDestroyEverything_data();
    void aHandlerMayDestroyEverything();
};

void ItemDefinitionListTest::insertingRaisesOneEventWithTheItem_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("ids");
    QTest::newRow("first") << 0 << int{Type::Insert} << "xabc";
    QTest::newRow("inside") << 2 << int{Type::Insert} << "abxc";
    QTest::newRow("at the end") << 3 << int{Type::Add} << "abcx";
}

void ItemDefinitionListTest::insertingRaisesOneEventWithTheItem()
{
    QFETCH(int, index);
    QFETCH(int, type);
    QFETCH(QString, ids);
    Fixture f;

    const Item* pItem = f.Insert(index, L"x");

    QCOMPARE(f.GetIds(), ids.toStdWString());
    QCOMPARE(f.pRecorder->GetCount(), 1);
    const Change& change = f.pRecorder->GetChanges().front();
    QCOMPARE(change.type, type);
    QCOMPARE(change.index, index);
    QCOMPARE(change.caption, std::wstring(L"caption of x"));
    QCOMPARE(change.pItem, pItem);
    QVERIFY(!change.isByUser);
}

void ItemDefinitionListTest::deletingRaisesOneEventWithTheItem_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("ids");
    QTest::newRow("first") << 0 << "a"
                           << "bc";
    QTest::newRow("inside") << 1 << "b"
                            << "ac";
    QTest::newRow("last") << 2 << "c"
                          << "ab";
}

void ItemDefinitionListTest::deletingRaisesOneEventWithTheItem()
{
    QFETCH(int, index);
    QFETCH(QString, id);
    QFETCH(QString, ids);
    Fixture f;
    const IControlDefinition* pItem = f.pList->Get(index);

    f.pList->Delete(index, DeleteFunction);

    QCOMPARE(f.GetIds(), ids.toStdWString());
    QCOMPARE(f.pRecorder->GetCount(), 1);
    const Change& change = f.pRecorder->GetChanges().front();
    QCOMPARE(change.type, int{Type::Delete});
    QCOMPARE(change.index, index);
    QCOMPARE(change.caption, L"caption of " + id.toStdWString());
    QCOMPARE(change.pItem, pItem);
}

void ItemDefinitionListTest::clearingRaisesOneEventWithoutAnItem()
{
    const Fixture f;

    f.pList->Clear();

    QCOMPARE(f.pList->GetCount(), 0);
    QCOMPARE(f.pRecorder->GetCount(), 1);
    const Change& change = f.pRecorder->GetChanges().front();
    QCOMPARE(change.type, int{Type::Clear});
    QCOMPARE(change.index, -1);
    QCOMPARE(change.caption, std::wstring());
    QVERIFY(change.pItem == nullptr);
}

void ItemDefinitionListTest::clearingAnEmptyListRaisesNone()
{
    const Fixture f;
    f.pList->Clear();

    f.pList->Clear();

    QCOMPARE(f.pRecorder->GetCount(), 1);
}

void ItemDefinitionListTest::badIndexOfAnInsertionIsReportedAndChangesNothing_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("negative") << -1;
    QTest::newRow("behind the end") << 4;
}

void ItemDefinitionListTest::badIndexOfAnInsertionIsReportedAndChangesNothing()
{
    QFETCH(int, index);
    Fixture f;

    f.Insert(index, L"x");

    EXPECT_WARNING(f.warnings, L"index不正确", InsertFunction);
    QCOMPARE(f.GetIds(), std::wstring(L"abc"));
    QCOMPARE(f.pRecorder->GetCount(), 0);
    QCOMPARE(f.aliveCount, 3);
}

void ItemDefinitionListTest::badIndexOfADeletionIsReportedAndChangesNothing_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("negative") << -1;
    QTest::newRow("at the end") << 3;
    QTest::newRow("behind the end") << 4;
}

void ItemDefinitionListTest::badIndexOfADeletionIsReportedAndChangesNothing()
{
    QFETCH(int, index);
    Fixture f;

    f.pList->Delete(index, DeleteFunction);

    EXPECT_WARNING(f.warnings, L"index不正确", DeleteFunction);
    QCOMPARE(f.GetIds(), std::wstring(L"abc"));
    QCOMPARE(f.pRecorder->GetCount(), 0);
}

void ItemDefinitionListTest::deletingFromAnEmptyListIsReported()
{
    ControlDefinitionChangeEvent event(L"owner");
    ItemDefinitionList<LabelDefinition> list(event);
    test::WarningRecorder warnings;

    list.Delete(0, DeleteFunction);

    EXPECT_WARNING(warnings, L"index不正确", DeleteFunction);
}

void ItemDefinitionListTest::missingItemIsReportedAndChangesNothing()
{
    Fixture f;

    f.pList->Insert(1, nullptr, InsertFunction);

    EXPECT_WARNING(f.warnings, L"opItem为空", InsertFunction);
    QCOMPARE(f.GetIds(), std::wstring(L"abc"));
    QCOMPARE(f.pRecorder->GetCount(), 0);
}

void ItemDefinitionListTest::itemIsFoundByIndexAndById()
{
    const Fixture f;

    QCOMPARE(f.pList->Get(0)->GetId(), std::wstring(L"a"));
    QCOMPARE(f.pList->Find(L"c"), f.pList->Get(2));
    QVERIFY(f.pList->Get(-1) == nullptr);
    QVERIFY(f.pList->Get(3) == nullptr);
    QVERIFY(f.pList->Find(L"x") == nullptr);
}

void ItemDefinitionListTest::firstOfTwoItemsWithOneIdIsFound()
{
    Fixture f;
    f.Insert(3, L"b");

    QCOMPARE(f.pList->Find(L"b"), f.pList->Get(1));
}

void ItemDefinitionListTest::anItemIsFoundInTheListAsItIsNow_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<int>("index");
    QTest::newRow("another is appended") << Act{[](Fixture& f) { f.Insert(3, L"b"); }} << 1;
    QTest::newRow("another is inserted before") << Act{[](Fixture& f) { f.Insert(0, L"b"); }} << 0;
    QTest::newRow("it is deleted")
        << Act{[](Fixture& f) { f.pList->Delete(1, DeleteFunction); }} << -1;
    QTest::newRow("one is deleted, and another appended") << Act{[](Fixture& f) {
        f.pList->Delete(1, DeleteFunction);
        f.Insert(2, L"b");
    }} << 2;
    QTest::newRow("all are removed") << Act{[](Fixture& f) { f.pList->Clear(); }} << -1;
}

void ItemDefinitionListTest::anItemIsFoundInTheListAsItIsNow()
{
    QFETCH(Act, act);
    QFETCH(int, index);
    Fixture f;
    QCOMPARE(f.pList->Find(L"b"), f.pList->Get(1));

    act(f);

    QCOMPARE(f.pList->Find(L"b"), f.pList->Get(index));
}

void ItemDefinitionListTest::theItemsAreTheListItself()
{
    Fixture f;
    const auto& items = f.pList->GetAll();

    f.Insert(3, L"d");

    QCOMPARE(items.size(), std::size_t{4});
    QCOMPARE(&f.pList->GetAll(), &items);
}

void ItemDefinitionListTest::theListIsRightWhenTheEventIsRaised_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<QString>("ids");
    QTest::newRow("insert") << Act{[](Fixture& f) { f.Insert(0, L"x"); }} << "xabc";
    QTest::newRow("delete") << Act{[](Fixture& f) { f.pList->Delete(0, DeleteFunction); }} << "bc";
    QTest::newRow("clear") << Act{[](Fixture& f) { f.pList->Clear(); }} << "";
}

void ItemDefinitionListTest::theListIsRightWhenTheEventIsRaised()
{
    QFETCH(Act, act);
    QFETCH(QString, ids);
    Fixture f;
    std::wstring inside = L"?";
    f.pRecorder->Then([&] { inside = f.GetIds(); });

    act(f);

    QCOMPARE(inside, ids.toStdWString());
}

void ItemDefinitionListTest::aChangeOfAnItemIsAPropertyChange()
{
    const Fixture f;

    f.pList->Get(1)->SetCaption(L"new");

    QCOMPARE(f.pRecorder->GetCount(), 1);
    const Change& change = f.pRecorder->GetChanges().front();
    QCOMPARE(change.type, int{Type::PropertyChanged});
    QCOMPARE(change.index, -1);
    QCOMPARE(change.caption, std::wstring());
    QVERIFY(change.pItem == nullptr);
    QVERIFY(!change.isByUser);
}

void ItemDefinitionListTest::aChangeOfAnItemIsMarkedWithTheScopeOfTheOwner()
{
    const Fixture f;

    {
        const ControlDefinitionChangeByUser byUser(L"owner");
        f.pList->Get(1)->SetCaption(L"by the user");
    }
    f.pList->Get(1)->SetCaption(L"by program");

    QVERIFY(f.pRecorder->GetChanges().at(0).isByUser);
    QVERIFY(!f.pRecorder->GetChanges().at(1).isByUser);
}

void ItemDefinitionListTest::aRemovedItemIsNotHeardAnyMore_data()
{
    QTest::addColumn<Act>("act");
    QTest::newRow("deleted") << Act{[](Fixture& f) { f.pList->Delete(0, DeleteFunction); }};
    QTest::newRow("cleared") << Act{[](Fixture& f) { f.pList->Clear(); }};
}

void ItemDefinitionListTest::aRemovedItemIsNotHeardAnyMore()
{
    QFETCH(Act, act);
    Fixture f;
    LabelDefinition* pItem = f.pList->Get(0);
    f.pRecorder->Then([pItem] { pItem->SetCaption(L"while it still lives"); });

    act(f);

    QCOMPARE(f.pRecorder->GetCount(), 1);
}

void ItemDefinitionListTest::removedItemsAreFreed()
{
    const Fixture f;

    f.pList->Delete(1, DeleteFunction);
    QCOMPARE(f.aliveCount, 2);
    f.pList->Clear();

    QCOMPARE(f.aliveCount, 0);
}

void ItemDefinitionListTest::aHandlerMayChangeTheListAgain()
{
    Fixture f;
    f.pRecorder->Then([&] { f.Insert(0, L"y"); });

    f.Insert(3, L"x");

    QCOMPARE(f.GetIds(), std::wstring(L"yabcx"));
    QCOMPARE(f.pRecorder->GetCount(), 3);
    QCOMPARE(f.pRecorder->GetChanges().at(1).type, int{Type::Insert});
    QCOMPARE(f.pRecorder->GetChanges().at(2).type, int{Type::PropertyChanged});
}

void ItemDefinitionListTest::aHandlerMayUnsubscribeItself()
{
    Fixture f;
    f.pRecorder->Then([&] { f.pEvent->Delete(f.pRecorder.get()); });

    f.Insert(3, L"x");
    f.pList->Clear();

    QCOMPARE(f.pRecorder->GetCount(), 1);
}

void ItemDefinitionListTest::aHandlerMayUnsubscribeAnother()
{
    Fixture f;
    ChangeRecorder other(*f.pEvent);
    f.pRecorder->Then([&] { f.pEvent->Delete(&other); });

    f.Insert(3, L"x");

    QCOMPARE(f.pRecorder->GetCount(), 1);
    QCOMPARE(other.GetCount(), 0);
}

void ItemDefinitionListTest::aHandlerMayRemoveTheItemConcerned_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<QString>("heard");
    QTest::newRow("delete") << Act{[](Fixture& f) { f.pList->Delete(3, DeleteFunction); }}
                            << "caption of x;caption of x;none;";
    QTest::newRow("clear") << Act{[](Fixture& f) { f.pList->Clear(); }}
                           << "caption of x;none;none;";
}

void ItemDefinitionListTest::aHandlerMayRemoveTheItemConcerned()
{
    QFETCH(Act, act);
    QFETCH(QString, heard);
    Fixture f;
    const CaptionReader last(*f.pEvent);
    f.pRecorder->Then([&] { act(f); });

    f.Insert(3, L"x");

    QCOMPARE(last.GetCaptions(), heard.toStdWString());
    QCOMPARE(f.aliveCount, f.pList->GetCount());
}

void ItemDefinitionListTest::aHandlerMayRemoveTheItemThatChanges()
{
    Fixture f;
    f.pRecorder->Then([&] { f.pList->Delete(1, DeleteFunction); });

    f.pList->Get(1)->SetCaption(L"new");

    QCOMPARE(f.GetIds(), std::wstring(L"ac"));
    // The change to the item, the removal, and the property change that follows it.
    QCOMPARE(f.pRecorder->GetCount(), 3);
    QCOMPARE(f.pRecorder->GetChanges().at(1).type, int{Type::Delete});
    QCOMPARE(f.aliveCount, 2);
}

void ItemDefinitionListTest::aHandlerMayDestroyEverything_data()
{
    QTest::addColumn<Act>("act");
    QTest::newRow("insert") << Act{[](Fixture& f) { f.Insert(1, L"x"); }};
    QTest::newRow("delete") << Act{[](Fixture& f) { f.pList->Delete(1, DeleteFunction); }};
    QTest::newRow("clear") << Act{[](Fixture& f) { f.pList->Clear(); }};
    QTest::newRow("change of an item")
        << Act{[](Fixture& f) { f.pList->Get(1)->SetCaption(L"new"); }};
}

void ItemDefinitionListTest::aHandlerMayDestroyEverything()
{
    QFETCH(Act, act);
    Fixture f;
    const ChangeRecorder last(*f.pEvent);
    f.pRecorder->Then([&] { f.Destroy(); });

    act(f);

    QCOMPARE(f.pRecorder->GetCount(), 1);
    QCOMPARE(last.GetCount(), 0);
    QCOMPARE(f.aliveCount, 0);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::ItemDefinitionListTest);
#include "ItemDefinitionListTest.moc"
