#pragma once

#include "Foundation/Event.h"
#include "Foundation/HostExport.h"

#include <string>

namespace vesk
{

class ILineEditDefinition;

enum class LineEditEventType : int
{
    EditingFinished = 0, ///< Return was pressed or the edit lost the focus.
};

/// Describes the end of editing to a handler. Valid only during the call.
class VESK_HOST_API LineEditEventArgs
{
public:
    /// Copies the texts.
    LineEditEventArgs(LineEditEventType type, std::wstring id, std::wstring text);

    /// What has happened.
    LineEditEventType GetType() const { return m_type; }

    /// The id of the definition.
    const std::wstring& GetId() const { return m_id; }

    /// The text at that moment.
    const std::wstring& GetText() const { return m_text; }

private:
    LineEditEventType m_type;
    std::wstring m_id;
    std::wstring m_text;
};

/// Notified when editing a line edit has finished.
class VESK_HOST_API ILineEditEventHandler
{
public:
    virtual ~ILineEditEventHandler() = default;

    /// Called after the definition was updated. `pArgs` is not owned.
    virtual void On(LineEditEventArgs* pArgs) = 0;
};

/// The event of one line edit.
class VESK_HOST_API ILineEditEvent
{
public:
    virtual ~ILineEditEvent() = default;

    /// Subscribes a handler, which is not owned.
    virtual void Add(ILineEditEventHandler* pHandler) = 0;

    /// Unsubscribes a handler; an unknown one is ignored.
    virtual void Delete(ILineEditEventHandler* pHandler) = 0;
};

/// The concrete event of every line-edit definition of this host.
using LineEditEvent =
    Event<ILineEditDefinition, ILineEditEvent, ILineEditEventHandler, LineEditEventArgs>;

}
