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

class VESK_HOST_API LineEditEventArgs
{
public:
    LineEditEventArgs(LineEditEventType type, std::wstring id, std::wstring text);

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

class VESK_HOST_API ILineEditEventHandler
{
public:
    virtual ~ILineEditEventHandler() = default;

    virtual void On(LineEditEventArgs* pArgs) = 0;
};

class VESK_HOST_API ILineEditEvent
{
public:
    virtual ~ILineEditEvent() = default;

    /// Subscribes a handler, which is not owned.
    virtual void Add(ILineEditEventHandler* pHandler) = 0;
    virtual void Delete(ILineEditEventHandler* pHandler) = 0;
};

/// The concrete event of every line-edit definition of this host.
using LineEditEvent =
    Event<ILineEditDefinition, ILineEditEvent, ILineEditEventHandler, LineEditEventArgs>;

}
