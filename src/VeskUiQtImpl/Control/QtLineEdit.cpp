#include "VeskUiQtImpl/Control/QtLineEdit.h"

#include "Control/ControlDefinitionChangeByUser.h"
#include "Control/LineEditDefinition.h"
#include "Control/LineEditEvent.h"
#include "Validation/NumberValidator.h"
#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/Control/ControlStatus.h"
#include "VeskUiQtImpl/Control/ControlSubscription.h"
#include "VeskUiQtImpl/Control/PropertyName.h"

#include "HostUi/QtText.h"

#include <QPointer>
#include <QVariant>

#include <limits>

namespace vesk
{
namespace
{

/// The definition that holds the text, directly or by reference; null if there is none.
const LineEditDefinition* FindConcreteDefinition(const ILineEditDefinition* pDefinition)
{
    if (const auto* pConcrete = dynamic_cast<const LineEditDefinition*>(pDefinition))
        return pConcrete;
    const auto* pReference = dynamic_cast<const LineEditDefinitionReference*>(pDefinition);
    return pReference != nullptr ? pReference->GetLineEditDefinition() : nullptr;
}

}

QtLineEdit::QtLineEdit(OwnerPtr<ILineEditDefinition> pControlDefinition, QWidget* pParent)
    : QLineEdit(pParent), m_pControlDefinition(std::move(pControlDefinition))
{
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtLineEdit::QtLineEdit", L"m_pControlDefinition为空")))
        return;
    if (!GiveDefaultValidator())
        return;

    // Qt would report text it truncates as a change by the user.
    setMaxLength(std::numeric_limits<int>::max());
    setText(ToQString(m_pControlDefinition->GetText()));
    if (!ApplyStatus(*this, *m_pControlDefinition))
        return;
    connect(this, &QLineEdit::textEdited, this, &QtLineEdit::OnTextEdited);
    connect(this, &QLineEdit::editingFinished, this, &QtLineEdit::OnEditingFinished);
    connect(this, &QLineEdit::textChanged, this, &QtLineEdit::OnTextChanged);
    connect(this, &QLineEdit::selectionChanged, this, &QtLineEdit::OnTextSelectChanged);
    setObjectName(ToQString(m_pControlDefinition->GetId()));
    setProperty(PropertyName::IsDefinition, true);
    Subscribe(m_pControlDefinition.Get(), this);
}

QtLineEdit::~QtLineEdit()
{
    Unsubscribe(m_pControlDefinition.Get(), this);
}

/// Returns false if the validator of the input type needs a definition that does not exist.
bool QtLineEdit::GiveDefaultValidator()
{
    if (m_pControlDefinition->GetValidator() != nullptr)
        return true;

    const int inputType = m_pControlDefinition->GetInputType();
    if (inputType == LineEditInputType::Integer)
        m_pControlDefinition->SetValidator(MakeOwner<NumberValidator<int>>());
    if (inputType != LineEditInputType::Real)
        return true;

    OwnerPtr<NumberValidator<double>> opValidator = MakeOwner<NumberValidator<double>>();
    const LineEditDefinition* pConcrete = FindConcreteDefinition(m_pControlDefinition.Get());
    if (!Check(pConcrete != nullptr,
               VESK_SITE("vesk::QtLineEdit::QtLineEdit", L"LineEditDefinition不能为空")))
        return false;
    opValidator->SetDecimals(pConcrete->GetDecimals());
    m_pControlDefinition->SetValidator(std::move(opValidator));
    return true;
}

IControlDefinition* QtLineEdit::GetControlDefinition() const
{
    return m_pControlDefinition.Get();
}

void QtLineEdit::UpdateStatus()
{
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtLineEdit::UpdateStatus", L"pControlDefinition为空")))
        return;

    ApplyStatus(*this, *m_pControlDefinition);
}

void QtLineEdit::On(IControlDefinitionChangeEventArgs* pArgs)
{
    if (!Check(pArgs != nullptr, VESK_SITE("vesk::QtLineEdit::On", L"pArgs为空")))
        return;
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtLineEdit::On", L"pControlDefinition为空")))
        return;
    if (pArgs->GetType() != ControlDefinitionChangeEventType::PropertyChanged)
        return;

    const QPointer<QtLineEdit> pSelf(this);
    const QString definitionText = ToQString(m_pControlDefinition->GetText());
    if (text() != definitionText)
        setText(definitionText);
    if (pSelf != nullptr)
        UpdateVisible(*this, m_pControlDefinition->IsVisible());
    if (pSelf != nullptr)
        UpdateEnabled(*this, m_pControlDefinition->IsEnabled());
    if (pSelf != nullptr)
        ApplySelection();
}

void QtLineEdit::ApplySelection()
{
    const QPointer<QtLineEdit> pSelf(this);
    const QString selection = selectedText();
    const int start = selectionStart();
    const int definitionStart = GetDefinitionSelectionStart();
    // A report may have run an event loop.
    if (pSelf == nullptr)
        return;
    const QString definitionSelection = ToQString(m_pControlDefinition->GetSelectedText());
    if (selection == definitionSelection && start == definitionStart)
        return;

    if (!definitionSelection.isEmpty() || definitionStart != -1)
        setSelection(definitionStart, definitionSelection.size());
    else
        deselect();
}

void QtLineEdit::SetText(const std::wstring& text)
{
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtLineEdit::SetText", L"pControlDefinition为空")))
        return;

    const QPointer<QtLineEdit> pSelf(this);
    const std::wstring newText = text;
    setText(ToQString(newText));
    if (pSelf != nullptr && m_pControlDefinition->GetText() != newText)
        m_pControlDefinition->SetText(newText);
}

void QtLineEdit::Clear()
{
    const QPointer<QtLineEdit> pSelf(this);
    clear();
    if (pSelf == nullptr)
        return;
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtLineEdit::Clear", L"pControlDefinition为空")))
        return;

    if (!m_pControlDefinition->GetText().empty())
        m_pControlDefinition->ClearText();
}

void QtLineEdit::SelectAll()
{
    selectAll();
}

void QtLineEdit::SetValidator(OwnerPtr<ValidatorBase> pValidator)
{
    m_pValidator = std::move(pValidator);
}

const ValidatorBase* QtLineEdit::GetValidator() const
{
    return m_pValidator.Get();
}

void QtLineEdit::OnTextEdited(const QString& text)
{
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtLineEdit::OnTextEdited", L"pControlDefinition为空")))
        return;

    const QPointer<QtLineEdit> pSelf(this);
    LineEditTextChangeFlag::m_textChangeByUser = true;
    const LineEditTextChangeFlag resetFlag;
    const ControlDefinitionChangeByUser byUser(m_pControlDefinition->GetId());
    if (text != ToQString(m_pControlDefinition->GetText()))
        m_pControlDefinition->SetText(ToWide(text));
    if (pSelf != nullptr)
        SetDefinitionIsEditing(true);
}

void QtLineEdit::OnTextChanged(const QString& text)
{
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtLineEdit::OnTextChanged", L"pControlDefinition为空")))
        return;
    if (text == ToQString(m_pControlDefinition->GetText()))
        return;

    const ControlDefinitionChangeByUser byUser(m_pControlDefinition->GetId());
    m_pControlDefinition->SetText(ToWide(text));
}

void QtLineEdit::OnEditingFinished()
{
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtLineEdit::OnEditingFinished", L"pControlDefinition为空")))
        return;

    const QPointer<QtLineEdit> pSelf(this);
    const std::wstring id = m_pControlDefinition->GetId();
    const ControlDefinitionChangeByUser byUser(id);
    SetDefinitionIsEditing(false);
    if (pSelf == nullptr)
        return;

    // The edit may be destroyed by the event.
    if (auto* pEvent = dynamic_cast<LineEditEvent*>(m_pControlDefinition->GetLineEditEvent()))
    {
        LineEditEventArgs args(LineEditEventType::EditingFinished, id, ToWide(text()));
        pEvent->Emit(&args);
    }
}

void QtLineEdit::OnTextSelectChanged()
{
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtLineEdit::OnTextSelectChanged", L"pControlDefinition为空")))
        return;

    const QPointer<QtLineEdit> pSelf(this);
    const int start = selectionStart();
    const QString selection = selectedText();
    const int definitionStart = GetDefinitionSelectionStart();
    // A report may have run an event loop.
    if (pSelf == nullptr)
        return;
    const QString definitionSelection = ToQString(m_pControlDefinition->GetSelectedText());
    if (selection == definitionSelection && start == definitionStart)
        return;

    const ControlDefinitionChangeByUser byUser(m_pControlDefinition->GetId());
    SetDefinitionSelection(start, selection.size());
}

int QtLineEdit::GetDefinitionSelectionStart()
{
    constexpr char Function[] = "vesk::QtLineEdit::GetDefinitionSelectionStart";
    ILineEditDefinition* pDefinition = m_pControlDefinition.Get();
    if (!Check(pDefinition != nullptr, VESK_SITE(Function, L"pControlDefinition为空")))
        return -1;

    if (const auto* pConcrete = dynamic_cast<LineEditDefinition*>(pDefinition))
        return pConcrete->GetSelectionStart();
    if (const auto* pReference = dynamic_cast<LineEditDefinitionReference*>(pDefinition))
        return pReference->GetSelectionStart();
    Check(false, VESK_SITE(Function, L"类型不正确"));
    return -1;
}

bool QtLineEdit::SetDefinitionSelection(int start, int length)
{
    constexpr char Function[] = "vesk::QtLineEdit::SetDefinitionSelection";
    ILineEditDefinition* pDefinition = m_pControlDefinition.Get();
    if (!Check(pDefinition != nullptr, VESK_SITE(Function, L"pControlDefinition为空")))
        return false;

    if (auto* pConcrete = dynamic_cast<LineEditDefinition*>(pDefinition))
    {
        pConcrete->SetSelection(start, length);
        return true;
    }
    if (auto* pReference = dynamic_cast<LineEditDefinitionReference*>(pDefinition))
    {
        pReference->SetSelection(start, length);
        return true;
    }
    return Check(false, VESK_SITE(Function, L"类型不正确"));
}

bool QtLineEdit::SetDefinitionIsEditing(bool isEditing)
{
    constexpr char Function[] = "vesk::QtLineEdit::SetDefinitionIsEditing";
    ILineEditDefinition* pDefinition = m_pControlDefinition.Get();
    if (!Check(pDefinition != nullptr, VESK_SITE(Function, L"pControlDefinition为空")))
        return false;

    if (auto* pConcrete = dynamic_cast<LineEditDefinition*>(pDefinition))
    {
        pConcrete->SetIsEditing(isEditing);
        return true;
    }
    if (auto* pReference = dynamic_cast<LineEditDefinitionReference*>(pDefinition))
    {
        pReference->SetIsEditing(isEditing);
        return true;
    }
    return Check(false, VESK_SITE(Function, L"类型不正确"));
}

}
