#pragma once

#include "Foundation/HostExport.h"
#include "Foundation/OwnerPtr.h"
#include "Geometry/Vector3d.h"

#include <string>
#include <vector>

namespace vesk
{

/// What a node represents; a view chooses colour and pen by it, to suit its background.
enum class GraphicsRole
{
    RubberBand,      ///< What the running action would draw now.
    Dimension,       ///< A provisional dimension.
    ActiveDimension, ///< The dimension whose value is being typed.
    LockedDimension, ///< A dimension whose value is locked.
};

class IGraphicsNodeGroup;
class IGraphicsLine;
class IGraphicsArc;
class IGraphicsText;

/// Visits each node of a group, depth first, in the order in which they were added.
class VESK_HOST_API IGraphicsNodeVisitor
{
public:
    virtual ~IGraphicsNodeVisitor() = default;

    virtual void Visit(const IGraphicsLine& line) = 0;
    virtual void Visit(const IGraphicsArc& arc) = 0;
    virtual void Visit(const IGraphicsText& text) = 0;
};

/// One piece of graphics in world coordinates.
class VESK_HOST_API IGraphicsNode
{
public:
    virtual ~IGraphicsNode() = default;

    virtual void Accept(IGraphicsNodeVisitor& visitor) const = 0;
};

/// A list of nodes, which it owns.
class VESK_HOST_API IGraphicsNodeGroup : public IGraphicsNode
{
public:
    static OwnerPtr<IGraphicsNodeGroup> Create();

    /// Adds a node at the end; an empty pointer is ignored.
    virtual void AddChild(OwnerPtr<IGraphicsNode> opChild) = 0;
    virtual int GetChildCount() const = 0;

    /// The child at `index`, null if out of range. Not owned.
    virtual const IGraphicsNode* GetChild(int index) const = 0;

    /// Whether a view may pick the group; initially true.
    virtual void SetPickable(bool isPickable) = 0;
    virtual bool IsPickable() const = 0;
};

/// A straight line between two world points.
class VESK_HOST_API IGraphicsLine : public IGraphicsNode
{
public:
    static OwnerPtr<IGraphicsLine> Create(const Vector3d& start, const Vector3d& end,
                                          GraphicsRole role);

    virtual const Vector3d& GetStart() const = 0;
    virtual const Vector3d& GetEnd() const = 0;
    virtual GraphicsRole GetRole() const = 0;
};

/// A circular arc: it starts at `centre + xAxis * radius` and sweeps `sweep` radians from the x
/// axis towards the y axis (orthogonal unit vectors).
class VESK_HOST_API IGraphicsArc : public IGraphicsNode
{
public:
    static OwnerPtr<IGraphicsArc> Create(const Vector3d& centre, const Vector3d& xAxis,
                                         const Vector3d& yAxis, double radius, double sweep,
                                         GraphicsRole role);

    virtual const Vector3d& GetCentre() const = 0;
    virtual const Vector3d& GetXAxis() const = 0;
    virtual const Vector3d& GetYAxis() const = 0;
    virtual double GetRadius() const = 0;
    virtual double GetSweep() const = 0;
    virtual GraphicsRole GetRole() const = 0;
};

/// A text centred on a world point, upright on the screen in the view's own font size.
class VESK_HOST_API IGraphicsText : public IGraphicsNode
{
public:
    static OwnerPtr<IGraphicsText> Create(const Vector3d& position, const std::wstring& text,
                                          GraphicsRole role);

    virtual const Vector3d& GetPosition() const = 0;
    virtual const std::wstring& GetText() const = 0;
    virtual GraphicsRole GetRole() const = 0;
};

}
