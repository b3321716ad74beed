#include "Control/ComboBoxDefinition.h"

#include "Control/ControlDefinitionChangeByUser.h"
#include "Host/Control/ChangeRecorder.h"
#include "Support/TestValues.h"
#include "Support/WarningRecorder.h"

#include <memory>

namespace vesk
{
namespace
{

/// A combo box with the items "a", "b" and "c", and a record of its changes.
struct ComboBoxFixture
{
    explicit ComboBoxFixture(int currentIndex = 0)
    {
        pBox->AddItem(L"a");
        pBox->AddItem(L"b");
        pBox->AddItem(L"c");
        pBox->SetCurrentIndex(currentIndex);
        pRecorder = std::make_unique<ChangeRecorder>(*pBox->GetControlDefinitionChangeEvent());
    }

    /// The items, the current one in brackets.
    std::wstring GetState() const
    {
        std::wstring state;
        int index = 0;
        for (const std::wstring& item : pBox->GetItems())
            state += index++ == pBox->GetCurrentIndex() ? L"[" + item + L"]" : item;
        return state;
    }

    std::unique_ptr<ComboBoxDefinition> pBox = std::make_unique<ComboBoxDefinition>(L"Width");
    std::unique_ptr<ChangeRecorder> pRecorder;
    test::WarningRecorder warnings;
};

}

}

using Act = void (*)(vesk::ComboBoxDefinition&);
Q_DECLARE_METATYPE(Act)

namespace vesk
{

using Box = ComboBoxDefinition;
using Type = ControlDefinitionChangeEventType;

class ComboBoxDefinitionTest : public QObject
{
    Q_OBJECT

private slots:
    void isEmptyAtFirst();
    void firstItemOfAnEmptyListBecomesCurrent_data();
    void firstItemOfAnEmptyListBecomesCurrent();
    void aChangeOfTheItemsRaisesOneEventAndTheCurrentItemStays_data();
    void aChangeOfTheItemsRaisesOneEventAndTheCurrentItemStays();
    void itemsWithoutACurrentOneGetNone_data();
    void itemsWithoutACurrentOneGetNone();
    void aChangeOfTheItemsTellsItsText();
    void theLastItemOfAllLeavesNoneCurrent_data();
    void theLastItemOfAllLeavesNoneCurrent();
    void clearingAnEmptyListRaisesNone();
    void badIndexIsReportedAndChangesNothing_data();
    void badIndexIsReportedAndChangesNothing();
    void choosingAnItemRaisesOneEventAndAnEqualIndexNone_data();
    void choosingAnItemRaisesOneEventAndAnEqualIndexNone();
    void aChoiceOfTheUserIsMarked();
    void theStateIsRightWhenTheEventIsRaised_data();
    void theStateIsRightWhenTheEventIsRaised();
    void aHandlerMayChangeItAgain();
    void aHandlerMayChooseAnItemThatItAdds();
    void aChoiceOfTheUserFromAListThatIsBeingToldIsRefused();
    void aHandlerMayDestroyIt_data();
    void aHandlerMayDestroyIt();
};

void ComboBoxDefinitionTest::isEmptyAtFirst()
{
    const Box box(L"Width");

    QCOMPARE(box.GetId(), std::wstring(L"Width"));
    QVERIFY(box.GetItems().empty());
    QCOMPARE(box.GetCurrentIndex(), -1);
}

void ComboBoxDefinitionTest::firstItemOfAnEmptyListBecomesCurrent_data()
{
    QTest::addColumn<Act>("act");
    QTest::newRow("added") << Act{[](Box& b) { b.AddItem(L"a"); }};
    QTest::newRow("inserted") << Act{[](Box& b) { b.InsertItem(0, L"a"); }};
}

void ComboBoxDefinitionTest::firstItemOfAnEmptyListBecomesCurrent()
{
    QFETCH(Act, act);
    Box box(L"Width");
    const ChangeRecorder recorder(*box.GetControlDefinitionChangeEvent());

    act(box);

    QCOMPARE(box.GetCurrentIndex(), 0);
    QCOMPARE(recorder.GetCount(), 1);
    QCOMPARE(recorder.GetChanges().front().type, int{Type::Add});
}

void ComboBoxDefinitionTest::aChangeOfTheItemsRaisesOneEventAndTheCurrentItemStays_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<Act>("act");
    QTest::addColumn<QString>("state");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("index");

    const Act add{[](Box& b) { b.AddItem(L"x"); }};
    const Act insertFirst{[](Box& b) { b.InsertItem(0, L"x"); }};
    const Act insertSecond{[](Box& b) { b.InsertItem(1, L"x"); }};
    const Act insertLast{[](Box& b) { b.InsertItem(3, L"x"); }};
    const Act deleteFirst{[](Box& b) { b.DeleteItem(0); }};
    const Act deleteSecond{[](Box& b) { b.DeleteItem(1); }};
    const Act deleteLast{[](Box& b) { b.DeleteItem(2); }};
    const Act clear{[](Box& b) { b.ClearItems(); }};

    QTest::newRow("added") << 2 << add << "ab[c]x" << int{Type::Add} << 3;
    QTest::newRow("inserted at the end") << 2 << insertLast << "ab[c]x" << int{Type::Add} << 3;
    QTest::newRow("inserted before") << 1 << insertFirst << "xa[b]c" << int{Type::Insert} << 0;
    QTest::newRow("inserted at") << 1 << insertSecond << "ax[b]c" << int{Type::Insert} << 1;
    QTest::newRow("inserted behind") << 0 << insertSecond << "[a]xbc" << int{Type::Insert} << 1;
    QTest::newRow("deleted before") << 1 << deleteFirst << "[b]c" << int{Type::Delete} << 0;
    QTest::newRow("deleted behind") << 1 << deleteLast << "a[b]" << int{Type::Delete} << 2;
    QTest::newRow("deleted the current") << 1 << deleteSecond << "a[c]" << int{Type::Delete} << 1;
    QTest::newRow("deleted the current first")
        << 0 << deleteFirst << "[b]c" << int{Type::Delete} << 0;
    QTest::newRow("deleted the current last")
        << 2 << deleteLast << "a[b]" << int{Type::Delete} << 2;
    QTest::newRow("cleared") << 1 << clear << "" << int{Type::Clear} << -1;
}

void ComboBoxDefinitionTest::aChangeOfTheItemsRaisesOneEventAndTheCurrentItemStays()
{
    QFETCH(int, current);
    QFETCH(Act, act);
    QFETCH(QString, state);
    QFETCH(int, type);
    QFETCH(int, index);
    const ComboBoxFixture f(current);

    act(*f.pBox);

    QCOMPARE(QString::fromStdWString(f.GetState()), state);
    QCOMPARE(f.pRecorder->GetCount(), 1);
    QCOMPARE(f.pRecorder->GetChanges().front().type, type);
    QCOMPARE(f.pRecorder->GetChanges().front().index, index);
    QVERIFY(f.pRecorder->GetChanges().front().pItem == nullptr);
}

void ComboBoxDefinitionTest::itemsWithoutACurrentOneGetNone_data()
{
    QTest::addColumn<Act>("act");
    QTest::newRow("add") << Act{[](Box& b) { b.AddItem(L"x"); }};
    QTest::newRow("insert") << Act{[](Box& b) { b.InsertItem(0, L"x"); }};
    QTest::newRow("delete") << Act{[](Box& b) { b.DeleteItem(0); }};
    QTest::newRow("clear") << Act{[](Box& b) { b.ClearItems(); }};
}

void ComboBoxDefinitionTest::itemsWithoutACurrentOneGetNone()
{
    QFETCH(Act, act);
    const ComboBoxFixture f(-1);

    act(*f.pBox);

    QCOMPARE(f.pBox->GetCurrentIndex(), -1);
}

void ComboBoxDefinitionTest::aChangeOfTheItemsTellsItsText()
{
    const ComboBoxFixture f;

    f.pBox->InsertItem(1, L"x");
    f.pBox->DeleteItem(2);
    f.pBox->ClearItems();

    QCOMPARE(f.pRecorder->GetChanges().at(0).caption, std::wstring(L"x"));
    QCOMPARE(f.pRecorder->GetChanges().at(1).caption, std::wstring(L"b"));
    QCOMPARE(f.pRecorder->GetChanges().at(2).caption, std::wstring());
}

void ComboBoxDefinitionTest::theLastItemOfAllLeavesNoneCurrent_data()
{
    QTest::addColumn<Act>("act");
    QTest::newRow("delete") << Act{[](Box& b) { b.DeleteItem(0); }};
    QTest::newRow("clear") << Act{[](Box& b) { b.ClearItems(); }};
}

void ComboBoxDefinitionTest::theLastItemOfAllLeavesNoneCurrent()
{
    QFETCH(Act, act);
    Box box(L"Width");
    box.AddItem(L"a");
    ChangeRecorder recorder(*box.GetControlDefinitionChangeEvent());
    int inside = 0;
    recorder.Then([&] { inside = box.GetCurrentIndex(); });

    act(box);

    QVERIFY(box.GetItems().empty());
    QCOMPARE(box.GetCurrentIndex(), -1);
    QCOMPARE(inside, -1);
}

void ComboBoxDefinitionTest::clearingAnEmptyListRaisesNone()
{
    Box box(L"Width");
    const ChangeRecorder recorder(*box.GetControlDefinitionChangeEvent());

    box.ClearItems();

    QCOMPARE(recorder.GetCount(), 0);
}

void ComboBoxDefinitionTest::badIndexIsReportedAndChangesNothing_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<QByteArray>("function");
    const QByteArray choose = "vesk::ComboBoxDefinition::SetCurrentIndex";
    const QByteArray insert = "vesk::ComboBoxDefinition::InsertItem";
    const QByteArray remove = "vesk::ComboBoxDefinition::DeleteItem";

    QTest::newRow("choose -2") << Act{[](Box& b) { b.SetCurrentIndex(-2); }} << choose;
    QTest::newRow("choose the count") << Act{[](Box& b) { b.SetCurrentIndex(3); }} << choose;
    QTest::newRow("choose beyond") << Act{[](Box& b) { b.SetCurrentIndex(4); }} << choose;
    QTest::newRow("insert at -1") << Act{[](Box& b) { b.InsertItem(-1, L"x"); }} << insert;
    QTest::newRow("insert beyond") << Act{[](Box& b) { b.InsertItem(4, L"x"); }} << insert;
    QTest::newRow("delete -1") << Act{[](Box& b) { b.DeleteItem(-1); }} << remove;
    QTest::newRow("delete the count") << Act{[](Box& b) { b.DeleteItem(3); }} << remove;
    QTest::newRow("delete beyond") << Act{[](Box& b) { b.DeleteItem(4); }} << remove;
}

void ComboBoxDefinitionTest::badIndexIsReportedAndChangesNothing()
{
    QFETCH(Act, act);
    QFETCH(QByteArray, function);
    ComboBoxFixture f(1);

    act(*f.pBox);

    EXPECT_WARNING(f.warnings, L"index不正确", function.toStdString());
    QCOMPARE(f.GetState(), std::wstring(L"a[b]c"));
    QCOMPARE(f.pRecorder->GetCount(), 0);
}

void ComboBoxDefinitionTest::choosingAnItemRaisesOneEventAndAnEqualIndexNone_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("none") << -1;
    QTest::newRow("first") << 0;
    QTest::newRow("last") << 2;
}

void ComboBoxDefinitionTest::choosingAnItemRaisesOneEventAndAnEqualIndexNone()
{
    QFETCH(int, index);
    const ComboBoxFixture f(1);

    f.pBox->SetCurrentIndex(index);
    QCOMPARE(f.pBox->GetCurrentIndex(), index);
    QCOMPARE(f.pRecorder->GetCount(), 1);
    QCOMPARE(f.pRecorder->GetChanges().front().type, int{Type::PropertyChanged});
    f.pBox->SetCurrentIndex(index);

    QCOMPARE(f.pRecorder->GetCount(), 1);
}

void ComboBoxDefinitionTest::aChoiceOfTheUserIsMarked()
{
    const ComboBoxFixture f(1);

    {
        const ControlDefinitionChangeByUser byUser(L"Width");
        f.pBox->SetCurrentIndex(2);
    }
    f.pBox->SetCurrentIndex(0);

    QVERIFY(f.pRecorder->GetChanges().at(0).isByUser);
    QVERIFY(!f.pRecorder->GetChanges().at(1).isByUser);
}

void ComboBoxDefinitionTest::theStateIsRightWhenTheEventIsRaised_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<QString>("state");
    QTest::newRow("insert") << Act{[](Box& b) { b.InsertItem(0, L"x"); }} << "xab[c]";
    QTest::newRow("delete") << Act{[](Box& b) { b.DeleteItem(2); }} << "a[b]";
    QTest::newRow("clear") << Act{[](Box& b) { b.ClearItems(); }} << "";
    QTest::newRow("choose") << Act{[](Box& b) { b.SetCurrentIndex(0); }} << "[a]bc";
}

void ComboBoxDefinitionTest::theStateIsRightWhenTheEventIsRaised()
{
    QFETCH(Act, act);
    QFETCH(QString, state);
    const ComboBoxFixture f(2);
    std::wstring inside = L"?";
    int indexInside = -2;
    f.pRecorder->Then([&] {
        inside = f.GetState();
        indexInside = f.pBox->GetCurrentIndex();
    });

    act(*f.pBox);

    QCOMPARE(QString::fromStdWString(inside), state);
    QCOMPARE(indexInside, f.pBox->GetCurrentIndex());
}

void ComboBoxDefinitionTest::aHandlerMayChangeItAgain()
{
    const ComboBoxFixture f(0);
    f.pRecorder->Then([&] { f.pBox->DeleteItem(0); });

    f.pBox->InsertItem(0, L"x");

    QCOMPARE(f.GetState(), std::wstring(L"[a]bc"));
    // The last one reports the index.
    QCOMPARE(f.pRecorder->GetCount(), 3);
    QCOMPARE(f.pRecorder->GetChanges().at(1).type, int{Type::Delete});
    QCOMPARE(f.pRecorder->GetChanges().at(2).type, int{Type::PropertyChanged});
}

void ComboBoxDefinitionTest::aHandlerMayChooseAnItemThatItAdds()
{
    const ComboBoxFixture f(0);
    f.pRecorder->Then([&] {
        f.pBox->AddItem(L"y");
        f.pBox->SetCurrentIndex(4);
    });

    f.pBox->AddItem(L"x");

    QCOMPARE(f.GetState(), std::wstring(L"abcx[y]"));
}

void ComboBoxDefinitionTest::aChoiceOfTheUserFromAListThatIsBeingToldIsRefused()
{
    const ComboBoxFixture f(0);
    f.pRecorder->Then([&] {
        const ControlDefinitionChangeByUser byUser(L"Width");
        f.pBox->SetCurrentIndex(2);
    });

    f.pBox->InsertItem(1, L"x");

    QCOMPARE(f.GetState(), std::wstring(L"[a]xbc"));
    QCOMPARE(f.pRecorder->GetCount(), 2);
    QVERIFY(!f.pRecorder->GetChanges().back().isByUser);
}

void ComboBoxDefinitionTest::aHandlerMayDestroyIt_data()
{
    QTest::addColumn<Act>("act");
    QTest::newRow("add") << Act{[](Box& b) { b.AddItem(L"x"); }};
    QTest::newRow("insert") << Act{[](Box& b) { b.InsertItem(0, L"x"); }};
    QTest::newRow("delete") << Act{[](Box& b) { b.DeleteItem(0); }};
    QTest::newRow("clear") << Act{[](Box& b) { b.ClearItems(); }};
    QTest::newRow("choose") << Act{[](Box& b) { b.SetCurrentIndex(1); }};
}

void ComboBoxDefinitionTest::aHandlerMayDestroyIt()
{
    QFETCH(Act, act);
    ComboBoxFixture f(0);
    const ChangeRecorder last(*f.pBox->GetControlDefinitionChangeEvent());
    f.pRecorder->Then([&] { f.pBox.reset(); });

    act(*f.pBox);

    QCOMPARE(f.pRecorder->GetCount(), 1);
    QCOMPARE(last.GetCount(), 0);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::ComboBoxDefinitionTest);
#include "ComboBoxDefinitionTest.moc"
