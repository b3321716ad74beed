#include "Control/LineEditDefinition.h"

#include "Foundation/WideText.h"
#include "Validation/ValidatorBase.h"

#include <cstddef>
#include <cstdint>
#include <utility>

namespace vesk
{

namespace
{

struct Selection
{
    int start = -1;
    std::wstring text;
};

/// The characters of `text` that overlap the given UTF-16 units; half a surrogate pair cannot be
/// selected.
Selection Select(const std::wstring& text, int start, int length)
{
    Selection selection;
    if (start < 0 || length <= 0)
        return selection;
    const std::int64_t end = std::int64_t{start} + length;
    int from = 0;
    for (std::size_t index = 0; index < text.size();)
    {
        const std::size_t first = index;
        const int to = from + TakeUtf16Units<wchar_t>(text, index);
        if (to > start && from < end)
        {
            selection.start = selection.text.empty() ? from : selection.start;
            selection.text.append(text, first, index - first);
        }
        from = to;
    }
    return selection;
}

}

LineEditDefinition::LineEditDefinition(std::wstring id, int inputType, int decimals)
    : ControlDefinition(std::move(id)), m_inputType(inputType), m_decimals(decimals)
{}

LineEditDefinition::~LineEditDefinition() = default;

int LineEditDefinition::GetInputType() const
{
    return m_inputType;
}

std::wstring LineEditDefinition::GetText() const
{
    return m_text;
}

void LineEditDefinition::SetText(const std::wstring& text)
{
    if (text == m_text)
        return;
    m_text = text;
    m_selectionStart = -1;
    m_selectedText.clear();
    GetEvent().RaisePropertyChanged();
}

void LineEditDefinition::ClearText()
{
    SetText(std::wstring());
}

std::wstring LineEditDefinition::GetSelectedText() const
{
    return m_selectedText;
}

void LineEditDefinition::SetValidator(OwnerPtr<ValidatorBase> opValidator)
{
    m_opValidator = std::move(opValidator);
}

const ValidatorBase* LineEditDefinition::GetValidator() const
{
    return m_opValidator.Get();
}

ILineEditEvent* LineEditDefinition::GetLineEditEvent() const
{
    return &m_lineEditEvent;
}

int LineEditDefinition::GetSelectionStart() const
{
    return m_selectionStart;
}

void LineEditDefinition::SetSelection(int start, int length)
{
    Selection selection = Select(m_text, start, length);
    if (selection.start == m_selectionStart && selection.text == m_selectedText)
        return;
    m_selectionStart = selection.start;
    m_selectedText = std::move(selection.text);
    GetEvent().RaisePropertyChanged();
}

bool LineEditDefinition::SetIsEditing(bool isEditing)
{
    m_isEditing = isEditing;
    return true;
}

bool LineEditDefinition::IsEditing() const
{
    return m_isEditing;
}

int LineEditDefinition::GetDecimals() const
{
    return m_decimals;
}

}
