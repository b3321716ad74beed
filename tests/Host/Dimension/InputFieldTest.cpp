#include "Dimension/InputField.h"

#include "Dimension/CentralAngleTemporaryDimensionContext.h"
#include "Dimension/LinearTemporaryDimensionContext.h"
#include "Dimension/RadiusTemporaryDimensionContext.h"
#include "Dimension/RectangleTemporaryDimensionContext.h"
#include "Dimension/RotationTemporaryDimensionContext.h"
#include "Foundation/OwnerPtr.h"
#include "Geometry/Constants.h"
#include "Support/TestValues.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <set>
#include <string>

using namespace vesk;

using ContextMaker = std::function<OwnerPtr<ITemporaryDimensionContext>()>;

Q_DECLARE_METATYPE(ContextMaker)
Q_DECLARE_METATYPE(InputState)
Q_DECLARE_METATYPE(std::string)
Q_DECLARE_METATYPE(std::wstring)
Q_DECLARE_METATYPE(Quantity)

namespace
{

const Vector3d s_zero = Vector3d::Zero();
const Vector3d s_x = Vector3d::UnitX();
const Vector3d s_y = Vector3d::UnitY();

template <class Context>
OwnerPtr<ITemporaryDimensionContext> MakeContext(const Context& context)
{
    return MakeOwner<Context>(context);
}

LinearTemporaryDimensionContext Linear()
{
    return {Coordinate3d(), s_zero, s_x};
}

}

/// What the host knows about the fields of each kind of dimension.
class InputFieldTest final : public QObject
{
    Q_OBJECT

private slots:
    void fieldIsThatOfItsKind_data()
    {
        QTest::addColumn<ContextMaker>("makeContext");
        QTest::addColumn<InputState>("state");
        QTest::addColumn<Quantity>("quantity");
        QTest::addColumn<bool>("isSpaceTaken");
        QTest::addColumn<InputState>("next");
        const ContextMaker linear = [] { return MakeContext(Linear()); };
        const ContextMaker radius = [] {
            return MakeContext(RadiusTemporaryDimensionContext(Coordinate3d(), s_zero, s_x, s_y));
        };
        const ContextMaker central = [] {
            return MakeContext(
                CentralAngleTemporaryDimensionContext(Coordinate3d(), s_zero, s_x, s_y, s_y));
        };
        const ContextMaker rectangle = [] {
            return MakeContext(
                RectangleTemporaryDimensionContext(Coordinate3d(), s_zero, s_x + s_y));
        };
        const ContextMaker rotation = [] {
            return MakeContext(RotationTemporaryDimensionContext(Coordinate3d(), s_zero, s_x, s_y));
        };

        QTest::newRow("length") << linear << InputState::IS_Length << Quantity::Length << true
                                << InputState::IS_Angle;
        QTest::newRow("angle") << linear << InputState::IS_Angle << Quantity::Angle << true
                               << InputState::IS_Length;
        QTest::newRow("radius") << radius << InputState::IS_Radius << Quantity::Length << true
                                << InputState::IS_None;
        QTest::newRow("central angle") << central << InputState::IS_CentralAngle << Quantity::Angle
                                       << false << InputState::IS_None;
        QTest::newRow("width") << rectangle << InputState::IS_Width << Quantity::Length << true
                               << InputState::IS_Height;
        QTest::newRow("height") << rectangle << InputState::IS_Height << Quantity::Length << true
                                << InputState::IS_Width;
        QTest::newRow("rotation") << rotation << InputState::IS_CentralAngle << Quantity::Angle
                                  << true << InputState::IS_None;
    }

    void fieldIsThatOfItsKind()
    {
        QFETCH(ContextMaker, makeContext);
        QFETCH(InputState, state);
        QFETCH(Quantity, quantity);
        QFETCH(bool, isSpaceTaken);
        QFETCH(InputState, next);
        const OwnerPtr<ITemporaryDimensionContext> opContext = makeContext();

        const InputField field = FindInputField(opContext.Get(), state);

        QCOMPARE(field.state, state);
        QCOMPARE(field.quantity, quantity);
        QCOMPARE(field.next, next);
        QCOMPARE(field.takesWithSpace, isSpaceTaken);
    }

    void rangeIsTheContexts()
    {
        LinearTemporaryDimensionContext context = Linear();
        context.SetFirstValueRange({1.0, 20.0});
        context.SetSecondValueRange({-30.0, 40.0});

        const Intervald length = FindInputField(&context, InputState::IS_Length).range;
        const Intervald angle = FindInputField(&context, InputState::IS_Angle).range;

        QCOMPARE(length.GetMin(), 1.0);
        QCOMPARE(length.GetMax(), 20.0);
        QCOMPARE(angle.GetMin(), -30.0);
        QCOMPARE(angle.GetMax(), 40.0);
    }

    void tabTakesNothingWhereThereIsOneFieldOnly_data()
    {
        QTest::addColumn<bool>("isLengthEnabled");
        QTest::addColumn<bool>("isAngleEnabled");

        QTest::newRow("length only") << true << false;
        QTest::newRow("angle only") << false << true;
    }

    void tabTakesNothingWhereThereIsOneFieldOnly()
    {
        QFETCH(bool, isLengthEnabled);
        QFETCH(bool, isAngleEnabled);
        LinearTemporaryDimensionContext context = Linear();
        context.SetLengthEnabled(isLengthEnabled);
        context.SetAngleEnabled(isAngleEnabled);
        const InputState state = isLengthEnabled ? InputState::IS_Length : InputState::IS_Angle;

        const InputField field = FindInputField(&context, state);

        QCOMPARE(field.next, InputState::IS_None);
        QVERIFY(field.takesWithSpace);
    }

    void unknownKindTakesReturnOnly()
    {
        const InputField field = FindInputField(nullptr, InputState::IS_Angle);

        QCOMPARE(field.quantity, Quantity::Angle);
        QVERIFY(!field.takesWithSpace);
        QCOMPARE(field.next, InputState::IS_None);
        QVERIFY(field.range.Contains(Constants::MAX_MODEL_SIZE));
    }

    void fieldOfAnotherKindTakesReturnOnly()
    {
        const LinearTemporaryDimensionContext context = Linear();

        const InputField field = FindInputField(&context, InputState::IS_Width);

        QVERIFY(!field.takesWithSpace);
        QCOMPARE(field.next, InputState::IS_None);
    }

    void valueIsCalledByItsName_data()
    {
        QTest::addColumn<InputState>("state");
        QTest::addColumn<std::wstring>("caption");
        QTest::addColumn<std::string>("journalName");

        QTest::newRow("none") << InputState::IS_None << std::wstring() << std::string("none");
        QTest::newRow("length") << InputState::IS_Length << std::wstring(L"长度")
                                << std::string("length");
        QTest::newRow("angle") << InputState::IS_Angle << std::wstring(L"角度")
                               << std::string("angle");
        QTest::newRow("radius") << InputState::IS_Radius << std::wstring(L"半径")
                                << std::string("radius");
        QTest::newRow("central angle") << InputState::IS_CentralAngle << std::wstring(L"圆心角")
                                       << std::string("centralAngle");
        QTest::newRow("width") << InputState::IS_Width << std::wstring(L"宽度")
                               << std::string("width");
        QTest::newRow("height") << InputState::IS_Height << std::wstring(L"高度")
                                << std::string("height");
    }

    void valueIsCalledByItsName()
    {
        QFETCH(InputState, state);
        QFETCH(std::string, journalName);

        QTEST(std::wstring(CaptionOf(state)), "caption");
        QCOMPARE(std::string(JournalNameOf(state)), journalName);
        QCOMPARE(FindByJournalName(journalName), std::optional(state));
    }

    void unknownNameIsNoValues()
    {
        QVERIFY(!FindByJournalName("lengths").has_value());
        QVERIFY(!FindByJournalName("").has_value());
    }

    void everyValueCanBeTyped()
    {
        QCOMPARE(TypedStates.size(), std::size_t(6));
        QCOMPARE(std::set<InputState>(TypedStates.begin(), TypedStates.end()).size(),
                 TypedStates.size());
        QVERIFY(std::count(TypedStates.begin(), TypedStates.end(), InputState::IS_None) == 0);
    }
};

VESK_TESTS_WITHOUT_APPLICATION(InputFieldTest);
#include "InputFieldTest.moc"
