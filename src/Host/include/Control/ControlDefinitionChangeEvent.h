#pragma once

#include "Control/IControlDefinitionChangeEvent.h"
#include "Foundation/Event.h"
#include "Foundation/FirstException.h"
#include "Foundation/HostExport.h"

#include <memory>
#include <string>

namespace vesk
{

class IControlDefinition;

/// The concrete change event of this host's definitions.
///
/// Whether a change is the user's is determined when it is raised, by the
/// ControlDefinitionChangeByUser scope with the definition's id.
///
/// While an item change is being delivered, further changes wait: every handler receives all item
/// changes in the order in which they were made, and property changes only afterwards, when the
/// items it knows match the definition's. Waiting changes are delivered before the outermost call
/// returns; a handler that subscribes meanwhile receives none of the changes made before it
/// subscribed. A property change does not say what changed, so changes made while one is being
/// delivered need not wait.
class VESK_HOST_API ControlDefinitionChangeEvent
    : public Event<IControlDefinition, IControlDefinitionChangeEvent,
                   IControlDefinitionChangeEventHandler, IControlDefinitionChangeEventArgs>
{
public:
    /// The id is that of the definition whose changes it reports.
    explicit ControlDefinitionChangeEvent(const std::wstring& definitionId);

    /// Each of these delivers one change to the handlers; the event may be gone afterwards.
    void RaisePropertyChanged();

    /// `type` is one of ControlDefinitionChangeEventType; `pItem` is not owned and may be null. It
    /// lives at least as long as `pKept`, which a waiting change holds until it is delivered.
    void RaiseItemsChanged(int type, int index, const std::wstring& caption,
                           const IControlDefinition* pItem,
                           std::shared_ptr<const void> pKept = nullptr);

    /// True while an item change is being delivered: some handlers may not know the current items
    /// yet.
    bool IsTellingItems() const { return m_pTelling != nullptr; }

    /// Refuses a write from a control that has yet to receive item changes: it refers to an
    /// outdated list, or the user chose from one. The final property change brings the control up
    /// to date. False if there is nothing to refuse.
    bool RefuseFromBehind();

private:
    struct Telling;

    void EmitProperty(bool isByUser);
    void TellWaiting(Telling& telling, FirstException& exception);

    std::wstring m_definitionId;

    /// The item change that is being delivered, on the stack of the call that raised it.
    Telling* m_pTelling = nullptr;
};

}
