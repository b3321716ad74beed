#pragma once

#include "Control/ControlDefinitionChangeByUser.h"
#include "Control/LineEditDefinition.h"
#include "Support/KeptText.h"
#include "Support/TestValues.h"
#include "Validation/ValidatorBase.h"

#include <string>
#include <vector>

namespace vesk::test
{

/// One text written into a definition, and how it was marked.
struct TextWrite
{
    std::wstring text;
    bool isMarkedByFlag;
    bool isMarkedByScope;

    bool operator==(const TextWrite& other) const
    {
        return text == other.text && isMarkedByFlag == other.isMarkedByFlag &&
               isMarkedByScope == other.isMarkedByScope;
    }
};

inline char* toString(const TextWrite& write)
{
    return ShowFields(write.text, write.isMarkedByFlag, write.isMarkedByScope);
}

/// The line-edit definition of the host, which records what is written into it.
class NotingLineEditDefinition : public LineEditDefinition
{
public:
    using LineEditDefinition::LineEditDefinition;

    void SetText(const std::wstring& text) override
    {
        Note(text);
        LineEditDefinition::SetText(text);
    }

    void ClearText() override
    {
        ++clearCount;
        LineEditDefinition::ClearText();
    }

    std::vector<TextWrite> writes;
    int clearCount = 0;

private:
    void Note(const std::wstring& text)
    {
        writes.push_back({text, LineEditTextChangeFlag::m_textChangeByUser,
                          ControlDefinitionChangeByUser::IsChangeByUser(GetId())});
    }
};

/// A definition that is neither of the host's two classes.
class ForeignLineEditDefinition final : public ILineEditDefinition,
                                        public IControlDefinitionChangeEventSource
{
public:
    explicit ForeignLineEditDefinition(int inputType) : m_inputType(inputType) {}

    const std::wstring& GetId() const override { return Kept(L"Foreign"); }
    const std::wstring& GetCaption() const override { return Kept({}); }
    const std::wstring& GetTooltip() const override { return Kept({}); }
    bool IsVisible() const override { return true; }
    bool IsEnabled() const override { return true; }
    int GetInputType() const override { return m_inputType; }
    std::wstring GetText() const override { return m_text; }
    void SetText(const std::wstring& text) override { m_text = text; }
    void ClearText() override { m_text.clear(); }
    std::wstring GetSelectedText() const override { return {}; }
    void SetValidator(OwnerPtr<ValidatorBase> opValidator) override
    {
        m_opValidator = std::move(opValidator);
    }
    const ValidatorBase* GetValidator() const override { return m_opValidator.Get(); }
    ILineEditEvent* GetLineEditEvent() const override { return nullptr; }
    IControlDefinitionChangeEvent* GetControlDefinitionChangeEvent() const override
    {
        return &m_event;
    }

    ControlDefinitionChangeEvent& GetEvent() const { return m_event; }

private:
    int m_inputType;
    std::wstring m_text = L"foreign";
    OwnerPtr<ValidatorBase> m_opValidator;
    mutable ControlDefinitionChangeEvent m_event{L"Foreign"};
};

/// A reference whose type is real numbers although it refers to nothing.
class EmptyRealReference final : public LineEditDefinitionReference
{
public:
    EmptyRealReference() : LineEditDefinitionReference(L"Reference", nullptr) {}

    int GetInputType() const override { return LineEditInputType::Real; }
};

/// A definition whose selection has a start and no text.
class StartOnlyDefinition final : public LineEditDefinition
{
public:
    using LineEditDefinition::LineEditDefinition;

    std::wstring GetSelectedText() const override { return {}; }
};

/// A validator that records its destruction.
class NotingValidator final : public ValidatorBase
{
public:
    explicit NotingValidator(bool& isDestroyed) : m_isDestroyed(isDestroyed) {}
    ~NotingValidator() override { m_isDestroyed = true; }

    bool ValidateInput(const std::wstring&) const override { return true; }

private:
    bool& m_isDestroyed;
};

}
