#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/RectangleTemporaryDimensionHandler.h"

#include "Dimension/RectangleTemporaryDimensionContext.h"
#include "Dimension/TemporaryDimensionCommons.h"
#include "Graphics/IGraphicsNode.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/HandlerDrawing.h"

namespace vesk
{
namespace
{

constexpr DimensionKind RectangleKind = [] {
    DimensionKind kind;
    kind.fields[0] = {InputState::IS_Width,          ValueSlot::First,
                      FieldRule::OpenedByKey,        ActionViewInput::WidthCommitted,
                      ActionViewInput::WidthEntered, InputState::IS_Height};
    kind.fields[1] = {InputState::IS_Height,          ValueSlot::First,
                      FieldRule::ReachedByTab,        ActionViewInput::HeightCommitted,
                      ActionViewInput::HeightEntered, InputState::IS_Width};
    kind.start = InputState::IS_Width;
    kind.wrongState = L"m_enInputState怎么不是IS_Width或IS_Height?";
    kind.switchesWithTab = true;
    return kind;
}();

}

OwnerPtr<IGraphicsNodeGroup>
RectangleTemporaryDimensionHandler::GenerateGraphics(const ITemporaryDimensionContext* pContext)
{
    const auto* pRectangle = dynamic_cast<const RectangleTemporaryDimensionContext*>(pContext);
    HandlerDrawing drawing = HandlerDrawing::Begin(
        m_viewId, pContext, pRectangle != nullptr,
        "vesk::RectangleTemporaryDimensionHandler::GenerateGraphics", L"pRectangleCtx为空");
    if (!drawing.pixel.has_value())
        return std::move(drawing.opGroup);

    drawing.opGroup->AddChild(TemporaryDimensionCommons::GenerateWidthDimension(
        pRectangle->GetFirstCorner(), pRectangle->GetOppositeCorner(), pRectangle->GetCoordinate(),
        m_InputState, m_style, *drawing.pixel, m_data));
    drawing.opGroup->AddChild(TemporaryDimensionCommons::GenerateHeightDimension(
        pRectangle->GetFirstCorner(), pRectangle->GetOppositeCorner(), pRectangle->GetCoordinate(),
        m_InputState, m_style, *drawing.pixel, m_data));
    return std::move(drawing.opGroup);
}

bool RectangleTemporaryDimensionHandler::OnKeyDown(int virtualKey, bool isCtrl, bool isAlt,
                                                   bool isShift)
{
    return SendViewKey(RectangleKind, virtualKey, ToQtModifiers(isCtrl, isAlt, isShift));
}

void RectangleTemporaryDimensionHandler::ShowInputWidget(InputState state, bool editorReady,
                                                         bool useGivenText, std::wstring text)
{
    ShowField(RectangleKind, "vesk::RectangleTemporaryDimensionHandler::ShowInputWidget",
              {state, editorReady, useGivenText, std::move(text)});
}

bool RectangleTemporaryDimensionHandler::event(QEvent* pEvent)
{
    return HandleEvent(pEvent, RectangleKind, "vesk::RectangleTemporaryDimensionHandler::event");
}

bool RectangleTemporaryDimensionHandler::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    return FilterEditorEvent(pWatched, pEvent,
                             {RectangleKind,
                              "vesk::RectangleTemporaryDimensionHandler::eventFilter",
                              [this] { OnEditorTabPressed(); }});
}

void RectangleTemporaryDimensionHandler::OnEditorReturnPressed()
{
    CommitValue(RectangleKind, "vesk::RectangleTemporaryDimensionHandler::OnEditorReturnPressed");
}

void RectangleTemporaryDimensionHandler::OnEditorTabPressed()
{
    CommitValueAndSwitch(RectangleKind,
                         "vesk::RectangleTemporaryDimensionHandler::OnEditorTabPressed");
}

}
