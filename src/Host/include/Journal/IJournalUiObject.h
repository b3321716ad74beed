#pragma once

#include "Foundation/Any.h"
#include "Foundation/HostExport.h"
#include "Foundation/OwnerPtr.h"

namespace vesk
{

/// Announces a widget to the journal.
class VESK_HOST_API IJournalUiObject
{
public:
    /// Creates an instance; empty if no journal factory is installed.
    static OwnerPtr<IJournalUiObject> Create();

    virtual ~IJournalUiObject() = default;

    /// The widget, as a pointer to the toolkit's object base class. Not owned.
    virtual void SetUiObject(const Any& uiObject) = 0;

    /// What was set last; without a value if nothing was.
    virtual const Any& GetUiObject() const = 0;
};

}
