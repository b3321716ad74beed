#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/RotationTemporaryDimensionHandler.h"

#include "Dimension/RotationTemporaryDimensionContext.h"
#include "Dimension/TemporaryDimensionCommons.h"
#include "Graphics/IGraphicsNode.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/HandlerDrawing.h"

namespace vesk
{
namespace
{

constexpr DimensionKind RotationKind = [] {
    DimensionKind kind;
    kind.fields[0] = {InputState::IS_CentralAngle, ValueSlot::Second, FieldRule::StandsAlone,
                      ActionViewInput::CentralAngleCommitted};
    kind.start = InputState::IS_CentralAngle;
    kind.wrongState = L"m_InputState怎么不是CentralAngle?";
    kind.openingKeys = OpeningKeys::DigitsAndMinus;
    return kind;
}();

}

OwnerPtr<IGraphicsNodeGroup>
RotationTemporaryDimensionHandler::GenerateGraphics(const ITemporaryDimensionContext* pContext)
{
    const auto* pRotation = dynamic_cast<const RotationTemporaryDimensionContext*>(pContext);
    HandlerDrawing drawing = HandlerDrawing::Begin(
        m_viewId, pContext, pRotation != nullptr,
        "vesk::RotationTemporaryDimensionHandler::GenerateGraphics", L"pRotationCtx为空");
    if (!drawing.pixel.has_value())
        return std::move(drawing.opGroup);

    drawing.opGroup->AddChild(TemporaryDimensionCommonsUtils::GenerateRotationDimension(
        pRotation->GetCentre(), pRotation->GetFromPoint(), pRotation->GetToPoint(),
        pRotation->GetCoordinate(), m_InputState, m_style, *drawing.pixel, m_data));
    return std::move(drawing.opGroup);
}

bool RotationTemporaryDimensionHandler::OnKeyDown(int virtualKey, bool isCtrl, bool isAlt,
                                                  bool isShift)
{
    return SendViewKey(RotationKind, virtualKey, ToQtModifiers(isCtrl, isAlt, isShift));
}

void RotationTemporaryDimensionHandler::ShowInputWidget(InputState state, bool editorReady,
                                                        bool useGivenText, std::wstring text)
{
    ShowField(RotationKind, "vesk::RotationTemporaryDimensionHandler::ShowInputWidget",
              {state, editorReady, useGivenText, std::move(text)});
}

bool RotationTemporaryDimensionHandler::event(QEvent* pEvent)
{
    return HandleEvent(pEvent, RotationKind, "vesk::RotationTemporaryDimensionHandler::event");
}

bool RotationTemporaryDimensionHandler::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    return FilterEditorEvent(
        pWatched, pEvent,
        {RotationKind, "vesk::RotationTemporaryDimensionHandler::eventFilter", {}});
}

void RotationTemporaryDimensionHandler::OnEditorReturnPressed()
{
    CommitValue(RotationKind, "vesk::RotationTemporaryDimensionHandler::OnEditorReturnPressed");
}

}
