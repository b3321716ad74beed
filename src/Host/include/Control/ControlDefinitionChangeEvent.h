#pragma once

#include "Control/IControlDefinitionChangeEvent.h"
#include "Foundation/Event.h"
#include "Foundation/HostExport.h"

#include <string>

namespace vesk
{

class IControlDefinition;

/// The concrete change event of the definitions of this host.
///
/// Whether a change is the user's is read when it is raised, from the scope with the definition's
/// id.
class VESK_HOST_API ControlDefinitionChangeEvent
    : public Event<IControlDefinition, IControlDefinitionChangeEvent,
                   IControlDefinitionChangeEventHandler, IControlDefinitionChangeEventArgs>
{
public:
    explicit ControlDefinitionChangeEvent(const std::wstring& definitionId);

    /// Each tells the handlers of one change; the event may be gone afterwards.
    void RaisePropertyChanged();

    /// `type` is one of ControlDefinitionChangeEventType; `pItem` is not owned and may be null.
    /// It and the caption must stay while the event still calls handlers.
    void RaiseItemsChanged(int type, int index, const std::wstring& caption,
                           const IControlDefinition* pItem);

private:
    std::wstring m_definitionId;
};

}
