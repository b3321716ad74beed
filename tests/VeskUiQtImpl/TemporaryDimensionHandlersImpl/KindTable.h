#pragma once

#include "Dimension/CentralAngleTemporaryDimensionContext.h"
#include "Dimension/RadiusTemporaryDimensionContext.h"
#include "Dimension/RectangleTemporaryDimensionContext.h"
#include "Dimension/RotationTemporaryDimensionContext.h"
#include "Support/TestValues.h"
#include "TemporaryDimensionHandlersImpl/HandlerFixture.h"

#include <algorithm>

namespace vesk::test
{

/// When the text of a field is selected as the field is shown.
enum class Selected
{
    Never,
    InAnOpenEditor, ///< Not in one that is just being opened.
    Always,
};

/// What is expected of one value of a kind.
struct FieldRules
{
    const char* name;
    InputState state;
    int decimals;
    int returnKind;
    int tabKind;
    Selected selected;
    bool isOpenedWithText; ///< An editor being opened always shows the given text.
    Intervald range;       ///< The range to which tests restrict what is accepted.
    void (*pNarrow)(ITemporaryDimensionContext&, const Intervald&);

    /// The value that tests show as the current one.
    double ShownValue() const { return 10.0 + int(state) + 0.98765; }
    QString ShownText() const { return QString::number(ShownValue(), 'f', decimals); }
};

/// What a kind does with keys other than digits, Return and Enter; flags of a set.
enum KeyRule : unsigned
{
    OpensWithLetters = 1, ///< And, where Tab switches, with Shift and comma.
    OpensWithMinus = 2,
    CommitsWithSpace = 4,
    SwitchesWithTab = 8,
    HandsEscapeOn = 16, ///< To the view.
};

/// What is expected of a kind of handler, stated independently for the tests.
struct KindRules
{
    const char* name;
    std::string handler;
    const wchar_t* wrongContext;
    const wchar_t* wrongState;
    std::vector<FieldRules> fields;
    int start; ///< The field that the first key opens.
    unsigned keys;
    OwnerPtr<ITemporaryDimensionContext> (*pCreateContext)();

    bool Has(KeyRule rule) const { return (keys & rule) != 0; }

    /// The name under which an operation of the kind reports.
    std::string NameOf(const char* operation) const { return handler + "::" + operation; }
    InputState StartState() const { return fields[std::size_t(start)].state; }
    bool HasState(InputState state) const
    {
        return std::any_of(fields.begin(), fields.end(),
                           [state](const FieldRules& field) { return field.state == state; });
    }

    /// Sets the shown value of every field.
    void ShowValuesIn(TemporaryDimensionData& data) const
    {
        for (const FieldRules& field : fields)
            data[field.state].value = field.ShownValue();
    }
};

template <typename Context>
void NarrowFirst(ITemporaryDimensionContext& context, const Intervald& range)
{
    static_cast<Context&>(context).SetFirstValueRange(range);
}

template <typename Context>
void NarrowSecond(ITemporaryDimensionContext& context, const Intervald& range)
{
    static_cast<Context&>(context).SetSecondValueRange(range);
}

template <bool isLengthEnabled, bool isAngleEnabled>
OwnerPtr<ITemporaryDimensionContext> CreateLinear()
{
    return CreateLinearContext(isLengthEnabled, isAngleEnabled);
}

template <bool isCentralAngleShown>
OwnerPtr<ITemporaryDimensionContext> CreateRadius()
{
    auto opContext = MakeOwner<RadiusTemporaryDimensionContext>(
        Coordinate3d(), Vector3d(0, 0, 0), Vector3d(30, 40, 0), Vector3d(40, 10, 0));
    opContext->SetCentralAngleShown(isCentralAngleShown);
    return opContext;
}

inline OwnerPtr<ITemporaryDimensionContext> CreateCentralAngle()
{
    return MakeOwner<CentralAngleTemporaryDimensionContext>(Coordinate3d(), Vector3d(0, 0, 0),
                                                            Vector3d(30, 0, 0), Vector3d(0, 30, 0),
                                                            Vector3d(0, 50, 0));
}

inline OwnerPtr<ITemporaryDimensionContext> CreateRectangle()
{
    return MakeOwner<RectangleTemporaryDimensionContext>(Coordinate3d(), Vector3d(0, 0, 0),
                                                         Vector3d(30, 20, 0));
}

inline OwnerPtr<ITemporaryDimensionContext> CreateRotation()
{
    return MakeOwner<RotationTemporaryDimensionContext>(Coordinate3d(), Vector3d(0, 0, 0),
                                                        Vector3d(30, 0, 0), Vector3d(0, 30, 0));
}

/// The values of the kinds. Where text that is not a number counts as 0, the range excludes 0.
// clang-format off
namespace Field
{

constexpr FieldRules Length{"length", InputState::IS_Length, 3, 8, 1,
    Selected::InAnOpenEditor, true, {0, 10}, &NarrowFirst<LinearTemporaryDimensionContext>};
constexpr FieldRules Angle{"angle", InputState::IS_Angle, 2, 9, 2,
    Selected::Never, false, {-45, 45}, &NarrowSecond<LinearTemporaryDimensionContext>};
constexpr FieldRules AngleBesideLength{"angle", InputState::IS_Angle, 2, 9, 2,
    Selected::Always, false, {-45, 45}, &NarrowSecond<LinearTemporaryDimensionContext>};
constexpr FieldRules Radius{"radius", InputState::IS_Radius, 3, 10, 0,
    Selected::InAnOpenEditor, true, {5, 10}, &NarrowFirst<RadiusTemporaryDimensionContext>};
constexpr FieldRules RadiusBesideAngle{"radius", InputState::IS_Radius, 3, 11, 0,
    Selected::InAnOpenEditor, true, {5, 10}, &NarrowFirst<RadiusTemporaryDimensionContext>};
constexpr FieldRules CentralAngle{"central angle", InputState::IS_CentralAngle, 2, 12, 0,
    Selected::InAnOpenEditor, false, {-45, 45},
    &NarrowSecond<CentralAngleTemporaryDimensionContext>};
constexpr FieldRules Rotation{"angle", InputState::IS_CentralAngle, 2, 12, 0,
    Selected::InAnOpenEditor, false, {-45, 45}, &NarrowSecond<RotationTemporaryDimensionContext>};
constexpr FieldRules Width{"width", InputState::IS_Width, 3, 13, 6,
    Selected::InAnOpenEditor, true, {0, 10}, &NarrowFirst<RectangleTemporaryDimensionContext>};
constexpr FieldRules Height{"height", InputState::IS_Height, 3, 14, 7,
    Selected::Always, false, {0, 10}, &NarrowFirst<RectangleTemporaryDimensionContext>};

}
// clang-format on

/// The five kinds, and what changes with a context's flags.
inline const std::vector<KindRules>& AllKinds()
{
    static const std::string linear = "vesk::LinearTemporaryDimensionHandler";
    static const std::string radius = "vesk::RadiusTemporaryDimensionHandler";
    static const wchar_t* linearState = L"m_InputState怎么不是IS_Length或IS_Angle?";
    static const wchar_t* radiusState = L"m_InputState怎么不是IS_Radius?";
    // clang-format off
    static const std::vector<KindRules> kinds{
        {"linear", linear, L"pLinearCtx为空", linearState,
         {Field::Length, Field::AngleBesideLength}, 0,
         OpensWithLetters | OpensWithMinus | CommitsWithSpace | SwitchesWithTab,
         &CreateLinear<true, true>},
        {"linear, length only", linear, L"pLinearCtx为空", linearState,
         {Field::Length, Field::Angle}, 0,
         OpensWithLetters | OpensWithMinus | CommitsWithSpace,
         &CreateLinear<true, false>},
        {"linear, angle only", linear, L"pLinearCtx为空", linearState,
         {Field::Length, Field::Angle}, 1,
         OpensWithLetters | OpensWithMinus | CommitsWithSpace,
         &CreateLinear<false, true>},
        {"radius", radius, L"pRadiusCtx为空", radiusState, {Field::Radius}, 0,
         CommitsWithSpace | HandsEscapeOn,
         &CreateRadius<false>},
        {"radius with central angle", radius, L"pRadiusCtx为空", radiusState,
         {Field::RadiusBesideAngle}, 0,
         CommitsWithSpace | HandsEscapeOn,
         &CreateRadius<true>},
        {"central angle", "vesk::CentralAngleTemporaryDimensionHandler", L"pCentralAngleCtx为空",
         L"m_InputState怎么不是IS_CentralAngle?", {Field::CentralAngle}, 0,
         OpensWithMinus | HandsEscapeOn,
         &CreateCentralAngle},
        {"rectangle", "vesk::RectangleTemporaryDimensionHandler", L"pRectangleCtx为空",
         L"m_enInputState怎么不是IS_Width或IS_Height?",
         {Field::Width, Field::Height}, 0,
         CommitsWithSpace | SwitchesWithTab | HandsEscapeOn,
         &CreateRectangle},
        {"rotation", "vesk::RotationTemporaryDimensionHandler", L"pRotationCtx为空",
         L"m_InputState怎么不是CentralAngle?", {Field::Rotation}, 0,
         OpensWithMinus | CommitsWithSpace | HandsEscapeOn,
         &CreateRotation},
    };
    // clang-format on
    return kinds;
}

inline bool IsAnyKind(const KindRules&)
{
    return true;
}

/// Adds a row for each kind, for FETCH_KIND.
inline void AddKindRows(bool (*pIsWanted)(const KindRules&) = &IsAnyKind)
{
    QTest::addColumn<int>("kind");
    for (std::size_t i = 0; i < AllKinds().size(); ++i)
    {
        if (pIsWanted(AllKinds()[i]))
            QTest::newRow(AllKinds()[i].name) << int(i);
    }
}

}

/// The kind of the current row.
#define FETCH_KIND(name)                                                                           \
    QFETCH(int, kind);                                                                             \
    const KindRules& name = AllKinds()[std::size_t(kind)]
