#include "VeskUiQtImpl/Control/QtComboBox.h"

#include "Control/ChangeArgs.h"
#include "Control/ChangeNotes.h"
#include "Control/ComboBoxDefinitions.h"
#include "Control/EchoModes.h"
#include "Control/OtherEventTypes.h"
#include "Support/HostFixture.h"
#include "Support/TestValues.h"
#include "WarningScript.h"

#include <QAbstractItemView>
#include <QSignalSpy>

#include <functional>

namespace vesk::test
{
namespace
{

using EventType = ControlDefinitionChangeEventType;
using Writes = std::vector<IndexWrite>;

/// A shown combo box for a definition of the host, with the items a, b, c and d; a is current.
struct UserFixture
{
    explicit UserFixture(bool isEchoing = true)
    {
        auto opDefinition = MakeDefinition<NotingComboBoxDefinition>(isEchoing, L"Box.Id");
        pDefinition = opDefinition.Get();
        for (const wchar_t* pText : {L"a", L"b", L"c", L"d"})
            pDefinition->AddItem(pText);
        pDefinition->ComboBoxDefinition::GetControlDefinitionChangeEvent()->Add(&notes);
        opBox = MakeOwner<QtComboBox>(std::move(opDefinition), &parent);
        parent.show();
    }

    HostFixture host;
    QWidget parent;
    ChangeNotes notes;
    NotingComboBoxDefinition* pDefinition;
    OwnerPtr<QtComboBox> opBox;
};

/// A combo box for a definition whose index does not change when its items do.
struct LooseFixture
{
    LooseFixture(const std::vector<std::wstring>& items, int currentIndex)
    {
        auto opDefinition = MakeOwner<LooseComboBoxDefinition>();
        pDefinition = opDefinition.Get();
        pDefinition->items = items;
        pDefinition->currentIndex = currentIndex;
        opBox = MakeOwner<QtComboBox>(std::move(opDefinition), nullptr);
    }

    HostFixture host;
    LooseComboBoxDefinition* pDefinition;
    OwnerPtr<QtComboBox> opBox;
};

/// Gives access to the flag that distinguishes the user's changes from the definition's.
template <class Tag, bool* pFlag>
struct ExposeFlag
{
    friend bool* FlagOf(Tag) { return pFlag; }
};
struct IndexFlag
{
    friend bool* FlagOf(IndexFlag);
};
template struct ExposeFlag<IndexFlag, &QtComboBox::s_isIndexChangeByUser>;

void ChooseWithTheMouse(QComboBox& box, int index)
{
    box.showPopup();
    const QRect item = box.view()->visualRect(box.model()->index(index, 0));
    const QPoint place = item.topLeft() + QPoint(5, 5);
    QTest::mouseMove(box.view()->viewport(), place);
    QTest::mouseClick(box.view()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

}

class QtComboBoxUserTest : public QObject
{
    Q_OBJECT

private slots:
    void itemChosenWithTheMouseIsWrittenOnceAsTheUsers_data() { AddEchoModes(); }
    void itemChosenWithTheMouseIsWrittenOnceAsTheUsers();
    void keyIsWrittenOnceAsTheUsers_data() { AddEchoModes(); }
    void keyIsWrittenOnceAsTheUsers();
    void theUsersScopeEndsWithTheWriting();
    void choosingTheCurrentItemWritesNothing();
    void indexThatTheDefinitionHasIsNotWritten();
    void indexMovedWithTheItemsIsWrittenBackUnmarked_data();
    void indexMovedWithTheItemsIsWrittenBackUnmarked();
    void removingTheCurrentItemWritesTheNewIndexBackUnmarked();
    void removingTheCurrentItemBeforeAnotherWritesNothing();
    void indexBeyondTheItemsIsWrittenBackAsNone();
    void theUserIsKnownAgainAfterEveryChange_data();
    void theUserIsKnownAgainAfterEveryChange();
    void theUserIsKnownAgainAfterAReport();
    void theUserIsKnownDuringAReport();
    void changeInsideAnotherDoesNotEndIt();
    void flagIsFalseExactlyWhileAChangeIsApplied();
    void changeOfOneBoxCoversAnother();
    void aThousandChangesOfTheHostAreNoneOfTheUser();
    void definitionAndBoxAgreeAfterChangesOfBothSides_data() { AddEchoModes(); }
    void definitionAndBoxAgreeAfterChangesOfBothSides();
};

void QtComboBoxUserTest::itemChosenWithTheMouseIsWrittenOnceAsTheUsers()
{
    QFETCH(bool, isEchoing);
    UserFixture f(isEchoing);
    QSignalSpy spy(f.opBox.Get(), QOverload<int>::of(&QComboBox::currentIndexChanged));

    ChooseWithTheMouse(*f.opBox, 2);

    QCOMPARE(f.opBox->currentIndex(), 2);
    QCOMPARE(f.pDefinition->writes, (Writes{{2, true}}));
    QCOMPARE(f.notes.isByUser, std::vector<bool>{true});
    QCOMPARE(spy.count(), 1);
}

void QtComboBoxUserTest::keyIsWrittenOnceAsTheUsers()
{
    QFETCH(bool, isEchoing);
    UserFixture f(isEchoing);

    QTest::keyClick(f.opBox.Get(), Qt::Key_Down);

    QCOMPARE(f.opBox->currentIndex(), 1);
    QCOMPARE(f.pDefinition->writes, (Writes{{1, true}}));
    QCOMPARE(f.notes.isByUser, std::vector<bool>{true});
}

void QtComboBoxUserTest::theUsersScopeEndsWithTheWriting()
{
    UserFixture f;

    QTest::keyClick(f.opBox.Get(), Qt::Key_Down);

    QVERIFY(!ControlDefinitionChangeByUser::IsChangeByUser(L"Box.Id"));
}

void QtComboBoxUserTest::choosingTheCurrentItemWritesNothing()
{
    UserFixture f;

    ChooseWithTheMouse(*f.opBox, 0);

    QVERIFY(f.pDefinition->writes.empty());
}

void QtComboBoxUserTest::indexThatTheDefinitionHasIsNotWritten()
{
    LooseFixture f({L"a", L"b", L"c"}, 0);
    f.pDefinition->currentIndex = 2;

    f.opBox->setCurrentIndex(2);

    QVERIFY(f.pDefinition->writes.empty());
}

void QtComboBoxUserTest::indexMovedWithTheItemsIsWrittenBackUnmarked_data()
{
    QTest::addColumn<int>("itemCount");
    QTest::addColumn<int>("currentIndex");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("newIndex");
    QTest::newRow("first item comes") << 0 << -1 << int(EventType::Add) << 0 << 0;
    QTest::newRow("item comes before") << 3 << 1 << int(EventType::Insert) << 0 << 2;
    QTest::newRow("item goes before") << 3 << 2 << int(EventType::Delete) << 0 << 1;
    QTest::newRow("current item goes, the last") << 3 << 2 << int(EventType::Delete) << 2 << 1;
    QTest::newRow("all items go") << 3 << 1 << int(EventType::Clear) << -1 << -1;
}

void QtComboBoxUserTest::indexMovedWithTheItemsIsWrittenBackUnmarked()
{
    QFETCH(int, itemCount);
    QFETCH(int, currentIndex);
    QFETCH(int, type);
    QFETCH(int, index);
    QFETCH(int, newIndex);
    LooseFixture f(std::vector<std::wstring>(std::size_t(itemCount), L"item"), currentIndex);

    f.pDefinition->Raise(type, index, L"item");

    QCOMPARE(f.opBox->currentIndex(), newIndex);
    QCOMPARE(f.pDefinition->writes, (Writes{{newIndex, false}}));
}

void QtComboBoxUserTest::removingTheCurrentItemWritesTheNewIndexBackUnmarked()
{
    LooseFixture f({L"a", L"b", L"c"}, 1);
    f.pDefinition->currentIndex = 7;

    f.pDefinition->Raise(EventType::Delete, 1);

    QCOMPARE(f.opBox->currentText(), QString("c"));
    QCOMPARE(f.pDefinition->writes, (Writes{{1, false}}));
}

void QtComboBoxUserTest::removingTheCurrentItemBeforeAnotherWritesNothing()
{
    LooseFixture f({L"a", L"b", L"c"}, 1);

    f.pDefinition->Raise(EventType::Delete, 1);

    QCOMPARE(f.opBox->currentText(), QString("c"));
    QVERIFY(f.pDefinition->writes.empty());
}

void QtComboBoxUserTest::indexBeyondTheItemsIsWrittenBackAsNone()
{
    LooseFixture f({L"a", L"b"}, 1);
    f.pDefinition->currentIndex = 99;

    f.pDefinition->Raise(EventType::PropertyChanged);

    QCOMPARE(f.opBox->currentIndex(), -1);
    QCOMPARE(f.pDefinition->writes, (Writes{{-1, false}}));
}

void QtComboBoxUserTest::theUserIsKnownAgainAfterEveryChange_data()
{
    AddEventTypes({-1, 0, 1, 2, 4, 5, 6, 7, 8});
}

void QtComboBoxUserTest::theUserIsKnownAgainAfterEveryChange()
{
    QFETCH(int, type);
    LooseFixture f({L"a", L"b", L"c", L"d"}, 0);
    f.pDefinition->Raise(type, 1, L"item");
    f.pDefinition->writes.clear();

    f.opBox->setCurrentIndex(2);

    QCOMPARE(f.pDefinition->writes, (Writes{{2, true}}));
}

void QtComboBoxUserTest::theUserIsKnownAgainAfterAReport()
{
    LooseFixture f({L"a", L"b"}, 0);
    f.opBox->On(nullptr);
    EXPECT_WARNING(f.host.warnings, L"pArgs为空", "vesk::QtComboBox::On");

    f.opBox->setCurrentIndex(1);

    QCOMPARE(f.pDefinition->writes, (Writes{{1, true}}));
}

void QtComboBoxUserTest::theUserIsKnownDuringAReport()
{
    LooseFixture f({L"a", L"b"}, 0);
    WarningScript script;
    script.SetAct([&f] { f.opBox->setCurrentIndex(1); });

    f.opBox->On(nullptr);

    EXPECT_WARNING(f.host.warnings, L"pArgs为空", "vesk::QtComboBox::On");
    QCOMPARE(f.pDefinition->writes, (Writes{{1, true}}));
}

void QtComboBoxUserTest::changeInsideAnotherDoesNotEndIt()
{
    LooseFixture f({L"a", L"b", L"c"}, 0);
    const auto connection = std::make_shared<QMetaObject::Connection>();
    *connection = connect(f.opBox.Get(), QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                          [&f, connection] {
                              QObject::disconnect(*connection);
                              // Directly to the box: an event would wait for the outer one.
                              ChangeArgs args;
                              f.opBox->On(&args);
                              f.opBox->setCurrentIndex(2);
                          });
    f.pDefinition->currentIndex = 1;

    f.pDefinition->Raise(EventType::PropertyChanged);

    QCOMPARE(f.pDefinition->writes, (Writes{{2, false}}));
}

void QtComboBoxUserTest::flagIsFalseExactlyWhileAChangeIsApplied()
{
    LooseFixture f({L"a", L"b", L"c"}, 0);
    QList<bool> flags;
    connect(f.opBox.Get(), QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [&] { flags += *FlagOf(IndexFlag()); });
    QVERIFY(*FlagOf(IndexFlag()));

    f.opBox->setCurrentIndex(1);
    f.pDefinition->currentIndex = 2;
    f.pDefinition->Raise(EventType::PropertyChanged);

    QCOMPARE(flags, QList<bool>({true, false}));
    QVERIFY(*FlagOf(IndexFlag()));
}

void QtComboBoxUserTest::changeOfOneBoxCoversAnother()
{
    LooseFixture f({L"a", L"b"}, 0);
    auto opOtherDefinition = MakeOwner<LooseComboBoxDefinition>();
    LooseComboBoxDefinition* pOther = opOtherDefinition.Get();
    pOther->items = {L"a", L"b"};
    QtComboBox other(std::move(opOtherDefinition), nullptr);
    connect(f.opBox.Get(), QOverload<int>::of(&QComboBox::currentIndexChanged), &other,
            &QComboBox::setCurrentIndex);
    f.pDefinition->currentIndex = 1;

    f.pDefinition->Raise(EventType::PropertyChanged);

    QCOMPARE(pOther->writes, (Writes{{1, false}}));
}

void QtComboBoxUserTest::aThousandChangesOfTheHostAreNoneOfTheUser()
{
    UserFixture f;

    for (int i = 1; i <= 1000; ++i)
        f.pDefinition->SetCurrentIndex(i % 4);

    QCOMPARE(f.notes.isByUser.size(), std::size_t(1000));
    QCOMPARE(f.notes.CountByUser(), 0);
    QCOMPARE(f.pDefinition->writes.size(), std::size_t(1000));
    QCOMPARE(f.opBox->currentIndex(), 0);
}

void QtComboBoxUserTest::definitionAndBoxAgreeAfterChangesOfBothSides()
{
    QFETCH(bool, isEchoing);
    UserFixture f(isEchoing);

    f.pDefinition->InsertItem(0, L"first");
    QTest::keyClick(f.opBox.Get(), Qt::Key_End);
    f.pDefinition->DeleteItem(4);
    f.pDefinition->DeleteItem(0);
    QTest::keyClick(f.opBox.Get(), Qt::Key_Up);

    QCOMPARE(f.opBox->currentText(), QString("b"));
    QCOMPARE(f.pDefinition->GetCurrentIndex(), f.opBox->currentIndex());
    QCOMPARE(f.pDefinition->writes, (Writes{{4, true}, {1, true}}));
}

}

VESK_TESTS(vesk::test::QtComboBoxUserTest);
#include "QtComboBoxUserTest.moc"
