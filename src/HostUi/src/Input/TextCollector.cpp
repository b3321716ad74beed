#include "Input/TextCollector.h"

#include "Dimension/TemporaryDimensionMgr.h"
#include "HostUi/QtText.h"
#include "HostUi/ViewPixel.h"
#include "View/IModelView.h"
#include "View/IUiView.h"

#include <QWidget>

namespace vesk
{

std::vector<QRect> FindDimensionTexts(const IUiView& view, const QWidget& widget)
{
    const IGraphicsNodeGroup* pGraphics = TemporaryDimensionMgr::GetInstance()->GetGraphics();
    const IModelView* pModelView = view.GetModelView();
    if (pGraphics == nullptr || pModelView == nullptr)
        return {};
    TextCollector texts(*pModelView, widget.fontMetrics());
    pGraphics->Accept(texts);
    return texts.GetBoxes();
}

TextCollector::TextCollector(const IModelView& modelView, const QFontMetrics& metrics)
    : m_modelView(modelView), m_metrics(metrics)
{}

void TextCollector::Visit(const IGraphicsText& text)
{
    m_boxes.push_back(BoxOf(text).toAlignedRect());
}

QRectF TextCollector::BoxOf(const IGraphicsText& text) const
{
    constexpr double Padding = 3.0;
    QRectF box = m_metrics.boundingRect(ToQString(text.GetText()));
    box.moveCenter(ToPixel(m_modelView, text.GetPosition()));
    return box.adjusted(-Padding, -1.0, Padding, 1.0);
}

}
