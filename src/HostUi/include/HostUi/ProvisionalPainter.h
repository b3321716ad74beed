#pragma once

#include "Graphics/IGraphicsNode.h"
#include "HostUi/HostUiExport.h"

class QPainter;
class QPalette;
class QPointF;

namespace vesk
{

class IModelView;

/// Paints graphics nodes into a view, each role in a colour that stands out from the background:
/// what an action would draw now, and the provisional dimensions.
class VESK_HOST_UI_API ProvisionalPainter final : public IGraphicsNodeVisitor
{
public:
    /// The arguments are not owned and outlive this. The background has the palette's Base colour.
    ProvisionalPainter(QPainter& painter, const IModelView& modelView, const QPalette& palette);

    void Visit(const IGraphicsLine& line) override;
    void Visit(const IGraphicsArc& arc) override;
    void Visit(const IGraphicsText& text) override;

private:
    void SetPen(GraphicsRole role);

    QPainter& m_painter;
    const IModelView& m_modelView;
    const QPalette& m_palette;
};

}
