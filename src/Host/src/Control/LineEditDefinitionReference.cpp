#include "Control/ControlDefinitionChangeByUser.h"
#include "Control/LineEditDefinition.h"
#include "Validation/ValidatorBase.h"

#include <optional>
#include <utility>

namespace vesk
{

namespace
{

const std::wstring s_noText;

/// Passes the user's mark on from one id to another while it exists.
class ForwardedUserChange
{
public:
    ForwardedUserChange(const std::wstring& fromId, const std::wstring& toId)
    {
        if (ControlDefinitionChangeByUser::IsChangeByUser(fromId))
            m_scope.emplace(toId);
    }

private:
    std::optional<ControlDefinitionChangeByUser> m_scope;
};

}

LineEditDefinitionReference::LineEditDefinitionReference(std::wstring id,
                                                         LineEditDefinition* pDefinition)
    : m_id(std::move(id)), m_pDefinition(pDefinition)
{}

const std::wstring& LineEditDefinitionReference::GetId() const
{
    return m_id;
}

const std::wstring& LineEditDefinitionReference::GetCaption() const
{
    return m_pDefinition != nullptr ? m_pDefinition->GetCaption() : s_noText;
}

const std::wstring& LineEditDefinitionReference::GetTooltip() const
{
    return m_pDefinition != nullptr ? m_pDefinition->GetTooltip() : s_noText;
}

bool LineEditDefinitionReference::IsVisible() const
{
    return m_pDefinition == nullptr || m_pDefinition->IsVisible();
}

bool LineEditDefinitionReference::IsEnabled() const
{
    return m_pDefinition == nullptr || m_pDefinition->IsEnabled();
}

int LineEditDefinitionReference::GetInputType() const
{
    return m_pDefinition != nullptr ? m_pDefinition->GetInputType() : LineEditInputType::Text;
}

std::wstring LineEditDefinitionReference::GetText() const
{
    return m_pDefinition != nullptr ? m_pDefinition->GetText() : std::wstring();
}

void LineEditDefinitionReference::SetText(const std::wstring& text)
{
    if (m_pDefinition == nullptr)
        return;
    const ForwardedUserChange byUser(m_id, m_pDefinition->GetId());
    m_pDefinition->SetText(text);
}

void LineEditDefinitionReference::ClearText()
{
    SetText(std::wstring());
}

std::wstring LineEditDefinitionReference::GetSelectedText() const
{
    return m_pDefinition != nullptr ? m_pDefinition->GetSelectedText() : std::wstring();
}

void LineEditDefinitionReference::SetValidator(OwnerPtr<ValidatorBase> opValidator)
{
    if (m_pDefinition != nullptr)
        m_pDefinition->SetValidator(std::move(opValidator));
}

const ValidatorBase* LineEditDefinitionReference::GetValidator() const
{
    return m_pDefinition != nullptr ? m_pDefinition->GetValidator() : nullptr;
}

ILineEditEvent* LineEditDefinitionReference::GetLineEditEvent() const
{
    return m_pDefinition != nullptr ? m_pDefinition->GetLineEditEvent() : nullptr;
}

int LineEditDefinitionReference::GetSelectionStart() const
{
    return m_pDefinition != nullptr ? m_pDefinition->GetSelectionStart() : -1;
}

void LineEditDefinitionReference::SetSelection(int start, int length)
{
    if (m_pDefinition == nullptr)
        return;
    const ForwardedUserChange byUser(m_id, m_pDefinition->GetId());
    m_pDefinition->SetSelection(start, length);
}

bool LineEditDefinitionReference::SetIsEditing(bool isEditing)
{
    return m_pDefinition != nullptr && m_pDefinition->SetIsEditing(isEditing);
}

const LineEditDefinition* LineEditDefinitionReference::GetLineEditDefinition() const
{
    return m_pDefinition;
}

IControlDefinitionChangeEvent* LineEditDefinitionReference::GetControlDefinitionChangeEvent() const
{
    return m_pDefinition != nullptr ? m_pDefinition->GetControlDefinitionChangeEvent() : nullptr;
}

}
