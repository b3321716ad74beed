#pragma once

#include "Control/ControlDefinitionChangeEvent.h"
#include "Host/Control/ChangeRecorder.h"

#include <memory>
#include <string>

namespace vesk
{

/// An event with two handlers; item changes are distinguished by their captions.
struct ChangeEventFixture
{
    void Add(const std::wstring& caption)
    {
        pEvent->RaiseItemsChanged(ControlDefinitionChangeEventType::Add, 0, caption, nullptr);
    }

    /// What a handler received: captions of items, '*' for a property change, '!' for one by the
    /// user.
    static std::wstring GetHeard(const ChangeRecorder& recorder)
    {
        std::wstring heard;
        for (const Change& change : recorder.GetChanges())
        {
            heard += change.type == ControlDefinitionChangeEventType::PropertyChanged
                         ? L"*"
                         : change.caption;
            heard += change.isByUser ? L"!" : L"";
        }
        return heard;
    }

    std::unique_ptr<ControlDefinitionChangeEvent> pEvent =
        std::make_unique<ControlDefinitionChangeEvent>(L"id");
    ChangeRecorder first{*pEvent};
    ChangeRecorder second{*pEvent};
};

}
