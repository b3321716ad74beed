#include "Tools/TypedValues.h"

#include "RecordedLines.h"

#include "Dimension/TemporaryDimensionMgr.h"
#include "Support/HostValues.h"
#include "Support/TestValues.h"

using vesk::InputState;
using vesk::TemporaryDimensionMgr;

namespace
{

bool IsLocked(InputState field)
{
    return TemporaryDimensionMgr::GetInstance()->IsLocked(field);
}

}

class TypedValuesTest final : public QObject
{
    Q_OBJECT

private slots:
    void aTakenValueIsLocked()
    {
        TypedValues values;
        QVERIFY(values.IsEmpty());

        values.Take({InputState::IS_Width, L"12", 12.0});

        QVERIFY(!values.IsEmpty());
        QCOMPARE(values.Get(InputState::IS_Width).value(), 12.0);
        QVERIFY(!values.Get(InputState::IS_Height).has_value());
        QVERIFY(IsLocked(InputState::IS_Width));
        QVERIFY(!IsLocked(InputState::IS_Height));
    }

    void aFieldThatIsTypedAgainHasTheNewValue()
    {
        TypedValues values;
        values.Take({InputState::IS_Width, L"12", 12.0});

        values.Take({InputState::IS_Width, L"5", 5.0});

        QCOMPARE(values.Get(InputState::IS_Width).value(), 5.0);
        QVERIFY(IsLocked(InputState::IS_Width));
    }

    void eachValueIsRecordedOnceInOrder()
    {
        TypedValues values;
        const RecordedLines lines;

        values.Take({InputState::IS_Height, L"3", 3.0});
        values.Record();
        values.Take({InputState::IS_Width, L"a", 0.5});
        values.Record();
        values.Record();

        QCOMPARE(lines.Get(),
                 QStringList({R"({"kind":"value","field":"height","text":"3","value":3.0})",
                              R"({"kind":"value","field":"width","text":"a","value":0.5})"}));
    }

    void aDroppedValueIsUnlockedAndNotRecorded()
    {
        TypedValues values;
        const RecordedLines lines;
        values.Take({InputState::IS_Width, L"12", 12.0});
        values.Take({InputState::IS_Height, L"3", 3.0});

        values.Drop(InputState::IS_Width);
        QVERIFY(!IsLocked(InputState::IS_Width));
        QVERIFY(IsLocked(InputState::IS_Height));
        values.Clear();
        values.Record();

        QVERIFY(values.IsEmpty());
        QVERIFY(!IsLocked(InputState::IS_Height));
        QVERIFY(lines.Get().isEmpty());
    }

    void aTakenValueIsLockedWithItsField()
    {
        TypedValues values;

        values.Take({InputState::IS_Angle, L"270", 270.0});

        QCOMPARE(TemporaryDimensionMgr::GetInstance()->GetLockedValue(InputState::IS_Angle).value(),
                 270.0);
    }

    void aTrialLeavesNothingBehind()
    {
        TypedValues values;
        const RecordedLines lines;
        values.Take({InputState::IS_Width, L"12", 12.0});
        {
            const TypedValues::Trial width(values, InputState::IS_Width, 5.0);
            const TypedValues::Trial height(values, InputState::IS_Height, 3.0);

            QCOMPARE(values.Get(InputState::IS_Width).value(), 5.0);
            QCOMPARE(values.Get(InputState::IS_Height).value(), 3.0);
            QVERIFY(!IsLocked(InputState::IS_Height));
        }

        QCOMPARE(values.Get(InputState::IS_Width).value(), 12.0);
        QVERIFY(!values.Get(InputState::IS_Height).has_value());
        QCOMPARE(TemporaryDimensionMgr::GetInstance()->GetLockedValue(InputState::IS_Width).value(),
                 12.0);
        QVERIFY(lines.Get().isEmpty());
    }

    void valuesThatGoAreUnlocked()
    {
        {
            TypedValues values;
            values.Take({InputState::IS_Radius, L"1", 1.0});
        }

        QVERIFY(!IsLocked(InputState::IS_Radius));
    }
};

VESK_TESTS_WITHOUT_WINDOWS(TypedValuesTest);
#include "TypedValuesTest.moc"
