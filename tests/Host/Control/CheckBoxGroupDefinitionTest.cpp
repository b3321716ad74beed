#include "Control/CheckBoxGroupDefinition.h"

#include "Control/ControlDefinitionChangeByUser.h"
#include "Host/Control/ChangeRecorder.h"
#include "Support/TestValues.h"
#include "Support/WarningRecorder.h"

#include <memory>

namespace vesk
{

/// A group of the boxes "End", "Middle" and "Centre", and a record of its changes.
struct CheckBoxGroupFixture
{
    CheckBoxGroupFixture()
    {
        for (const wchar_t* id : {L"End", L"Middle", L"Centre"})
            pGroup->AddCheckBox(MakeOwner<CheckBoxDefinition>(id, std::wstring(L"to ") + id));
        pRecorder = std::make_unique<ChangeRecorder>(*pGroup->GetControlDefinitionChangeEvent());
    }

    /// The ids in order, each with its state.
    QString GetState() const
    {
        QStringList state;
        for (const ICheckBoxDefinition* pBox : pGroup->GetCheckBoxDefinitions())
            state << QString::fromStdWString(pBox->GetId()) +
                         QString::number(pBox->GetCheckState());
        return state.join(' ');
    }

    std::unique_ptr<CheckBoxGroupDefinition> pGroup =
        std::make_unique<CheckBoxGroupDefinition>(L"Snap");
    std::unique_ptr<ChangeRecorder> pRecorder;
    test::WarningRecorder warnings;
};

}

using Act = void (*)(vesk::CheckBoxGroupDefinition&);
Q_DECLARE_METATYPE(Act)

namespace vesk
{

using Box = CheckBoxDefinition;
using Group = CheckBoxGroupDefinition;
using Type = ControlDefinitionChangeEventType;

class CheckBoxGroupDefinitionTest : public QObject
{
    Q_OBJECT

private slots:
    void isEmptyAtFirst();
    void aBoxIsUncheckedAtFirst();
    void aBoxKeepsItsStateAsItIsGiven_data();
    void aBoxKeepsItsStateAsItIsGiven();
    void aChangeOfTheBoxesRaisesOneEvent_data();
    void aChangeOfTheBoxesRaisesOneEvent();
    void aStateRaisesOneEventOfTheBoxAndOneOfTheGroup();
    void anEqualStateRaisesNone();
    void stateOfAnUnknownBoxChangesNothing();
    void aStateSetByTheUserIsMarked();
    void boxesAreFoundByTheirIds();
    void badArgumentIsReportedAndChangesNothing_data();
    void badArgumentIsReportedAndChangesNothing();
    void theStateIsRightWhenTheEventIsRaised();
    void aHandlerMayChangeTheGroupAgain();
    void aHandlerMayDestroyTheGroup_data();
    void aHandlerMayDestroyTheGroup();
};

void CheckBoxGroupDefinitionTest::isEmptyAtFirst()
{
    const Group group(L"Snap");

    QCOMPARE(group.GetId(), std::wstring(L"Snap"));
    QVERIFY(group.GetCheckBoxDefinitions().empty());
}

void CheckBoxGroupDefinitionTest::aBoxIsUncheckedAtFirst()
{
    const Box box(L"End", L"end point");

    QCOMPARE(box.GetId(), std::wstring(L"End"));
    QCOMPARE(box.GetCaption(), std::wstring(L"end point"));
    QCOMPARE(box.GetCheckState(), 0);
}

void CheckBoxGroupDefinitionTest::aBoxKeepsItsStateAsItIsGiven_data()
{
    QTest::addColumn<int>("checkState");
    QTest::newRow("one") << 1;
    QTest::newRow("two") << 2;
    QTest::newRow("negative") << -1;
}

void CheckBoxGroupDefinitionTest::aBoxKeepsItsStateAsItIsGiven()
{
    QFETCH(int, checkState);
    Box box(L"End", L"end point");
    const ChangeRecorder recorder(*box.GetControlDefinitionChangeEvent());

    box.SetCheckState(checkState);
    box.SetCheckState(checkState);

    QCOMPARE(box.GetCheckState(), checkState);
    QCOMPARE(recorder.GetCount(), 1);
    QCOMPARE(recorder.GetChanges().front().type, int{Type::PropertyChanged});
}

void CheckBoxGroupDefinitionTest::aChangeOfTheBoxesRaisesOneEvent_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<QString>("state");
    AddItemChangeColumns();

    QTest::newRow("add") << Act{[](Group& g) { g.AddCheckBox(MakeOwner<Box>(L"X", L"cross")); }}
                         << "End0 Middle0 Centre0 X0" << int{Type::Add} << 3 << "cross";
    QTest::newRow("insert") << Act{[](Group& g) {
        g.InsertCheckBox(1, MakeOwner<Box>(L"X", L"cross"));
    }} << "End0 X0 Middle0 Centre0"
                            << int{Type::Insert} << 1 << "cross";
    QTest::newRow("insert at the end")
        << Act{[](Group& g) { g.InsertCheckBox(3, MakeOwner<Box>(L"X", L"cross")); }}
        << "End0 Middle0 Centre0 X0" << int{Type::Add} << 3 << "cross";
    QTest::newRow("delete") << Act{[](Group& g) { g.DeleteCheckBox(1); }} << "End0 Centre0"
                            << int{Type::Delete} << 1 << "to Middle";
    QTest::newRow("clear") << Act{[](Group& g) { g.ClearCheckBoxes(); }} << "" << int{Type::Clear}
                           << -1 << "";
}

void CheckBoxGroupDefinitionTest::aChangeOfTheBoxesRaisesOneEvent()
{
    QFETCH(Act, act);
    QFETCH(QString, state);
    const CheckBoxGroupFixture f;

    act(*f.pGroup);

    QCOMPARE(f.GetState(), state);
    VerifyItemChange(*f.pRecorder);
}

void CheckBoxGroupDefinitionTest::aStateRaisesOneEventOfTheBoxAndOneOfTheGroup()
{
    const CheckBoxGroupFixture f;
    const ChangeRecorder boxRecorder(*f.pGroup->Find(L"Middle")->GetControlDefinitionChangeEvent());

    f.pGroup->SetCheckState(L"Middle", 2);

    QCOMPARE(f.GetState(), QString("End0 Middle2 Centre0"));
    QCOMPARE(boxRecorder.GetCount(), 1);
    QCOMPARE(f.pRecorder->GetCount(), 1);
    QCOMPARE(f.pRecorder->GetChanges().front().type, int{Type::PropertyChanged});
    QVERIFY(f.pRecorder->GetChanges().front().pItem == nullptr);
}

void CheckBoxGroupDefinitionTest::anEqualStateRaisesNone()
{
    const CheckBoxGroupFixture f;

    f.pGroup->SetCheckState(L"Middle", 0);

    QCOMPARE(f.pRecorder->GetCount(), 0);
}

void CheckBoxGroupDefinitionTest::stateOfAnUnknownBoxChangesNothing()
{
    const CheckBoxGroupFixture f;

    f.pGroup->SetCheckState(L"Nobody", 1);

    QCOMPARE(f.GetState(), QString("End0 Middle0 Centre0"));
    QCOMPARE(f.pRecorder->GetCount(), 0);
}

void CheckBoxGroupDefinitionTest::aStateSetByTheUserIsMarked()
{
    const CheckBoxGroupFixture f;

    {
        const ControlDefinitionChangeByUser byUser(L"Snap");
        f.pGroup->SetCheckState(L"End", 1);
    }
    f.pGroup->SetCheckState(L"End", 0);

    QVERIFY(f.pRecorder->GetChanges().at(0).isByUser);
    QVERIFY(!f.pRecorder->GetChanges().at(1).isByUser);
}

void CheckBoxGroupDefinitionTest::boxesAreFoundByTheirIds()
{
    const CheckBoxGroupFixture f;

    QCOMPARE(f.pGroup->Find(L"Centre")->GetCaption(), std::wstring(L"to Centre"));
    QVERIFY(f.pGroup->Find(L"Nobody") == nullptr);
}

void CheckBoxGroupDefinitionTest::badArgumentIsReportedAndChangesNothing_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QByteArray>("function");
    const QString badIndex = "index不正确";
    const QString missing = "opItem为空";
    const QByteArray add = "vesk::CheckBoxGroupDefinition::AddCheckBox";
    const QByteArray insert = "vesk::CheckBoxGroupDefinition::InsertCheckBox";
    const QByteArray remove = "vesk::CheckBoxGroupDefinition::DeleteCheckBox";

    QTest::newRow("insert at -1") << Act{[](Group& g) {
        g.InsertCheckBox(-1, MakeOwner<Box>(L"X", L"x"));
    }} << badIndex << insert;
    QTest::newRow("insert beyond")
        << Act{[](Group& g) { g.InsertCheckBox(4, MakeOwner<Box>(L"X", L"x")); }} << badIndex
        << insert;
    QTest::newRow("delete -1") << Act{[](Group& g) { g.DeleteCheckBox(-1); }} << badIndex << remove;
    QTest::newRow("delete the count")
        << Act{[](Group& g) { g.DeleteCheckBox(3); }} << badIndex << remove;
    QTest::newRow("delete beyond")
        << Act{[](Group& g) { g.DeleteCheckBox(4); }} << badIndex << remove;
    QTest::newRow("add none") << Act{[](Group& g) { g.AddCheckBox(nullptr); }} << missing << add;
    QTest::newRow("insert none") << Act{[](Group& g) { g.InsertCheckBox(0, nullptr); }} << missing
                                 << insert;
}

void CheckBoxGroupDefinitionTest::badArgumentIsReportedAndChangesNothing()
{
    QFETCH(Act, act);
    QFETCH(QString, message);
    QFETCH(QByteArray, function);
    CheckBoxGroupFixture f;

    act(*f.pGroup);

    EXPECT_WARNING(f.warnings, message.toStdWString(), function.toStdString());
    QCOMPARE(f.GetState(), QString("End0 Middle0 Centre0"));
    QCOMPARE(f.pRecorder->GetCount(), 0);
}

void CheckBoxGroupDefinitionTest::theStateIsRightWhenTheEventIsRaised()
{
    const CheckBoxGroupFixture f;
    QString inside;
    f.pRecorder->Then([&] { inside = f.GetState(); });

    f.pGroup->SetCheckState(L"Centre", 1);

    QCOMPARE(inside, QString("End0 Middle0 Centre1"));
}

void CheckBoxGroupDefinitionTest::aHandlerMayChangeTheGroupAgain()
{
    const CheckBoxGroupFixture f;
    f.pRecorder->Then([&] { f.pGroup->DeleteCheckBox(0); });

    f.pGroup->SetCheckState(L"End", 1);

    QCOMPARE(f.GetState(), QString("Middle0 Centre0"));
    // The last one brings handlers that were behind up to date.
    QCOMPARE(f.pRecorder->GetCount(), 3);
}

void CheckBoxGroupDefinitionTest::aHandlerMayDestroyTheGroup_data()
{
    QTest::addColumn<Act>("act");
    QTest::newRow("add") << Act{[](Group& g) { g.AddCheckBox(MakeOwner<Box>(L"X", L"x")); }};
    QTest::newRow("insert") << Act{
        [](Group& g) { g.InsertCheckBox(0, MakeOwner<Box>(L"X", L"x")); }};
    QTest::newRow("delete") << Act{[](Group& g) { g.DeleteCheckBox(0); }};
    QTest::newRow("clear") << Act{[](Group& g) { g.ClearCheckBoxes(); }};
    QTest::newRow("state") << Act{[](Group& g) { g.SetCheckState(L"End", 1); }};
}

void CheckBoxGroupDefinitionTest::aHandlerMayDestroyTheGroup()
{
    QFETCH(Act, act);
    CheckBoxGroupFixture f;
    f.pRecorder->Then([&] { f.pGroup.reset(); });

    act(*f.pGroup);

    QCOMPARE(f.pRecorder->GetCount(), 1);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::CheckBoxGroupDefinitionTest);
#include "CheckBoxGroupDefinitionTest.moc"
