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

    virtual bool GetValueAsBool() const = 0;
};

/// How the program was published.
class VESK_HOST_API IPublishConfig
{
public:
    /// The record with that name, null when there is none. Not owned; valid until it is set anew or
    /// removed.
    static const IConfigRecord* GetConfigRecord(const std::wstring& name);

    static void SetConfigRecord(const std::wstring& name, bool value);
    static void RemoveConfigRecord(const std::wstring& name);
};

}
