#pragma once

#include "Foundation/HostExport.h"
#include "Foundation/WeakReferenceable.h"

#include <string>

namespace vesk
{

class IControlDefinition;

/// What happened to a definition.
struct ControlDefinitionChangeEventType
{
    enum : int
    {
        Add = 0,             ///< An item was appended at the end.
        Insert = 1,          ///< An item was inserted at the index.
        Delete = 2,          ///< The item at the index was removed.
        Clear = 3,           ///< All items were removed.
        PropertyChanged = 6, ///< A plain property changed.
    };
};

/// Describes a change to a handler. Valid only during the call.
class VESK_HOST_API IControlDefinitionChangeEventArgs
{
public:
    virtual ~IControlDefinitionChangeEventArgs() = default;

    /// One of ControlDefinitionChangeEventType.
    virtual int GetType() const = 0;

    /// The index of the item concerned; -1 if there is none.
    virtual int GetIndex() const = 0;

    /// The caption of the item concerned; empty if there is none.
    virtual const std::wstring& GetItemCaption() const = 0;

    /// The definition of the item concerned, not owned; null if the items are plain texts.
    virtual const IControlDefinition* GetItemDefinition() const = 0;

    /// True when the change was made through a control by the user.
    virtual bool IsChangeByUser() const = 0;
};

/// Notified of changes to a definition.
class VESK_HOST_API IControlDefinitionChangeEventHandler : public WeakReferenceable
{
public:
    virtual ~IControlDefinitionChangeEventHandler() = default;

    /// Called after the change. `pArgs` is not owned.
    virtual void On(IControlDefinitionChangeEventArgs* pArgs) = 0;
};

/// The change event of one definition.
class VESK_HOST_API IControlDefinitionChangeEvent
{
public:
    virtual ~IControlDefinitionChangeEvent() = default;

    /// Subscribes a handler, which is not owned.
    virtual void Add(IControlDefinitionChangeEventHandler* pHandler) = 0;

    /// Unsubscribes a handler; an unknown one is ignored.
    virtual void Delete(IControlDefinitionChangeEventHandler* pHandler) = 0;
};

/// A definition that reports its changes.
class VESK_HOST_API IControlDefinitionChangeEventSource
{
public:
    virtual ~IControlDefinitionChangeEventSource() = default;

    /// The event; not owned by the caller, null if there is none.
    virtual IControlDefinitionChangeEvent* GetControlDefinitionChangeEvent() const = 0;
};

}
