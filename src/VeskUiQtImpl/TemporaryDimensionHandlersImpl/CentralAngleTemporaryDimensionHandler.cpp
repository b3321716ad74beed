#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/CentralAngleTemporaryDimensionHandler.h"

#include "Dimension/CentralAngleTemporaryDimensionContext.h"
#include "Dimension/TemporaryDimensionCommons.h"
#include "Graphics/IGraphicsNode.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/HandlerDrawing.h"

namespace vesk
{
namespace
{

constexpr DimensionKind CentralAngleKind = [] {
    DimensionKind kind;
    kind.fields[0] = {InputState::IS_CentralAngle, ValueSlot::Second, FieldRule::StandsAlone,
                      ActionViewInput::CentralAngleCommitted};
    kind.start = InputState::IS_CentralAngle;
    kind.wrongState = L"m_InputState怎么不是IS_CentralAngle?";
    kind.openingKeys = OpeningKeys::DigitsAndMinus;
    kind.commitsWithSpace = false;
    return kind;
}();

}

OwnerPtr<IGraphicsNodeGroup>
CentralAngleTemporaryDimensionHandler::GenerateGraphics(const ITemporaryDimensionContext* pContext)
{
    const auto* pCentralAngle =
        dynamic_cast<const CentralAngleTemporaryDimensionContext*>(pContext);
    HandlerDrawing drawing = HandlerDrawing::Begin(
        m_viewId, pContext, pCentralAngle != nullptr,
        "vesk::CentralAngleTemporaryDimensionHandler::GenerateGraphics", L"pCentralAngleCtx为空");
    if (!drawing.pixel.has_value())
        return std::move(drawing.opGroup);

    drawing.opGroup->AddChild(
        TemporaryDimensionCommons::GenerateCentralAngleDimensionForCenterEndArc(
            pCentralAngle->GetCentre(), pCentralAngle->GetStartPoint(),
            pCentralAngle->GetEndPoint(), pCentralAngle->GetCursorPoint(), true,
            pCentralAngle->GetCoordinate(), m_InputState, m_style, *drawing.pixel, m_data));
    drawing.opGroup->AddChild(TemporaryDimensionCommons::GenerateRadiusDimensionForCenterEndArc(
        pCentralAngle->GetCentre(), pCentralAngle->GetStartPoint(), pCentralAngle->GetEndPoint(),
        true, pCentralAngle->GetCoordinate(), m_InputState, m_style, *drawing.pixel, m_data));
    return std::move(drawing.opGroup);
}

bool CentralAngleTemporaryDimensionHandler::OnKeyDown(int virtualKey, bool isCtrl, bool isAlt,
                                                      bool isShift)
{
    return SendViewKey(CentralAngleKind, virtualKey, ToQtModifiers(isCtrl, isAlt, isShift));
}

void CentralAngleTemporaryDimensionHandler::ShowInputWidget(InputState state, bool editorReady,
                                                            bool useGivenText, std::wstring text)
{
    ShowField(CentralAngleKind, "vesk::CentralAngleTemporaryDimensionHandler::ShowInputWidget",
              {state, editorReady, useGivenText, std::move(text)});
}

bool CentralAngleTemporaryDimensionHandler::event(QEvent* pEvent)
{
    return HandleEvent(pEvent, CentralAngleKind,
                       "vesk::CentralAngleTemporaryDimensionHandler::event");
}

bool CentralAngleTemporaryDimensionHandler::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    return FilterEditorEvent(
        pWatched, pEvent,
        {CentralAngleKind, "vesk::CentralAngleTemporaryDimensionHandler::eventFilter", {}});
}

void CentralAngleTemporaryDimensionHandler::OnEditorReturnPressed()
{
    CommitValue(CentralAngleKind,
                "vesk::CentralAngleTemporaryDimensionHandler::OnEditorReturnPressed");
}

}
