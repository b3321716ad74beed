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

    /// Called for a straight line, which is valid only during the call.
    virtual void Visit(const IGraphicsLine& line) = 0;

    /// Called for an arc, which is valid only during the call.
    virtual void Visit(const IGraphicsArc& arc) = 0;

    /// Called for a text, which is valid only during the call.
    virtual void Visit(const IGraphicsText& text) = 0;
};

/// One piece of graphics in world coordinates.
class VESK_HOST_API IGraphicsNode
{
public:
    virtual ~IGraphicsNode() = default;

    /// Calls the visitor's operation for this kind of node; a group does so for each of its nodes.
    virtual void Accept(IGraphicsNodeVisitor& visitor) const = 0;
};

/// A list of nodes, which it owns.
class VESK_HOST_API IGraphicsNodeGroup : public IGraphicsNode
{
public:
    /// An empty group.
    static OwnerPtr<IGraphicsNodeGroup> Create();

    /// Adds a node at the end; an empty pointer is ignored.
    virtual void AddChild(OwnerPtr<IGraphicsNode> opChild) = 0;

    /// The number of nodes in this group itself.
    virtual int GetChildCount() const = 0;

    /// The child at `index`, null if out of range. Not owned.
    virtual const IGraphicsNode* GetChild(int index) const = 0;

    /// Whether a view may pick the group; initially true.
    virtual void SetPickable(bool isPickable) = 0;

    /// What was set last.
    virtual bool IsPickable() const = 0;
};

/// A straight line between two world points.
class VESK_HOST_API IGraphicsLine : public IGraphicsNode
{
public:
    /// A line in world coordinates.
    static OwnerPtr<IGraphicsLine> Create(const Vector3d& start, const Vector3d& end,
                                          GraphicsRole role);

    /// Where it begins, in world coordinates.
    virtual const Vector3d& GetStart() const = 0;

    /// Where it ends, in world coordinates.
    virtual const Vector3d& GetEnd() const = 0;

    /// What it represents.
    virtual GraphicsRole GetRole() const = 0;
};

/// A circular arc: it starts at `centre + xAxis * radius` and sweeps `sweep` radians from the x
/// axis towards the y axis (orthogonal unit vectors).
class VESK_HOST_API IGraphicsArc : public IGraphicsNode
{
public:
    /// An arc in world coordinates.
    static OwnerPtr<IGraphicsArc> Create(const Vector3d& centre, const Vector3d& xAxis,
                                         const Vector3d& yAxis, double radius, double sweep,
                                         GraphicsRole role);

    /// The centre, in world coordinates.
    virtual const Vector3d& GetCentre() const = 0;

    /// The direction in which the arc begins.
    virtual const Vector3d& GetXAxis() const = 0;

    /// The direction to which it turns from there.
    virtual const Vector3d& GetYAxis() const = 0;

    /// In world units.
    virtual double GetRadius() const = 0;

    /// In radians.
    virtual double GetSweep() const = 0;

    /// What it represents.
    virtual GraphicsRole GetRole() const = 0;
};

/// A text centred on a world point, upright on the screen in the view's own font size.
class VESK_HOST_API IGraphicsText : public IGraphicsNode
{
public:
    /// A text at a world point.
    static OwnerPtr<IGraphicsText> Create(const Vector3d& position, const std::wstring& text,
                                          GraphicsRole role);

    /// The centre of the text, in world coordinates.
    virtual const Vector3d& GetPosition() const = 0;

    /// What is written, in the user's language.
    virtual const std::wstring& GetText() const = 0;

    /// What it represents.
    virtual GraphicsRole GetRole() const = 0;
};

}
