#pragma once

#include "Control/IControlDefinition.h"
#include "Foundation/OwnerPtr.h"

#include <string>

namespace vesk
{

class ILineEditEvent;
class ValidatorBase;

/// What a line edit accepts; determines its default validator.
struct LineEditInputType
{
    enum : int
    {
        Text = 0,
        Integer = 1,
        Real = 2,
    };
};

/// A single line of text that the user edits.
class VESK_HOST_API ILineEditDefinition : public IControlDefinition
{
public:
    /// One of LineEditInputType.
    virtual int GetInputType() const = 0;

    /// The text as it is, valid or not.
    virtual std::wstring GetText() const = 0;

    /// Sets the text; a different text drops the selection.
    virtual void SetText(const std::wstring& text) = 0;

    /// Sets an empty text.
    virtual void ClearText() = 0;

    /// The selected part of the text; empty if nothing is selected.
    virtual std::wstring GetSelectedText() const = 0;

    /// Takes ownership of the validator and frees the previous one.
    virtual void SetValidator(OwnerPtr<ValidatorBase> opValidator) = 0;

    /// The validator, not owned by the caller; null if there is none.
    virtual const ValidatorBase* GetValidator() const = 0;

    /// The event raised when editing has finished; owned by the definition.
    virtual ILineEditEvent* GetLineEditEvent() const = 0;
};

}
