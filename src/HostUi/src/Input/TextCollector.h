#pragma once

#include "Graphics/IGraphicsNode.h"

#include <QFontMetrics>
#include <QRect>

#include <vector>

class QWidget;

namespace vesk
{

class IModelView;
class IUiView;

/// The boxes of the provisional dimensions' texts in a view, in pixels of its widget.
std::vector<QRect> FindDimensionTexts(const IUiView& view, const QWidget& widget);

/// Finds the positions of the texts among graphics nodes in a view.
class TextCollector final : public IGraphicsNodeVisitor
{
public:
    /// The model view outlives the collector.
    TextCollector(const IModelView& modelView, const QFontMetrics& metrics);

    void Visit(const IGraphicsLine&) override {}
    void Visit(const IGraphicsArc&) override {}
    void Visit(const IGraphicsText& text) override;

    /// The box around a text, in the view's pixels.
    QRectF BoxOf(const IGraphicsText& text) const;

    const std::vector<QRect>& GetBoxes() const { return m_boxes; }

private:
    const IModelView& m_modelView;
    QFontMetrics m_metrics;
    std::vector<QRect> m_boxes;
};

}
