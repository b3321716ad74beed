#pragma once

#include "Dimension/CentralAngleTemporaryDimensionContext.h"
#include "Dimension/RadiusTemporaryDimensionContext.h"
#include "Dimension/RectangleTemporaryDimensionContext.h"
#include "Dimension/RotationTemporaryDimensionContext.h"
#include "TemporaryDimensionHandlersImpl/HandlerFixture.h"

#include <QtTest>

#include <algorithm>

namespace vesk::test
{

/// What is expected of one value of a kind.
struct FieldRules
{
    InputState state;
    int decimals;
    int returnKind;
    int tabKind;
    bool isSelectedByTheFirstKey;
};

/// What a kind does with keys beside digits, Return and Enter; together a set.
enum KeyRule : unsigned
{
    OpensWithLetters = 1, ///< And, where Tab switches, with Shift and comma.
    OpensWithMinus = 2,
    CommitsWithSpace = 4,
    SwitchesWithTab = 8,
    HandsEscapeOn = 16, ///< To the view.
};

/// What is expected of a kind of handler, told once more for the tests.
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
};

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

/// The five kinds, and what changes with a context's flags.
inline const std::vector<KindRules>& AllKinds()
{
    static const std::string linear = "vesk::LinearTemporaryDimensionHandler";
    static const std::string radius = "vesk::RadiusTemporaryDimensionHandler";
    static const wchar_t* linearState = L"m_InputState怎么不是IS_Length或IS_Angle?";
    static const wchar_t* radiusState = L"m_InputState怎么不是IS_Radius?";
    static const FieldRules length{InputState::IS_Length, 3, 8, 1, false};
    static const FieldRules angle{InputState::IS_Angle, 2, 9, 2, false};
    static const FieldRules angleBesideLength{InputState::IS_Angle, 2, 9, 2, true};
    static const FieldRules centralAngle{InputState::IS_CentralAngle, 2, 12, 0, false};
    // clang-format off
    static const std::vector<KindRules> kinds{
        {"linear", linear, L"pLinearCtx为空", linearState, {length, angleBesideLength}, 0,
         OpensWithLetters | OpensWithMinus | CommitsWithSpace | SwitchesWithTab,
         &CreateLinear<true, true>},
        {"linear, length only", linear, L"pLinearCtx为空", linearState, {length, angle}, 0,
         OpensWithLetters | OpensWithMinus | CommitsWithSpace,
         &CreateLinear<true, false>},
        {"linear, angle only", linear, L"pLinearCtx为空", linearState, {length, angle}, 1,
         OpensWithLetters | OpensWithMinus | CommitsWithSpace,
         &CreateLinear<false, true>},
        {"radius", radius, L"pRadiusCtx为空", radiusState,
         {{InputState::IS_Radius, 3, 10, 0, false}}, 0,
         CommitsWithSpace | HandsEscapeOn,
         &CreateRadius<false>},
        {"radius with central angle", radius, L"pRadiusCtx为空", radiusState,
         {{InputState::IS_Radius, 3, 11, 0, false}}, 0,
         CommitsWithSpace | HandsEscapeOn,
         &CreateRadius<true>},
        {"central angle", "vesk::CentralAngleTemporaryDimensionHandler", L"pCentralAngleCtx为空",
         L"m_InputState怎么不是IS_CentralAngle?", {centralAngle}, 0,
         OpensWithMinus | HandsEscapeOn,
         &CreateCentralAngle},
        {"rectangle", "vesk::RectangleTemporaryDimensionHandler", L"pRectangleCtx为空",
         L"m_enInputState怎么不是IS_Width或IS_Height?",
         {{InputState::IS_Width, 3, 13, 6, false}, {InputState::IS_Height, 3, 14, 7, true}}, 0,
         CommitsWithSpace | SwitchesWithTab | HandsEscapeOn,
         &CreateRectangle},
        {"rotation", "vesk::RotationTemporaryDimensionHandler", L"pRotationCtx为空",
         L"m_InputState怎么不是CentralAngle?", {centralAngle}, 0,
         OpensWithMinus | CommitsWithSpace | HandsEscapeOn,
         &CreateRotation},
    };
    // clang-format on
    return kinds;
}

/// Adds a row for each kind, for FETCH_KIND.
inline void AddKindRows(bool (*pIsWanted)(const KindRules&) = [](const KindRules&) { return true; })
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
