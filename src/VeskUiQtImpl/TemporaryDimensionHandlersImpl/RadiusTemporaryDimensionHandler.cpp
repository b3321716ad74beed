#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/RadiusTemporaryDimensionHandler.h"

#include "Dimension/RadiusTemporaryDimensionContext.h"
#include "Dimension/TemporaryDimensionCommons.h"
#include "Geometry/Constants.h"
#include "Graphics/IGraphicsNode.h"
#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/HandlerDrawing.h"

#include <Eigen/Geometry>

namespace vesk
{
namespace
{

constexpr char GenerateFunction[] = "vesk::RadiusTemporaryDimensionHandler::GenerateGraphics";

DimensionKind MakeKind(bool isCentralAngleShown)
{
    DimensionKind kind;
    kind.fields[0] = {InputState::IS_Radius, ValueSlot::First, FieldRule::OpenedByKey,
                      isCentralAngleShown ? ActionViewInput::RadiusWithAngleCommitted
                                          : ActionViewInput::RadiusCommitted};
    kind.start = InputState::IS_Radius;
    kind.wrongState = L"m_InputState怎么不是IS_Radius?";
    kind.needsNumber = false;
    return kind;
}

/// Adds a radius line; returns false, with a warning, if it cannot be created.
bool AddLine(IGraphicsNodeGroup& group, const Vector3d& start, const Vector3d& end)
{
    OwnerPtr<IGraphicsLine> opLine = IGraphicsLine::Create(start, end, GraphicsRole::Dimension);
    if (!Check(opLine != nullptr, VESK_SITE(GenerateFunction, L"创建IGraphicsLine失败")))
        return false;
    group.AddChild(std::move(opLine));
    return true;
}

/// Whether an arc passes through the points: no two coincide, and they are not collinear. Collinear
/// points have no centre and so no angle about it.
bool HasCentre(const Vector3d& first, const Vector3d& second, const Vector3d& third)
{
    if (Vector3dUtils::IsEqual(first, second, Constants::DOUBLE_EPS) ||
        Vector3dUtils::IsEqual(first, third, Constants::DOUBLE_EPS) ||
        Vector3dUtils::IsEqual(second, third, Constants::DOUBLE_EPS))
        return false;
    const Vector3d direction = (second - first).normalized();
    return direction.cross(third - first).norm() > Constants::DOUBLE_EPS;
}

}

OwnerPtr<IGraphicsNodeGroup>
RadiusTemporaryDimensionHandler::GenerateGraphics(const ITemporaryDimensionContext* pContext)
{
    const auto* pRadius = dynamic_cast<const RadiusTemporaryDimensionContext*>(pContext);
    HandlerDrawing drawing = HandlerDrawing::Begin(m_viewId, pContext, pRadius != nullptr,
                                                   GenerateFunction, L"pRadiusCtx为空");
    if (!drawing.pixel.has_value())
        return std::move(drawing.opGroup);

    drawing.opGroup->AddChild(TemporaryDimensionCommons::GenerateRadiusDimensionFor3PtArc(
        pRadius->GetFirstPoint(), pRadius->GetSecondPoint(), pRadius->GetThirdPoint(),
        pRadius->GetCoordinate(), m_InputState, m_style, *drawing.pixel, m_data));
    if (m_isCentralAngleShown)
        DrawCentralAngle(*pRadius, drawing);
    return std::move(drawing.opGroup);
}

bool RadiusTemporaryDimensionHandler::OnKeyDown(int virtualKey, bool isCtrl, bool isAlt,
                                                bool isShift)
{
    return SendViewKey(GetKind(), virtualKey, ToQtModifiers(isCtrl, isAlt, isShift));
}

bool RadiusTemporaryDimensionHandler::UpdateConfig(const ITemporaryDimensionContext* pContext)
{
    if (!TemporaryDimensionHandler::UpdateConfig(pContext))
        return false;
    const auto* pRadius = dynamic_cast<const RadiusTemporaryDimensionContext*>(pContext);
    if (!Check(pRadius != nullptr, VESK_SITE("vesk::RadiusTemporaryDimensionHandler::UpdateConfig",
                                             L"pRadiusCtx为空。")))
        return false;

    m_isCentralAngleShown = pRadius->IsCentralAngleShown();
    return true;
}

void RadiusTemporaryDimensionHandler::ShowInputWidget(InputState state, bool editorReady,
                                                      bool useGivenText, std::wstring text)
{
    ShowField(GetKind(), "vesk::RadiusTemporaryDimensionHandler::ShowInputWidget",
              {state, editorReady, useGivenText, std::move(text)});
}

bool RadiusTemporaryDimensionHandler::event(QEvent* pEvent)
{
    return HandleEvent(pEvent, GetKind(), "vesk::RadiusTemporaryDimensionHandler::event");
}

bool RadiusTemporaryDimensionHandler::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    return FilterEditorEvent(pWatched, pEvent,
                             {GetKind(), "vesk::RadiusTemporaryDimensionHandler::eventFilter", {}});
}

void RadiusTemporaryDimensionHandler::OnEditorReturnPressed()
{
    CommitValue(GetKind(), "vesk::RadiusTemporaryDimensionHandler::OnEditorReturnPressed");
}

DimensionKind RadiusTemporaryDimensionHandler::GetKind() const
{
    return MakeKind(m_isCentralAngleShown);
}

/// The two radius lines, and the angle if there is one.
void RadiusTemporaryDimensionHandler::DrawCentralAngle(
    const RadiusTemporaryDimensionContext& context, HandlerDrawing& drawing)
{
    const Vector3d& first = context.GetFirstPoint();
    const Vector3d& second = context.GetSecondPoint();
    const Vector3d& third = context.GetThirdPoint();
    if (!AddLine(*drawing.opGroup, first, second) || !AddLine(*drawing.opGroup, first, third) ||
        !HasCentre(first, second, third))
        return;
    drawing.opGroup->AddChild(TemporaryDimensionCommons::GenerateCentralAngleDimensionFor3PtArc(
        first, second, third, context.GetCoordinate(), m_InputState, m_style, *drawing.pixel,
        m_data));
}

}
