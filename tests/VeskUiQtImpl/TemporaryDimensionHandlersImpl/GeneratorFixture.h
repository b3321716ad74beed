#pragma once

#include "TemporaryDimensionHandlersImpl/GeneratorRecorder.h"
#include "TemporaryDimensionHandlersImpl/KindFixture.h"

#include "HostUi/LineEditValidateHelper.h"

#include <QMetaMethod>

namespace vesk::test
{

VESK_EXPOSE(HandlerStyle, TemporaryDimensionStyle, TemporaryDimensionHandler, m_style)

/// A plane that is not the world's.
inline Coordinate3d TiltedPlane()
{
    return {Vector3d(1, 2, 3), Vector3d(0, 1, 0), Vector3d(0, 0, 1)};
}

/// A handler of any kind, what it has generated, and an action that takes its values.
struct GeneratorFixture : KindFixture
{
    explicit GeneratorFixture(OwnerPtr<ITemporaryDimensionContext> opGiven)
        : KindFixture(std::move(opGiven))
    {
        host.BeginAction();
        host.view.GetCamera().SetWorldPerPixel(0.25);
        redrawCountAtStart = host.view.GetRedrawCount();
    }

    /// How often the handler had the host refresh the view.
    int RefreshCount() const { return host.view.GetRedrawCount() - redrawCountAtStart; }

    /// Whether the handler's own things went into a call, and TiltedPlane().
    bool IsOwnCall(const GeneratorCall& call) const
    {
        const Coordinate3d plane = TiltedPlane();
        return call.coordinate.GetOrigin() == plane.GetOrigin() &&
               call.coordinate.GetX() == plane.GetX() && call.coordinate.GetY() == plane.GetY() &&
               call.state == State() && call.pStyle == &(Handler().*MemberOf(HandlerStyle())) &&
               call.pixel == 0.25 && call.pData == &Data();
    }

    /// The names of the handler's own slots.
    QStringList SlotNames() const
    {
        const QMetaObject& meta = *Object().metaObject();
        QStringList names;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        {
            if (meta.method(i).methodType() == QMetaMethod::Slot)
                names << QString::fromLatin1(meta.method(i).methodSignature());
        }
        return names;
    }

    bool IsValidatedLive() const
    {
        return Object().findChild<LineEditValidateHelper*>() != nullptr;
    }

    GeneratorRecorder recorder;
    int redrawCountAtStart;
};

}
