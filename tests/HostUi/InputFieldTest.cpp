#include "InputField.h"

#include "Dimension/CentralAngleTemporaryDimensionContext.h"
#include "Dimension/LinearTemporaryDimensionContext.h"
#include "Dimension/RadiusTemporaryDimensionContext.h"
#include "Dimension/RectangleTemporaryDimensionContext.h"
#include "Dimension/RotationTemporaryDimensionContext.h"
#include "Foundation/OwnerPtr.h"
#include "Geometry/Constants.h"
#include "Support/TestValues.h"

#include <functional>

using namespace vesk;

using ContextMaker = std::function<OwnerPtr<ITemporaryDimensionContext>()>;

Q_DECLARE_METATYPE(ContextMaker)
Q_DECLARE_METATYPE(InputState)
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

/// What a field takes and what keys do in it, for each kind of dimension.
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
        QTest::addColumn<QString>("next");
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
                                << "角度";
        QTest::newRow("angle") << linear << InputState::IS_Angle << Quantity::Angle << true
                               << "长度";
        QTest::newRow("radius") << radius << InputState::IS_Radius << Quantity::Length << true
                                << "";
        QTest::newRow("central angle")
            << central << InputState::IS_CentralAngle << Quantity::Angle << false << "";
        QTest::newRow("width") << rectangle << InputState::IS_Width << Quantity::Length << true
                               << "高度";
        QTest::newRow("height") << rectangle << InputState::IS_Height << Quantity::Length << true
                                << "宽度";
        QTest::newRow("rotation") << rotation << InputState::IS_CentralAngle << Quantity::Angle
                                  << true << "";
    }

    void fieldIsThatOfItsKind()
    {
        QFETCH(ContextMaker, makeContext);
        QFETCH(InputState, state);
        QFETCH(Quantity, quantity);
        QFETCH(bool, isSpaceTaken);
        QFETCH(QString, next);
        const OwnerPtr<ITemporaryDimensionContext> opContext = makeContext();

        const InputField field = FindInputField(opContext.Get(), state);

        QCOMPARE(field.quantity, quantity);
        QCOMPARE(field.next, next);
        QVERIFY(field.IsCommitting(Qt::Key_Return));
        QVERIFY(field.IsCommitting(Qt::Key_Enter));
        QCOMPARE(field.IsCommitting(Qt::Key_Space), isSpaceTaken);
        QCOMPARE(field.IsCommitting(Qt::Key_Tab), !next.isEmpty());
        QVERIFY(!field.IsCommitting(Qt::Key_Escape));
        QVERIFY(!field.IsCommitting(Qt::Key_5));
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

        QVERIFY(!field.IsCommitting(Qt::Key_Tab));
        QVERIFY(field.IsCommitting(Qt::Key_Space));
    }

    void unknownKindTakesReturnOnly()
    {
        const InputField field = FindInputField(nullptr, InputState::IS_Angle);

        QCOMPARE(field.quantity, Quantity::Angle);
        QVERIFY(field.IsCommitting(Qt::Key_Return));
        QVERIFY(!field.IsCommitting(Qt::Key_Space));
        QVERIFY(!field.IsCommitting(Qt::Key_Tab));
        QVERIFY(field.range.Contains(Constants::MAX_MODEL_SIZE));
    }
};

VESK_TESTS_WITHOUT_WINDOWS(InputFieldTest);
#include "InputFieldTest.moc"
