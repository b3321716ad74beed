#pragma once

#include "Foundation/HostExport.h"

#include <string>

namespace vesk
{

/// The names of the records.
struct VESK_HOST_API PublishConfigRecordNames
{
    /// False in a program released to customers.
    static const std::wstring InHouseMode;
};

/// One record of the configuration.
class VESK_HOST_API IConfigRecord
{
public:
    virtual ~IConfigRecord() = default;

    /// The record's value as a bool.
    virtual bool GetValueAsBool() const = 0;
};

/// How the program was published.
class VESK_HOST_API IPublishConfig
{
public:
    /// The record with that name, null if there is none. Not owned; valid until it is set again or
    /// removed.
    static const IConfigRecord* GetConfigRecord(const std::wstring& name);

    /// Adds the record, or changes the value of the existing one with that name.
    static void SetConfigRecord(const std::wstring& name, bool value);

    /// Removes the record. Does nothing if there is none with that name.
    static void RemoveConfigRecord(const std::wstring& name);
};

}
