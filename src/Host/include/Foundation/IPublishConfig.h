#pragma once

#include "Foundation/HostExport.h"

#include <string>

namespace vesk
{

/// The names of the records.
struct VESK_HOST_API PublishConfigRecordNames
{
    /// False in a program that was given to customers.
    static const std::wstring InHouseMode;
};

/// One record of the configuration.
class VESK_HOST_API IConfigRecord
{
public:
    virtual ~IConfigRecord() = default;

    /// What the record says, as yes or no.
    virtual bool GetValueAsBool() const = 0;
};

/// How the program was published.
class VESK_HOST_API IPublishConfig
{
public:
    /// The record with that name, null when there is none. Not owned; valid until it is set anew or
    /// removed.
    static const IConfigRecord* GetConfigRecord(const std::wstring& name);

    /// Adds the record, or gives the one with that name another value.
    static void SetConfigRecord(const std::wstring& name, bool value);

    /// Takes the record out. Does nothing when there is none with that name.
    static void RemoveConfigRecord(const std::wstring& name);
};

}
