#include "TemporaryDimensionHandlersImpl/HandlerFixture.h"

#include "Support/TestValues.h"
#include "TemporaryDimensionHandlersImpl/KindTable.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/CentralAngleTemporaryDimensionHandler.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/LinearTemporaryDimensionHandler.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/RadiusTemporaryDimensionHandler.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/RectangleTemporaryDimensionHandler.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/RotationTemporaryDimensionHandler.h"

#include <QMetaMethod>

namespace vesk::test
{

using Base = TemporaryDimensionHandler;
using Linear = LinearTemporaryDimensionHandler;
using Radius = RadiusTemporaryDimensionHandler;

VESK_EXPOSE(ViewId, std::uint32_t, Base, m_viewId)
VESK_EXPOSE(Editor, QPointer<TemporaryDimensionHandleEditor>, Base, m_pEditor)
VESK_EXPOSE(RawText, bool, Base, m_isRawTextInput)
VESK_EXPOSE(FirstValidator, NumberValidator<double>, Base, m_firstValueValidator)
VESK_EXPOSE(SecondValidator, NumberValidator<double>, Base, m_secondValueValidator)
VESK_EXPOSE(ValidateHelper, OwnerPtr<LineEditValidateHelper>, Base, m_opValidateHelper)
VESK_EXPOSE(Style, TemporaryDimensionStyle, Base, m_style)
VESK_EXPOSE(SavedContext, std::optional<InputContext>, Base, m_savedInputContext)
VESK_EXPOSE(LengthEnabled, bool, Linear, m_isLengthEnabled)
VESK_EXPOSE(AngleEnabled, bool, Linear, m_isAngleEnabled)
VESK_EXPOSE(IsViewInput, bool, TemporaryDimensionHandleEditor, m_isViewInput)
VESK_EXPOSE(CentralAngleShown, bool, Radius, m_isCentralAngleShown)

class HandlerLayoutTest : public QObject
{
    Q_OBJECT

private slots:
    void basesStandInOrder_data();
    void basesStandInOrder();
    void fieldsStandInOrder();
    void theRadiusAddsOneFlag();
    void theOtherKindsAddNothing();
    void operationsOfTheHostsInterfaceHaveTheirSlots();
    void operationsOfTheWidgetSideFollowEachOther();
    void theEditorAddsOneFlag();
    void whatTheEditorCallsIsASlot_data();
    void whatTheEditorCallsIsASlot();
};

void HandlerLayoutTest::basesStandInOrder_data()
{
    AddKindRows();
}

void HandlerLayoutTest::basesStandInOrder()
{
    FETCH_KIND(rules);
    KindFixture f(rules.pCreateContext());

    QCOMPARE(BaseOffsetIn<QWidget>(f.Handler()), std::ptrdiff_t(0));
    QCOMPARE(BaseOffsetIn<ITemporaryDimensionHandler>(f.Handler()),
             std::ptrdiff_t(sizeof(QWidget)));
}

void HandlerLayoutTest::fieldsStandInOrder()
{
    HandlerFixture f;
    const auto& handler = static_cast<const Linear&>(f.Handler());
    const std::vector<std::ptrdiff_t> offsets{
        OffsetIn(handler, MemberOf(ViewId())),
        OffsetIn(handler, MemberOf(Editor())),
        OffsetIn(handler, MemberOf(RawText())),
        OffsetIn(handler, MemberOf(FirstValidator())),
        OffsetIn(handler, MemberOf(SecondValidator())),
        OffsetIn(handler, MemberOf(ValidateHelper())),
        OffsetIn(handler, MemberOf(HandlerState())),
        OffsetIn(handler, MemberOf(HandlerData())),
        OffsetIn(handler, MemberOf(Style())),
        OffsetIn(handler, MemberOf(SavedContext())),
        OffsetIn(handler, MemberOf(LengthEnabled())),
        OffsetIn(handler, MemberOf(AngleEnabled())),
    };

    QVERIFY(offsets.front() >= std::ptrdiff_t(sizeof(QWidget) + sizeof(void*)));
    QVERIFY(std::is_sorted(offsets.begin(), offsets.end()));
    QVERIFY(std::adjacent_find(offsets.begin(), offsets.end()) == offsets.end());
}

void HandlerLayoutTest::theRadiusAddsOneFlag()
{
    KindFixture f(CreateRadius<false>());
    const auto& handler = static_cast<const Radius&>(f.Handler());

    QVERIFY(OffsetIn(handler, MemberOf(CentralAngleShown())) >
            OffsetIn(handler, MemberOf(SavedContext())));
    QVERIFY(sizeof(Radius) <= sizeof(Base) + sizeof(void*));
    QCOMPARE(sizeof(Radius), sizeof(Linear));
}

void HandlerLayoutTest::theOtherKindsAddNothing()
{
    QCOMPARE(sizeof(CentralAngleTemporaryDimensionHandler), sizeof(Base));
    QCOMPARE(sizeof(RectangleTemporaryDimensionHandler), sizeof(Base));
    QCOMPARE(sizeof(RotationTemporaryDimensionHandler), sizeof(Base));
}

void HandlerLayoutTest::operationsOfTheHostsInterfaceHaveTheirSlots()
{
    QCOMPARE(SlotOf(&ITemporaryDimensionHandler::GenerateGraphics), std::ptrdiff_t(2));
    QCOMPARE(SlotOf(&ITemporaryDimensionHandler::IsInputting), std::ptrdiff_t(3));
    QCOMPARE(SlotOf(&ITemporaryDimensionHandler::HasEditorFocus), std::ptrdiff_t(4));
    QCOMPARE(SlotOf(&ITemporaryDimensionHandler::EndInput), std::ptrdiff_t(5));
    QCOMPARE(SlotOf(&ITemporaryDimensionHandler::OnEditorReturnPressed), std::ptrdiff_t(6));
    QCOMPARE(SlotOf(&ITemporaryDimensionHandler::OnKeyDown), std::ptrdiff_t(7));
    QCOMPARE(SlotOf(&ITemporaryDimensionHandler::UpdateConfig), std::ptrdiff_t(8));
}

void HandlerLayoutTest::operationsOfTheWidgetSideFollowEachOther()
{
    const std::ptrdiff_t first = SlotOf(&Base::IsRawTextInput);

    // The last virtual function of a widget; overrides of the host's interface come in between.
    QVERIFY(first > SlotOf(&QWidget::setVisible));
    QCOMPARE(SlotOf(&Base::SetRawTextInput), first + 1);
    QCOMPARE(SlotOf(&Base::ShowInputWidget), first + 2);
}

void HandlerLayoutTest::theEditorAddsOneFlag()
{
    HandlerFixture f;
    f.TypeLength("5");
    const auto& editor = static_cast<const TemporaryDimensionHandleEditor&>(*f.Editor());

    QCOMPARE(sizeof(TemporaryDimensionHandleEditor), sizeof(QLineEdit) + sizeof(void*));
    QVERIFY(editor.*MemberOf(IsViewInput()));
}

void HandlerLayoutTest::whatTheEditorCallsIsASlot_data()
{
    AddKindRows();
}

void HandlerLayoutTest::whatTheEditorCallsIsASlot()
{
    FETCH_KIND(rules);
    KindFixture f(rules.pCreateContext());
    const QMetaObject& meta = *f.Object().metaObject();

    QStringList slotNames;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
    {
        if (meta.method(i).methodType() == QMetaMethod::Slot)
            slotNames << QString::fromLatin1(meta.method(i).methodSignature());
    }

    QStringList expected{"OnEditorReturnPressed()"};
    if (rules.fields.size() > 1)
        expected << "OnEditorTabPressed()";
    QCOMPARE(slotNames, expected);
}

}

VESK_TESTS(vesk::test::HandlerLayoutTest);
#include "HandlerLayoutTest.moc"
