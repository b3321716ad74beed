#include "Control/ButtonGroupFixture.h"

#include "Support/TestValues.h"

#include <QPointer>
#include <QPushButton>

namespace vesk::test
{

using EventType = ControlDefinitionChangeEventType;

/// How both kinds of groups follow added and removed items.
class ButtonGroupItemsTest : public QObject
{
    Q_OBJECT

private slots:
    void addedItemStandsBehindTheLastOne_data() { AddGroupKinds(); }
    void addedItemStandsBehindTheLastOne();
    void addedItemIsShownLikeTheOthers_data() { AddGroupKinds(); }
    void addedItemIsShownLikeTheOthers();
    void addedItemFollowsItsStatesFromTheStart_data() { AddGroupKinds(); }
    void addedItemFollowsItsStatesFromTheStart();
    void firstItemOfAnEmptyGroupStandsAtTheStart_data() { AddGroupKinds(); }
    void firstItemOfAnEmptyGroupStandsAtTheStart();
    void itemAddedAfterOneThatIsNotPlacedStandsAtTheStart_data() { AddGroupKinds(); }
    void itemAddedAfterOneThatIsNotPlacedStandsAtTheStart();
    void insertedItemComesBeforeTheOneAtItsIndex_data();
    void insertedItemComesBeforeTheOneAtItsIndex();
    void insertedItemIsShownLikeTheOthers_data() { AddGroupKinds(); }
    void insertedItemIsShownLikeTheOthers();
    void itemInsertedBeforeOneThatIsNotPlacedStandsAtTheEnd_data() { AddGroupKinds(); }
    void itemInsertedBeforeOneThatIsNotPlacedStandsAtTheEnd();
    void deletedItemLeavesListAndGroupNowAndDiesLater_data() { AddGroupKinds(); }
    void deletedItemLeavesListAndGroupNowAndDiesLater();
    void allItemsLeaveListAndGroupNowAndDieLater_data() { AddGroupKinds(); }
    void allItemsLeaveListAndGroupNowAndDieLater();
    void idsGoOnBelowTheSmallestPresent_data() { AddGroupKinds(); }
    void idsGoOnBelowTheSmallestPresent();
    void idsAreThoseOfAutomaticNumbering_data() { AddGroupKinds(); }
    void idsAreThoseOfAutomaticNumbering();
    void idsOfOtherButtonsAreNotGivenAgain_data() { AddGroupKinds(); }
    void idsOfOtherButtonsAreNotGivenAgain();
    void idOfAButtonThatCameBetweenIsNotGivenAgain_data() { AddGroupKinds(); }
    void idOfAButtonThatCameBetweenIsNotGivenAgain();
    void insertionPutsIdsBackInOrder_data() { AddGroupKinds(); }
    void insertionPutsIdsBackInOrder();
    void clearingLetsIdsBeginAnew_data() { AddGroupKinds(); }
    void clearingLetsIdsBeginAnew();
};

void ButtonGroupItemsTest::addedItemStandsBehindTheLastOne()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a", L"b"});
    f->PlaceAndShow();

    f->AddItem(L"c");

    QCOMPARE(f->GetNames(), QStringList({"a", "b", "c"}));
    QCOMPARE(f->GetGroupedNames(), QStringList({"a", "b", "c"}));
    QCOMPARE(f->GetPlacedNames(), QStringList({"head", "a", "b", "c", "tail"}));
}

void ButtonGroupItemsTest::addedItemIsShownLikeTheOthers()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a"});
    f->PlaceAndShow();

    f->AddItem(L"c");

    const QAbstractButton* pButton = f->GetControls().last();
    QCOMPARE(pButton->text(), QString("Caption of c"));
    QCOMPARE(pButton->toolTip(), QString("Tip of c"));
    QCOMPARE(pButton->property("IsDefinition"), QVariant(true));
    QCOMPARE(pButton->parentWidget(), &f->parent);
    QVERIFY(pButton->isVisible());
    QVERIFY(pButton->isEnabled());
}

void ButtonGroupItemsTest::addedItemFollowsItsStatesFromTheStart()
{
    QFETCH(MakeGroup, make);
    const auto f = make({});
    f->PlaceAndShow();
    const IControlDefinition* pItem = f->MakeItem(L"a");
    f->SetItem(0, false, false);

    f->Tell(EventType::Add, 0, pItem);

    QVERIFY(f->GetControls().first()->isHidden());
    QVERIFY(!f->GetControls().first()->isEnabled());
}

void ButtonGroupItemsTest::firstItemOfAnEmptyGroupStandsAtTheStart()
{
    QFETCH(MakeGroup, make);
    const auto f = make({});
    f->pLayout->insertStretch(1);
    f->parent.show();

    f->AddItem(L"a");

    QCOMPARE(f->pLayout->indexOf(f->GetControls().first()), 0);
    QCOMPARE(f->GetIds(), QList<int>({-2}));
}

void ButtonGroupItemsTest::itemAddedAfterOneThatIsNotPlacedStandsAtTheStart()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a"});

    f->AddItem(L"b");

    QCOMPARE(f->GetPlacedNames(), QStringList({"b", "head", "tail"}));
}

void ButtonGroupItemsTest::insertedItemComesBeforeTheOneAtItsIndex_data()
{
    QTest::addColumn<MakeGroup>("make");
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("names");
    for (const MakeGroup make : {&MakeGroupOf<CheckBoxKind>, &MakeGroupOf<RadioButtonKind>})
    {
        const char* kind = make == &MakeGroupOf<CheckBoxKind> ? "check box" : "radio button";
        QTest::addRow("%s, first", kind) << make << 0 << QStringList({"x", "a", "b", "c"});
        QTest::addRow("%s, middle", kind) << make << 1 << QStringList({"a", "x", "b", "c"});
        QTest::addRow("%s, before the last", kind)
            << make << 2 << QStringList({"a", "b", "x", "c"});
    }
}

void ButtonGroupItemsTest::insertedItemComesBeforeTheOneAtItsIndex()
{
    QFETCH(MakeGroup, make);
    QFETCH(int, index);
    QFETCH(QStringList, names);
    const auto f = make({L"a", L"b", L"c"});
    f->PlaceAndShow();

    f->InsertItem(index, L"x");

    QCOMPARE(f->GetNames(), names);
    QCOMPARE(f->GetGroupedNames(), names);
    QCOMPARE(f->GetPlacedNames(), QStringList("head") + names + QStringList("tail"));
    QCOMPARE(f->GetIds(), QList<int>({-2, -3, -4, -5}));
}

void ButtonGroupItemsTest::insertedItemIsShownLikeTheOthers()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a"});
    f->PlaceAndShow();

    f->InsertItem(0, L"x");

    const QAbstractButton* pButton = f->GetControls().first();
    QCOMPARE(pButton->text(), QString("Caption of x"));
    QCOMPARE(pButton->toolTip(), QString("Tip of x"));
    QCOMPARE(pButton->property("IsDefinition"), QVariant(true));
    QVERIFY(pButton->isVisible());
}

void ButtonGroupItemsTest::itemInsertedBeforeOneThatIsNotPlacedStandsAtTheEnd()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a"});

    f->InsertItem(0, L"x");

    QCOMPARE(f->GetPlacedNames(), QStringList({"head", "tail", "x"}));
    QCOMPARE(f->GetNames(), QStringList({"x", "a"}));
}

void ButtonGroupItemsTest::deletedItemLeavesListAndGroupNowAndDiesLater()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a", L"b", L"c"});
    f->PlaceAndShow();
    const QPointer<QAbstractButton> pDeleted(f->GetControls()[1]);

    f->DeleteItem(1);

    QCOMPARE(f->GetNames(), QStringList({"a", "c"}));
    QCOMPARE(f->GetGroupedNames(), QStringList({"a", "c"}));
    QVERIFY(pDeleted != nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(pDeleted == nullptr);
    QCOMPARE(f->GetPlacedNames(), QStringList({"head", "a", "c", "tail"}));
}

void ButtonGroupItemsTest::allItemsLeaveListAndGroupNowAndDieLater()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a", L"b"});
    f->PlaceAndShow();
    const QPointer<QAbstractButton> pFirst(f->GetControls()[0]);
    const QPointer<QAbstractButton> pSecond(f->GetControls()[1]);

    f->ClearItems();

    QVERIFY(f->GetControls().isEmpty());
    QVERIFY(f->GetGroup().buttons().isEmpty());
    QVERIFY(pFirst != nullptr && pSecond != nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(pFirst == nullptr && pSecond == nullptr);
    QCOMPARE(f->GetPlacedNames(), QStringList({"head", "tail"}));
}

void ButtonGroupItemsTest::idsGoOnBelowTheSmallestPresent()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a", L"b", L"c"});
    QCOMPARE(f->GetIds(), QList<int>({-2, -3, -4}));

    f->DeleteItem(1);
    f->AddItem(L"d");
    QCOMPARE(f->GetIds(), QList<int>({-2, -4, -5}));
    f->DeleteItem(2);
    f->AddItem(L"e");
    QCOMPARE(f->GetIds(), QList<int>({-2, -4, -5}));
}

void ButtonGroupItemsTest::idsAreThoseOfAutomaticNumbering()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a", L"b", L"c"});
    QButtonGroup numbered;
    QCheckBox boxes[5];
    for (int i : {0, 1, 2})
        numbered.addButton(&boxes[i]);

    f->DeleteItem(2);
    f->AddItem(L"d");
    f->AddItem(L"e");
    numbered.removeButton(&boxes[2]);
    numbered.addButton(&boxes[3]);
    numbered.addButton(&boxes[4]);

    QCOMPARE(f->GetIds(), QList<int>({numbered.id(&boxes[0]), numbered.id(&boxes[1]),
                                      numbered.id(&boxes[3]), numbered.id(&boxes[4])}));
}

void ButtonGroupItemsTest::idsOfOtherButtonsAreNotGivenAgain()
{
    QFETCH(MakeGroup, make);
    const auto f = make({});
    QPushButton other;
    f->PlaceAndShow();
    f->GetGroup().addButton(&other);

    f->AddItem(L"a");
    f->AddItem(L"b");
    QCOMPARE(f->GetIds(), QList<int>({-3, -4}));
    f->InsertItem(0, L"c");
    QCOMPARE(f->GetIds(), QList<int>({-3, -4, -5}));
    QCOMPARE(f->GetGroup().id(&other), -2);
}

void ButtonGroupItemsTest::idOfAButtonThatCameBetweenIsNotGivenAgain()
{
    QFETCH(MakeGroup, make);
    const auto f = make({});
    QPushButton other;
    f->PlaceAndShow();
    f->AddItem(L"a");
    f->GetGroup().addButton(&other);

    f->AddItem(L"b");

    QCOMPARE(f->GetIds(), QList<int>({-2, -4}));
    QCOMPARE(f->GetGroup().id(&other), -3);
}

void ButtonGroupItemsTest::insertionPutsIdsBackInOrder()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a", L"b", L"c"});
    f->DeleteItem(0);
    QCOMPARE(f->GetIds(), QList<int>({-3, -4}));

    f->InsertItem(1, L"x");
    f->AddItem(L"d");

    QCOMPARE(f->GetIds(), QList<int>({-2, -3, -4, -5}));
}

void ButtonGroupItemsTest::clearingLetsIdsBeginAnew()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a", L"b"});

    f->ClearItems();
    f->AddItem(L"c");

    QCOMPARE(f->GetIds(), QList<int>({-2}));
}

}

VESK_TESTS(vesk::test::ButtonGroupItemsTest);
#include "ButtonGroupItemsTest.moc"
