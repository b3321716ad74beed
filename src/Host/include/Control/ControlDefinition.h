#pragma once

#include "Control/ControlDefinitionChangeEvent.h"
#include "Control/IControlDefinition.h"

#include <string>
#include <utility>

namespace vesk
{

/// What all concrete definitions have in common: id, texts, states and the change event.
///
/// A setter first updates the definition's state and then raises exactly one event; setting an
/// equal value raises none. A handler may destroy the definition, so raising the event comes last.
template <class TInterface>
class ControlDefinition : public TInterface, public IControlDefinitionChangeEventSource
{
public:
    const std::wstring& GetId() const override { return m_id; }
    const std::wstring& GetCaption() const override { return m_caption; }
    const std::wstring& GetTooltip() const override { return m_tooltip; }
    bool IsVisible() const override { return m_isVisible; }
    bool IsEnabled() const override { return m_isEnabled; }

    void SetCaption(const std::wstring& caption) { Change(m_caption, caption); }
    void SetTooltip(const std::wstring& tooltip) { Change(m_tooltip, tooltip); }
    void SetVisible(bool isVisible) { Change(m_isVisible, isVisible); }
    void SetEnabled(bool isEnabled) { Change(m_isEnabled, isEnabled); }

    IControlDefinitionChangeEvent* GetControlDefinitionChangeEvent() const override
    {
        return &m_event;
    }

protected:
    explicit ControlDefinition(std::wstring id) : m_id(std::move(id)), m_event(m_id) {}

    /// Stores a new value and raises the event; an equal one changes nothing.
    template <class T>
    void Change(T& member, const T& value)
    {
        if (member == value)
            return;
        member = value;
        m_event.RaisePropertyChanged();
    }

    ControlDefinitionChangeEvent& GetEvent() { return m_event; }

private:
    // The states come first, next to the table of virtual functions: those of all items of a group
    // are read for each change.
    bool m_isVisible = true;
    bool m_isEnabled = true;
    std::wstring m_id;
    std::wstring m_caption;
    std::wstring m_tooltip;
    mutable ControlDefinitionChangeEvent m_event;
};

}
