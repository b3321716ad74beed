#pragma once

#include "Foundation/Any.h"
#include "Foundation/HostExport.h"
#include "Foundation/OwnerPtr.h"

namespace vesk
{

/// Makes a widget known to the journal.
class VESK_HOST_API IJournalUiObject
{
public:
    /// A new one; empty when no journal is installed.
    static OwnerPtr<IJournalUiObject> Create();

    virtual ~IJournalUiObject() = default;

    /// The widget, as a pointer to the toolkit's base class of objects. Not owned.
    virtual void SetUiObject(const Any& uiObject) = 0;
    virtual const Any& GetUiObject() const = 0;
};

}
