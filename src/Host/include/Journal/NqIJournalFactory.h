#pragma once

#include "Foundation/HostExport.h"
#include "Foundation/OwnerPtr.h"

#include <string>

namespace vesk
{

class IJournalData;
class IJournalUiObject;

/// Creates journal records.
class VESK_HOST_API NqIJournalFactory
{
public:
    /// The installed factory, null if there is none. Not owned.
    static NqIJournalFactory* GetImpl();

    /// Installs a factory; null removes it. Not owned.
    static void SetImpl(NqIJournalFactory* pFactory);

    virtual ~NqIJournalFactory() = default;

    /// Creates a record of the class with that name; empty for an unknown name.
    virtual OwnerPtr<IJournalData> CreateJournalData(const std::wstring& className) = 0;

    /// Creates an announcement of a widget, without the widget.
    virtual OwnerPtr<IJournalUiObject> CreateJournalUiObject() = 0;
};

}
