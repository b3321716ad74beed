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
    /// Never changes.
    const std::wstring& GetId() const override { return m_id; }

    /// What SetCaption set last; initially empty.
    const std::wstring& GetCaption() const override { return m_caption; }

    /// What SetTooltip set last; initially empty.
    const std::wstring& GetTooltip() const override { return m_tooltip; }

    /// What SetVisible set last; initially true.
    bool IsVisible() const override { return m_isVisible; }

    /// What SetEnabled set last; initially true.
    bool IsEnabled() const override { return m_isEnabled; }

    /// Sets the text shown on the control.
    void SetCaption(const std::wstring& caption) { Change(m_caption, caption); }

    /// Sets the tool tip. A control shows the one that its definition had when it was created.
    void SetTooltip(const std::wstring& tooltip) { Change(m_tooltip, tooltip); }

    /// Sets whether the control is shown; see ControlHost for the moment at which it may be.
    void SetVisible(bool isVisible) { Change(m_isVisible, isVisible); }

    /// Sets whether the user can use the control.
    void SetEnabled(bool isEnabled) { Change(m_isEnabled, isEnabled); }

    /// The event of this definition; never null.
    IControlDefinitionChangeEvent* GetControlDefinitionChangeEvent() const override
    {
        return &m_event;
    }

protected:
    /// Visible and enabled, without texts. `id` never changes; it is the object name of the widget.
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

    /// The event, for derived classes that raise item changes.
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
