#pragma once

#include "Control/ControlDefinition.h"
#include "Control/ILineEditDefinition.h"
#include "Control/LineEditEvent.h"

namespace vesk
{

/// A line edit. Initially nothing is selected: selection start -1, selected text empty.
class VESK_HOST_API LineEditDefinition : public ControlDefinition<ILineEditDefinition>
{
public:
    /// `inputType` is one of LineEditInputType; `decimals` applies to type Real.
    explicit LineEditDefinition(std::wstring id, int inputType = LineEditInputType::Text,
                                int decimals = 3);
    ~LineEditDefinition() override;

    int GetInputType() const override;
    std::wstring GetText() const override;

    /// A different text also resets the selection, in the same event.
    void SetText(const std::wstring& text) override;
    void ClearText() override;
    std::wstring GetSelectedText() const override;
    void SetValidator(OwnerPtr<ValidatorBase> opValidator) override;
    const ValidatorBase* GetValidator() const override;
    ILineEditEvent* GetLineEditEvent() const override;

    /// Where the selection starts, in UTF-16 units; -1 if nothing is selected.
    int GetSelectionStart() const;

    /// Selects `length` UTF-16 units from `start`. A range beyond the end of the text is clipped; a
    /// negative start or an empty length selects nothing.
    void SetSelection(int start, int length);

    /// Stores whether the user is editing; raises no event. Always returns true.
    bool SetIsEditing(bool isEditing);

    /// What SetIsEditing stored last; initially false.
    bool IsEditing() const;

    /// The decimals with which a number is shown.
    int GetDecimals() const;

private:
    int m_inputType;
    int m_decimals;
    std::wstring m_text;
    int m_selectionStart = -1;
    std::wstring m_selectedText;
    bool m_isEditing = false;
    OwnerPtr<ValidatorBase> m_opValidator;
    mutable LineEditEvent m_lineEditEvent;
};

/// Refers to another line-edit definition under an id of its own; everything else is the other's.
class VESK_HOST_API LineEditDefinitionReference : public ILineEditDefinition,
                                                  public IControlDefinitionChangeEventSource
{
public:
    /// `pDefinition` is not owned, must outlive the reference, and may be null: the reference is
    /// then empty and ignores what is set.
    LineEditDefinitionReference(std::wstring id, LineEditDefinition* pDefinition);

    const std::wstring& GetId() const override;
    const std::wstring& GetCaption() const override;
    const std::wstring& GetTooltip() const override;
    bool IsVisible() const override;
    bool IsEnabled() const override;
    int GetInputType() const override;
    std::wstring GetText() const override;
    void SetText(const std::wstring& text) override;
    void ClearText() override;
    std::wstring GetSelectedText() const override;
    void SetValidator(OwnerPtr<ValidatorBase> opValidator) override;
    const ValidatorBase* GetValidator() const override;
    ILineEditEvent* GetLineEditEvent() const override;

    /// The first selected character; 0 if there is no definition.
    int GetSelectionStart() const;

    /// Selects characters; does nothing without a definition.
    void SetSelection(int start, int length);

    /// False if there is no definition to store it in.
    bool SetIsEditing(bool isEditing);

    /// The definition referred to, null if there is none.
    const LineEditDefinition* GetLineEditDefinition() const;

    IControlDefinitionChangeEvent* GetControlDefinitionChangeEvent() const override;

private:
    std::wstring m_id;
    LineEditDefinition* m_pDefinition;
};

}
