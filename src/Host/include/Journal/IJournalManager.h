#pragma once

#include "Foundation/HostExport.h"
#include "Foundation/OwnerPtr.h"

namespace vesk
{

class IJournalCommandData;
class IJournalUiObject;

/// Records in the journal what the user does, before it is done.
class VESK_HOST_API IJournalManager
{
public:
    /// The manager; it lives as long as the process.
    static IJournalManager* Get();

    virtual ~IJournalManager() = default;

    /// Writes the record of a command with its id alone. An empty pointer is ignored.
    virtual void AddCommandData(OwnerPtr<IJournalCommandData> opData) = 0;

    /// Writes the record of a command with its parameters. An empty pointer is ignored.
    virtual void AddCommandDataWithParameters(OwnerPtr<IJournalCommandData> opData) = 0;

    /// Announces a widget; `kind` 3 is the editor of a provisional dimension. `reserved` is 0.
    virtual void AddUiObject(OwnerPtr<IJournalUiObject> opObject, int kind, int reserved) = 0;
};

}
