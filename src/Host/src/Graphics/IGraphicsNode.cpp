#include "Graphics/IGraphicsNode.h"

#include <cstddef>
#include <utility>

namespace vesk
{

namespace
{

class GraphicsNodeGroup final : public IGraphicsNodeGroup
{
public:
    void Accept(IGraphicsNodeVisitor& visitor) const override
    {
        for (const OwnerPtr<IGraphicsNode>& opChild : m_children)
            opChild->Accept(visitor);
    }

    void AddChild(OwnerPtr<IGraphicsNode> opChild) override
    {
        if (opChild != nullptr)
            m_children.push_back(std::move(opChild));
    }

    int GetChildCount() const override { return static_cast<int>(m_children.size()); }

    const IGraphicsNode* GetChild(int index) const override
    {
        if (index < 0 || index >= GetChildCount())
            return nullptr;
        return m_children[static_cast<std::size_t>(index)].Get();
    }

    void SetPickable(bool isPickable) override { m_isPickable = isPickable; }
    bool IsPickable() const override { return m_isPickable; }

private:
    std::vector<OwnerPtr<IGraphicsNode>> m_children;
    bool m_isPickable = true;
};

class GraphicsLine final : public IGraphicsLine
{
public:
    GraphicsLine(const Vector3d& start, const Vector3d& end, GraphicsRole role)
        : m_start(start), m_end(end), m_role(role)
    {}

    void Accept(IGraphicsNodeVisitor& visitor) const override { visitor.Visit(*this); }
    const Vector3d& GetStart() const override { return m_start; }
    const Vector3d& GetEnd() const override { return m_end; }
    GraphicsRole GetRole() const override { return m_role; }

private:
    Vector3d m_start;
    Vector3d m_end;
    GraphicsRole m_role;
};

class GraphicsArc final : public IGraphicsArc
{
public:
    GraphicsArc(const Vector3d& centre, const Vector3d& xAxis, const Vector3d& yAxis, double radius,
                double sweep, GraphicsRole role)
        : m_centre(centre), m_xAxis(xAxis), m_yAxis(yAxis), m_radius(radius), m_sweep(sweep),
          m_role(role)
    {}

    void Accept(IGraphicsNodeVisitor& visitor) const override { visitor.Visit(*this); }
    const Vector3d& GetCentre() const override { return m_centre; }
    const Vector3d& GetXAxis() const override { return m_xAxis; }
    const Vector3d& GetYAxis() const override { return m_yAxis; }
    double GetRadius() const override { return m_radius; }
    double GetSweep() const override { return m_sweep; }
    GraphicsRole GetRole() const override { return m_role; }

private:
    Vector3d m_centre;
    Vector3d m_xAxis;
    Vector3d m_yAxis;
    double m_radius;
    double m_sweep;
    GraphicsRole m_role;
};

class GraphicsText final : public IGraphicsText
{
public:
    GraphicsText(const Vector3d& position, const std::wstring& text, GraphicsRole role)
        : m_position(position), m_text(text), m_role(role)
    {}

    void Accept(IGraphicsNodeVisitor& visitor) const override { visitor.Visit(*this); }
    const Vector3d& GetPosition() const override { return m_position; }
    const std::wstring& GetText() const override { return m_text; }
    GraphicsRole GetRole() const override { return m_role; }

private:
    Vector3d m_position;
    std::wstring m_text;
    GraphicsRole m_role;
};

}

OwnerPtr<IGraphicsNodeGroup> IGraphicsNodeGroup::Create()
{
    return MakeOwner<GraphicsNodeGroup>();
}

OwnerPtr<IGraphicsLine> IGraphicsLine::Create(const Vector3d& start, const Vector3d& end,
                                              GraphicsRole role)
{
    return MakeOwner<GraphicsLine>(start, end, role);
}

OwnerPtr<IGraphicsArc> IGraphicsArc::Create(const Vector3d& centre, const Vector3d& xAxis,
                                            const Vector3d& yAxis, double radius, double sweep,
                                            GraphicsRole role)
{
    return MakeOwner<GraphicsArc>(centre, xAxis, yAxis, radius, sweep, role);
}

OwnerPtr<IGraphicsText> IGraphicsText::Create(const Vector3d& position, const std::wstring& text,
                                              GraphicsRole role)
{
    return MakeOwner<GraphicsText>(position, text, role);
}

}
