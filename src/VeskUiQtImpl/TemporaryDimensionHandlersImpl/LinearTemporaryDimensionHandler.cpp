#include "TemporaryDimensionHandlersImpl/LinearTemporaryDimensionHandler.h"

#include "CheckSite.h"
#include "Dimension/LinearTemporaryDimensionContext.h"
#include "Dimension/TemporaryDimensionCommons.h"
#include "Geometry/Constants.h"
#include "Graphics/IGraphicsNode.h"
#include "TemporaryDimensionHandlersImpl/DimensionKeys.h"
#include "View/UiViewUtility.h"

#include <HostUi/QtText.h>

#include <QKeyEvent>

namespace vesk
{
namespace
{

constexpr std::array<DimensionField, 2> Fields{{
    {InputState::IS_Length, ValueSlot::First, ValueSlot::First, ActionViewInput::LengthCommitted,
     ActionViewInput::LengthEntered, InputState::IS_Angle},
    {InputState::IS_Angle, ValueSlot::Second, ValueSlot::Second, ActionViewInput::AngleCommitted,
     ActionViewInput::AngleEntered, InputState::IS_Length},
}};

constexpr OpeningKeys Keys{true, true};

constexpr wchar_t WrongState[] = L"m_InputState怎么不是IS_Length或IS_Angle?";

bool IsTakenFromView(int virtualKey)
{
    return IsDigitKey(virtualKey) || IsKeypadDigitKey(virtualKey) || IsLetterKey(virtualKey) ||
           virtualKey == VirtualKey::Comma || virtualKey == VirtualKey::Minus ||
           virtualKey == VirtualKey::KeypadMinus;
}

QString TextOf(int virtualKey)
{
    if (IsDigitKey(virtualKey) || IsLetterKey(virtualKey))
        return QString(QChar(virtualKey)).toLower();
    if (IsKeypadDigitKey(virtualKey))
        return QString::number(virtualKey - VirtualKey::Keypad0);
    return IsMinusKey(virtualKey) ? QStringLiteral("-") : QString();
}

}

OwnerPtr<IGraphicsNodeGroup>
LinearTemporaryDimensionHandler::GenerateGraphics(const ITemporaryDimensionContext* pContext)
{
    constexpr char Function[] = "vesk::LinearTemporaryDimensionHandler::GenerateGraphics";
    OwnerPtr<IGraphicsNodeGroup> opGroup = IGraphicsNodeGroup::Create();
    opGroup->SetPickable(false);
    if (!Check(pContext != nullptr, VESK_SITE(Function, L"pCtx为空")))
        return nullptr;
    const auto* pLinear = dynamic_cast<const LinearTemporaryDimensionContext*>(pContext);
    if (!Check(pLinear != nullptr, VESK_SITE(Function, L"pLinearCtx为空")))
        return opGroup;
    const Vector3d& start = pLinear->GetStartPoint();
    const Vector3d& end = pLinear->GetEndPoint();
    if (Vector3dUtils::IsEqual(start, end, Constants::DOUBLE_EPS))
        return opGroup;
    const IUiView* pView = FindDrawableView(Function);
    if (pView == nullptr)
        return opGroup;

    const double pixel = UiViewUtility::ComputeWorldWidthFromPixel(pView, 1);
    if (m_isLengthEnabled)
        opGroup->AddChild(TemporaryDimensionCommons::GenerateLengthDimension(
            start, end, pLinear->GetCoordinate(), m_InputState, m_style, pixel, m_data));
    if (m_isAngleEnabled)
        opGroup->AddChild(TemporaryDimensionCommons::GenerateAngleDimension(
            start, end, pLinear->GetCoordinate(), m_InputState, m_style, pixel, m_data));
    return opGroup;
}

bool LinearTemporaryDimensionHandler::OnKeyDown(int virtualKey, bool isCtrl, bool isAlt,
                                                bool isShift)
{
    if (!IsTakenFromView(virtualKey))
        return false;
    // Alt+P opens a menu of the host.
    if (isAlt && virtualKey == 'P')
        return false;
    return SendKey(virtualKey, ToQtModifiers(isCtrl, isAlt, isShift), TextOf(virtualKey));
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
    const DimensionField* pField = FindField(Fields, state);
    if (!Check(pField != nullptr,
               VESK_SITE("vesk::LinearTemporaryDimensionHandler::ShowInputWidget",
                         L"InputState输入非法!")))
        return;
    if (!BeginInput(state, editorReady))
        return;

    // A length is opened by its first character, after which the caret has to stay.
    const bool isLength = state == InputState::IS_Length;
    const bool isGivenText = useGivenText || (isLength && !editorReady);
    const bool isSelected = isLength ? editorReady : IsBothEnabled();
    ShowEditor(isGivenText ? ToQString(text) : FormatValue(*pField), isSelected);
}

bool LinearTemporaryDimensionHandler::event(QEvent* pEvent)
{
    if (pEvent->type() != QEvent::KeyPress)
        return HandleAsPlainObject(pEvent);
    const auto* pKeyEvent = dynamic_cast<QKeyEvent*>(pEvent);
    if (!Check(pKeyEvent != nullptr, VESK_SITE("vesk::LinearTemporaryDimensionHandler::event",
                                               L"难道pEvent不是键盘事件?")))
        return false;
    const InputState startState = GetStartState();
    if (IsInputting())
        return PassKeyOn(pEvent);

    const QPointer<LinearTemporaryDimensionHandler> pSelf(this);
    const bool isShift = pKeyEvent->modifiers().testFlag(Qt::ShiftModifier);
    const std::optional<QString> text = OpeningText(*pKeyEvent, Keys);
    if (IsCommaKey(pKeyEvent->key()) && IsBothEnabled() && isShift)
    {
        ShowInputWidget(InputState::IS_Angle, false, false, L"");
        return true;
    }
    if (text.has_value())
        ShowInputWidget(startState, false, true, ToWide(*text));
    if (text.has_value() && !IsMinusKey(pKeyEvent->key()))
        return true;
    // A minus opens the editor too and yet is not consumed.
    return pSelf != nullptr && PassKeyOn(pEvent);
}

bool LinearTemporaryDimensionHandler::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    EditorRules rules{"vesk::LinearTemporaryDimensionHandler::eventFilter", true, false, {}};
    if (IsBothEnabled())
        rules.onTab = [this] { OnEditorTabPressed(); };
    return FilterEditorEvent(pWatched, pEvent, rules);
}

void LinearTemporaryDimensionHandler::OnEditorReturnPressed()
{
    if (!HasEditorValue())
        return;
    EditorValue value = TakeEditorValue();
    const DimensionField* pField = FindField(Fields, m_InputState);
    if (!Check(
            pField != nullptr,
            VESK_SITE("vesk::LinearTemporaryDimensionHandler::OnEditorReturnPressed", WrongState)))
        return;
    if (!IsAccepted(value, *pField))
        return;

    value.record.kind = pField->returnKind;
    Commit(value.record);
}

void LinearTemporaryDimensionHandler::OnEditorTabPressed()
{
    if (!HasEditorValue())
        return;
    EditorValue value = TakeEditorValue();
    const DimensionField* pField = FindField(Fields, m_InputState);
    if (!Check(pField != nullptr,
               VESK_SITE("vesk::LinearTemporaryDimensionHandler::OnEditorTabPressed", WrongState)))
        return;
    if (!IsAccepted(value, *pField))
        return;

    value.record.kind = pField->tabKind;
    CommitAndSwitch(value.record, pField->next);
}

/// The field that the first typed character opens.
InputState LinearTemporaryDimensionHandler::GetStartState() const
{
    if (m_isLengthEnabled)
        return InputState::IS_Length;
    if (m_isAngleEnabled)
        return InputState::IS_Angle;
    Check(false, VESK_SITE("vesk::LinearTemporaryDimensionHandler::event",
                           L"无法设置EnInputState的类型，将按IS_Length设置"));
    return InputState::IS_Length;
}

}
