#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/LinearTemporaryDimensionHandler.h"

#include "Dimension/LinearTemporaryDimensionContext.h"
#include "Dimension/TemporaryDimensionCommons.h"
#include "Geometry/Constants.h"
#include "Graphics/IGraphicsNode.h"
#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/HandlerDrawing.h"

#include <QKeyEvent>

namespace vesk
{
namespace
{

DimensionKind MakeKind(bool isLengthEnabled, bool isAngleEnabled)
{
    DimensionKind kind;
    kind.fields = {
        {{InputState::IS_Length, ValueSlot::First, FieldRule::OpenedByKey,
          ActionViewInput::LengthCommitted, ActionViewInput::LengthEntered, InputState::IS_Angle},
         {InputState::IS_Angle, ValueSlot::Second, FieldRule::ReachedByTab,
          ActionViewInput::AngleCommitted, ActionViewInput::AngleEntered, InputState::IS_Length}}};
    const bool isAngleOnly = isAngleEnabled && !isLengthEnabled;
    kind.start = isAngleOnly ? InputState::IS_Angle : InputState::IS_Length;
    kind.wrongState = L"m_InputState怎么不是IS_Length或IS_Angle?";
    kind.openingKeys = OpeningKeys::AllCharacters;
    kind.hasKeyText = true;
    kind.switchesWithTab = isLengthEnabled && isAngleEnabled;
    kind.handsEscapeOn = false;
    return kind;
}

}

OwnerPtr<IGraphicsNodeGroup>
LinearTemporaryDimensionHandler::GenerateGraphics(const ITemporaryDimensionContext* pContext)
{
    const auto* pLinear = dynamic_cast<const LinearTemporaryDimensionContext*>(pContext);
    if (pLinear != nullptr && Vector3dUtils::IsEqual(pLinear->GetStartPoint(),
                                                     pLinear->GetEndPoint(), Constants::DOUBLE_EPS))
        return HandlerDrawing::CreateGroup();
    HandlerDrawing drawing = HandlerDrawing::Begin(
        m_viewId, pContext, pLinear != nullptr,
        "vesk::LinearTemporaryDimensionHandler::GenerateGraphics", L"pLinearCtx为空");
    if (!drawing.pixel.has_value())
        return std::move(drawing.opGroup);

    if (m_isLengthEnabled)
        drawing.opGroup->AddChild(TemporaryDimensionCommons::GenerateLengthDimension(
            pLinear->GetStartPoint(), pLinear->GetEndPoint(), pLinear->GetCoordinate(),
            m_InputState, m_style, *drawing.pixel, m_data));
    if (m_isAngleEnabled)
        drawing.opGroup->AddChild(TemporaryDimensionCommons::GenerateAngleDimension(
            pLinear->GetStartPoint(), pLinear->GetEndPoint(), pLinear->GetCoordinate(),
            m_InputState, m_style, *drawing.pixel, m_data));
    return std::move(drawing.opGroup);
}

bool LinearTemporaryDimensionHandler::OnKeyDown(int virtualKey, bool isCtrl, bool isAlt,
                                                bool isShift)
{
    // Alt+P opens a menu of the host.
    if (isAlt && virtualKey == 'P')
        return false;
    return SendViewKey(GetKind(), virtualKey, ToQtModifiers(isCtrl, isAlt, isShift));
}

bool LinearTemporaryDimensionHandler::UpdateConfig(const ITemporaryDimensionContext* pContext)
{
    if (!TemporaryDimensionHandler::UpdateConfig(pContext))
        return false;
    const auto* pLinear = dynamic_cast<const LinearTemporaryDimensionContext*>(pContext);
    if (!Check(pLinear != nullptr, VESK_SITE("vesk::LinearTemporaryDimensionHandler::UpdateConfig",
                                             L"pLinearCtx为空。")))
        return false;

    m_isLengthEnabled = pLinear->IsLengthEnabled();
    m_isAngleEnabled = pLinear->IsAngleEnabled();
    return true;
}

void LinearTemporaryDimensionHandler::ShowInputWidget(InputState state, bool editorReady,
                                                      bool useGivenText, std::wstring text)
{
    ShowField(GetKind(), "vesk::LinearTemporaryDimensionHandler::ShowInputWidget",
              {state, editorReady, useGivenText, std::move(text)});
}

bool LinearTemporaryDimensionHandler::event(QEvent* pEvent)
{
    constexpr char Function[] = "vesk::LinearTemporaryDimensionHandler::event";
    const QPointer<LinearTemporaryDimensionHandler> pSelf(this);
    // Reported for every key, whatever it does. The report may run an event loop.
    if (pEvent->type() == QEvent::KeyPress && dynamic_cast<QKeyEvent*>(pEvent) != nullptr)
        Check(m_isLengthEnabled || m_isAngleEnabled,
              VESK_SITE(Function, L"无法设置EnInputState的类型，将按IS_Length设置"));
    return pSelf != nullptr && HandleEvent(pEvent, GetKind(), Function);
}

bool LinearTemporaryDimensionHandler::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    return FilterEditorEvent(pWatched, pEvent,
                             {GetKind(), "vesk::LinearTemporaryDimensionHandler::eventFilter",
                              [this] { OnEditorTabPressed(); }});
}

void LinearTemporaryDimensionHandler::OnEditorReturnPressed()
{
    CommitValue(GetKind(), "vesk::LinearTemporaryDimensionHandler::OnEditorReturnPressed");
}

void LinearTemporaryDimensionHandler::OnEditorTabPressed()
{
    CommitValueAndSwitch(GetKind(), "vesk::LinearTemporaryDimensionHandler::OnEditorTabPressed");
}

DimensionKind LinearTemporaryDimensionHandler::GetKind() const
{
    return MakeKind(m_isLengthEnabled, m_isAngleEnabled);
}

}
