#include "Control/RadioButtonGroupDefinition.h"

#include "Control/ControlDefinitionChangeByUser.h"
#include "Host/Control/ChangeRecorder.h"
#include "Support/TestValues.h"
#include "Support/WarningRecorder.h"

#include <memory>

namespace vesk
{

/// A group of the buttons "mm", "cm" (current) and "in", and a record of its changes.
struct RadioButtonGroupFixture
{
    RadioButtonGroupFixture()
    {
        for (const wchar_t* id : {L"mm", L"cm", L"in"})
            pGroup->AddRadioButton(MakeOwner<RadioButtonDefinition>(id, std::wstring(L"in ") + id));
        pGroup->SetCurrentRadioButtonId(L"cm");
        pRecorder = std::make_unique<ChangeRecorder>(*pGroup->GetControlDefinitionChangeEvent());
    }

    /// The ids in order, and the current one.
    QString GetState() const
    {
        QStringList ids;
        for (const IRadioButtonDefinition* pButton : pGroup->GetRadioButtonDefinitions())
            ids << QString::fromStdWString(pButton->GetId());
        return ids.join(' ') + ": " + QString::fromStdWString(pGroup->GetCurrentRadioButtonId());
    }

    std::unique_ptr<RadioButtonGroupDefinition> pGroup =
        std::make_unique<RadioButtonGroupDefinition>(L"Unit");
    std::unique_ptr<ChangeRecorder> pRecorder;
    test::WarningRecorder warnings;
};

}

using Act = void (*)(vesk::RadioButtonGroupDefinition&);
Q_DECLARE_METATYPE(Act)

namespace vesk
{

using Button = RadioButtonDefinition;
using Group = RadioButtonGroupDefinition;
using Type = ControlDefinitionChangeEventType;

class RadioButtonGroupDefinitionTest : public QObject
{
    Q_OBJECT

private slots:
    void isEmptyWithoutACurrentButtonAtFirst();
    void aChangeOfTheButtonsRaisesOneEvent_data();
    void aChangeOfTheButtonsRaisesOneEvent();
    void choosingAButtonRaisesOneEventAndAnEqualIdNone();
    void theCurrentIdMayNameNoButton();
    void anIdThatNamesNoButtonIsNoButtonThatGoes_data();
    void anIdThatNamesNoButtonIsNoButtonThatGoes();
    void aChoiceOfTheUserIsMarked();
    void aChangeOfAButtonIsOneOfTheGroupAndMarkedWithItsScope();
    void buttonsAreFoundByTheirIds();
    void badArgumentIsReportedAndChangesNothing_data();
    void badArgumentIsReportedAndChangesNothing();
    void theStateIsRightWhenTheEventIsRaised_data();
    void theStateIsRightWhenTheEventIsRaised();
    void aHandlerMayChangeTheGroupAgain();
    void aHandlerMayDestroyTheGroup_data();
    void aHandlerMayDestroyTheGroup();
};

void RadioButtonGroupDefinitionTest::isEmptyWithoutACurrentButtonAtFirst()
{
    const Group group(L"Unit");

    QCOMPARE(group.GetId(), std::wstring(L"Unit"));
    QVERIFY(group.GetRadioButtonDefinitions().empty());
    QCOMPARE(group.GetCurrentRadioButtonId(), std::wstring());
}

void RadioButtonGroupDefinitionTest::aChangeOfTheButtonsRaisesOneEvent_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<QString>("state");
    AddItemChangeColumns();

    QTest::newRow("add") << Act{[](Group& g) { g.AddRadioButton(MakeOwner<Button>(L"m", L"M")); }}
                         << "mm cm in m: cm" << int{Type::Add} << 3 << "M";
    QTest::newRow("insert") << Act{[](Group& g) {
        g.InsertRadioButton(0, MakeOwner<Button>(L"m", L"M"));
    }} << "m mm cm in: cm" << int{Type::Insert}
                            << 0 << "M";
    QTest::newRow("insert at the end")
        << Act{[](Group& g) { g.InsertRadioButton(3, MakeOwner<Button>(L"m", L"M")); }}
        << "mm cm in m: cm" << int{Type::Add} << 3 << "M";
    QTest::newRow("delete another") << Act{[](Group& g) { g.DeleteRadioButton(0); }} << "cm in: cm"
                                    << int{Type::Delete} << 0 << "in mm";
    QTest::newRow("delete the current one") << Act{[](Group& g) { g.DeleteRadioButton(1); }}
                                            << "mm in: " << int{Type::Delete} << 1 << "in cm";
    QTest::newRow("clear") << Act{[](Group& g) { g.ClearRadioButtons(); }} << ": "
                           << int{Type::Clear} << -1 << "";
}

void RadioButtonGroupDefinitionTest::aChangeOfTheButtonsRaisesOneEvent()
{
    QFETCH(Act, act);
    QFETCH(QString, state);
    const RadioButtonGroupFixture f;

    act(*f.pGroup);

    QCOMPARE(f.GetState(), state);
    VerifyItemChange(*f.pRecorder);
}

void RadioButtonGroupDefinitionTest::choosingAButtonRaisesOneEventAndAnEqualIdNone()
{
    const RadioButtonGroupFixture f;

    f.pGroup->SetCurrentRadioButtonId(L"in");
    QCOMPARE(f.GetState(), QString("mm cm in: in"));
    QCOMPARE(f.pRecorder->GetCount(), 1);
    QCOMPARE(f.pRecorder->GetChanges().front().type, int{Type::PropertyChanged});
    f.pGroup->SetCurrentRadioButtonId(L"in");

    QCOMPARE(f.pRecorder->GetCount(), 1);
}

void RadioButtonGroupDefinitionTest::theCurrentIdMayNameNoButton()
{
    const RadioButtonGroupFixture f;

    f.pGroup->SetCurrentRadioButtonId(L"mile");

    QCOMPARE(f.GetState(), QString("mm cm in: mile"));
    QCOMPARE(f.pRecorder->GetCount(), 1);
}

void RadioButtonGroupDefinitionTest::anIdThatNamesNoButtonIsNoButtonThatGoes_data()
{
    QTest::addColumn<Act>("act");
    QTest::newRow("delete") << Act{[](Group& g) { g.DeleteRadioButton(1); }};
    QTest::newRow("clear") << Act{[](Group& g) { g.ClearRadioButtons(); }};
}

void RadioButtonGroupDefinitionTest::anIdThatNamesNoButtonIsNoButtonThatGoes()
{
    QFETCH(Act, act);
    const RadioButtonGroupFixture f;
    f.pGroup->SetCurrentRadioButtonId(L"mile");

    act(*f.pGroup);

    QCOMPARE(f.pGroup->GetCurrentRadioButtonId(), std::wstring(L"mile"));
}

void RadioButtonGroupDefinitionTest::aChoiceOfTheUserIsMarked()
{
    const RadioButtonGroupFixture f;

    {
        const ControlDefinitionChangeByUser byUser(L"Unit");
        f.pGroup->SetCurrentRadioButtonId(L"in");
    }
    f.pGroup->SetCurrentRadioButtonId(L"mm");

    QVERIFY(f.pRecorder->GetChanges().at(0).isByUser);
    QVERIFY(!f.pRecorder->GetChanges().at(1).isByUser);
}

void RadioButtonGroupDefinitionTest::aChangeOfAButtonIsOneOfTheGroupAndMarkedWithItsScope()
{
    const RadioButtonGroupFixture f;

    {
        const ControlDefinitionChangeByUser byUser(L"Unit");
        f.pGroup->Find(L"mm")->SetEnabled(false);
    }
    f.pGroup->Find(L"mm")->SetEnabled(true);

    QCOMPARE(f.pRecorder->GetCount(), 2);
    QCOMPARE(f.pRecorder->GetChanges().at(0).type, int{Type::PropertyChanged});
    QVERIFY(f.pRecorder->GetChanges().at(0).isByUser);
    QVERIFY(!f.pRecorder->GetChanges().at(1).isByUser);
}

void RadioButtonGroupDefinitionTest::buttonsAreFoundByTheirIds()
{
    const RadioButtonGroupFixture f;

    QCOMPARE(f.pGroup->Find(L"in")->GetCaption(), std::wstring(L"in in"));
    QVERIFY(f.pGroup->Find(L"mile") == nullptr);
}

void RadioButtonGroupDefinitionTest::badArgumentIsReportedAndChangesNothing_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QByteArray>("function");
    const QString badIndex = "index不正确";
    const QString missing = "opItem为空";
    const QByteArray add = "vesk::RadioButtonGroupDefinition::AddRadioButton";
    const QByteArray insert = "vesk::RadioButtonGroupDefinition::InsertRadioButton";
    const QByteArray remove = "vesk::RadioButtonGroupDefinition::DeleteRadioButton";

    QTest::newRow("insert at -1") << Act{[](Group& g) {
        g.InsertRadioButton(-1, MakeOwner<Button>(L"m", L"M"));
    }} << badIndex << insert;
    QTest::newRow("insert beyond")
        << Act{[](Group& g) { g.InsertRadioButton(4, MakeOwner<Button>(L"m", L"M")); }} << badIndex
        << insert;
    QTest::newRow("delete -1") << Act{[](Group& g) { g.DeleteRadioButton(-1); }} << badIndex
                               << remove;
    QTest::newRow("delete the count")
        << Act{[](Group& g) { g.DeleteRadioButton(3); }} << badIndex << remove;
    QTest::newRow("delete beyond")
        << Act{[](Group& g) { g.DeleteRadioButton(4); }} << badIndex << remove;
    QTest::newRow("add none") << Act{[](Group& g) { g.AddRadioButton(nullptr); }} << missing << add;
    QTest::newRow("insert none") << Act{[](Group& g) { g.InsertRadioButton(0, nullptr); }}
                                 << missing << insert;
}

void RadioButtonGroupDefinitionTest::badArgumentIsReportedAndChangesNothing()
{
    QFETCH(Act, act);
    QFETCH(QString, message);
    QFETCH(QByteArray, function);
    RadioButtonGroupFixture f;

    act(*f.pGroup);

    EXPECT_WARNING(f.warnings, message.toStdWString(), function.toStdString());
    QCOMPARE(f.GetState(), QString("mm cm in: cm"));
    QCOMPARE(f.pRecorder->GetCount(), 0);
}

void RadioButtonGroupDefinitionTest::theStateIsRightWhenTheEventIsRaised_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<QString>("state");
    QTest::newRow("delete the current one")
        << Act{[](Group& g) { g.DeleteRadioButton(1); }} << "mm in: ";
    QTest::newRow("clear") << Act{[](Group& g) { g.ClearRadioButtons(); }} << ": ";
    QTest::newRow("choose") << Act{[](Group& g) { g.SetCurrentRadioButtonId(L"mm"); }}
                            << "mm cm in: mm";
}

void RadioButtonGroupDefinitionTest::theStateIsRightWhenTheEventIsRaised()
{
    QFETCH(Act, act);
    QFETCH(QString, state);
    const RadioButtonGroupFixture f;
    QString inside;
    f.pRecorder->Then([&] { inside = f.GetState(); });

    act(*f.pGroup);

    QCOMPARE(inside, state);
}

void RadioButtonGroupDefinitionTest::aHandlerMayChangeTheGroupAgain()
{
    const RadioButtonGroupFixture f;
    f.pRecorder->Then([&] { f.pGroup->SetCurrentRadioButtonId(L"mm"); });

    f.pGroup->SetCurrentRadioButtonId(L"in");

    QCOMPARE(f.GetState(), QString("mm cm in: mm"));
    QCOMPARE(f.pRecorder->GetCount(), 2);
}

void RadioButtonGroupDefinitionTest::aHandlerMayDestroyTheGroup_data()
{
    QTest::addColumn<Act>("act");
    QTest::newRow("add") << Act{[](Group& g) { g.AddRadioButton(MakeOwner<Button>(L"m", L"M")); }};
    QTest::newRow("insert") << Act{
        [](Group& g) { g.InsertRadioButton(0, MakeOwner<Button>(L"m", L"M")); }};
    QTest::newRow("delete") << Act{[](Group& g) { g.DeleteRadioButton(1); }};
    QTest::newRow("clear") << Act{[](Group& g) { g.ClearRadioButtons(); }};
    QTest::newRow("choose") << Act{[](Group& g) { g.SetCurrentRadioButtonId(L"mm"); }};
    QTest::newRow("change of a button") << Act{[](Group& g) { g.Find(L"mm")->SetVisible(false); }};
}

void RadioButtonGroupDefinitionTest::aHandlerMayDestroyTheGroup()
{
    QFETCH(Act, act);
    RadioButtonGroupFixture f;
    f.pRecorder->Then([&] { f.pGroup.reset(); });

    act(*f.pGroup);

    QCOMPARE(f.pRecorder->GetCount(), 1);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::RadioButtonGroupDefinitionTest);
#include "RadioButtonGroupDefinitionTest.moc"
