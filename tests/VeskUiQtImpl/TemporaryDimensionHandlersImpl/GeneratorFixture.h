#pragma once

#include "TemporaryDimensionHandlersImpl/GeneratorRecorder.h"
#include "TemporaryDimensionHandlersImpl/KindFixture.h"

namespace vesk::test
{

VESK_EXPOSE(HandlerStyle, TemporaryDimensionStyle, TemporaryDimensionHandler, m_style)

/// A plane other than the world plane.
inline Coordinate3d TiltedPlane()
{
    return {Vector3d(1, 2, 3), Vector3d(0, 1, 0), Vector3d(0, 0, 1)};
}

/// A handler of any kind and what it generated.
struct GeneratorFixture : KindFixture
{
    explicit GeneratorFixture(OwnerPtr<ITemporaryDimensionContext> opGiven)
        : KindFixture(std::move(opGiven))
    {
        host.view.GetCamera().SetWorldPerPixel(0.25);
    }

    /// Whether a call was made with the handler's own objects and TiltedPlane().
    bool IsOwnCall(const GeneratorCall& call) const
    {
        const Coordinate3d plane = TiltedPlane();
        return call.coordinate.GetOrigin() == plane.GetOrigin() &&
               call.coordinate.GetX() == plane.GetX() && call.coordinate.GetY() == plane.GetY() &&
               call.state == State() && call.pStyle == &(Handler().*MemberOf(HandlerStyle())) &&
               call.pixel == 0.25 && call.pData == &Data();
    }

    GeneratorRecorder recorder;
};

}
