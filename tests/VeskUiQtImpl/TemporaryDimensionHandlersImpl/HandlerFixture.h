#pragma once

#include "Dimension/LinearTemporaryDimensionContext.h"
#include "TemporaryDimensionHandlersImpl/KindFixture.h"

namespace vesk::test
{

constexpr char LinearClass[] = "vesk::LinearTemporaryDimensionHandler::";

/// A segment of length 50 and angle 53.13 degrees.
inline OwnerPtr<ITemporaryDimensionContext> CreateLinearContext(bool isLengthEnabled,
                                                                bool isAngleEnabled)
{
    auto opContext = MakeOwner<LinearTemporaryDimensionContext>(Coordinate3d(), Vector3d(0, 0, 0),
                                                                Vector3d(30, 40, 0));
    opContext->SetLengthEnabled(isLengthEnabled);
    opContext->SetAngleEnabled(isAngleEnabled);
    return opContext;
}

/// A handler for a segment.
struct HandlerFixture : KindFixture
{
    explicit HandlerFixture(bool isLengthEnabled = true, bool isAngleEnabled = true)
        : KindFixture(CreateLinearContext(isLengthEnabled, isAngleEnabled)),
          context(static_cast<LinearTemporaryDimensionContext&>(*opContext))
    {}

    /// Opens the length with a text, as if it had been typed.
    void TypeLength(const QString& text) { Type(InputState::IS_Length, text); }

    LinearTemporaryDimensionContext& context;
};

}
