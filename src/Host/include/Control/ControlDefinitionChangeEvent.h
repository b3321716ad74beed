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

/// The concrete change event of the definitions of this host.
///
/// Whether a change is the user's is read when it is raised, from the scope with the definition's
/// id.
///
/// While a change of items is being told, what changes besides waits: every handler hears of all
/// changes of items in the order in which they were made, and afterwards of the properties, when
/// the items that it knows are the definition's. What waited is told before the outermost call
/// returns; whoever subscribes meanwhile hears of nothing that had happened before. A change of
/// properties says nothing of what it changed, so that what is changed while one is being told
/// need not wait.
class VESK_HOST_API ControlDefinitionChangeEvent
    : public Event<IControlDefinition, IControlDefinitionChangeEvent,
                   IControlDefinitionChangeEventHandler, IControlDefinitionChangeEventArgs>
{
public:
    explicit ControlDefinitionChangeEvent(const std::wstring& definitionId);

    /// Each tells the handlers of one change; the event may be gone afterwards.
    void RaisePropertyChanged();

    /// `type` is one of ControlDefinitionChangeEventType; `pItem` is not owned and may be null. It
    /// stays at least as long as `pKept` does, which a change that waits holds until it is told.
    void RaiseItemsChanged(int type, int index, const std::wstring& caption,
                           const IControlDefinition* pItem,
                           std::shared_ptr<const void> pKept = nullptr);

    /// True while a change of items is being told: there may be handlers that do not know the
    /// items.
    bool IsTellingItems() const { return m_pTelling != nullptr; }

    /// Refuses what a control writes that has yet to hear of changes of the items: it tells of a
    /// list that is no more, or the user chose from one. The last change of properties sets the
    /// control right. False when there is nothing to refuse.
    bool RefuseFromBehind();

private:
    struct Telling;

    void EmitProperty(bool isByUser);
    void TellWaiting(Telling& telling, FirstException& exception);

    std::wstring m_definitionId;

    /// The change of items that is being told, on the stack of the call that raised it.
    Telling* m_pTelling = nullptr;
};

}
