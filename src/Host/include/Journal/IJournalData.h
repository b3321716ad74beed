#pragma once

#include "Foundation/HostExport.h"

#include <string>

namespace vesk
{

class CommandParameters;

/// A journal record under construction.
class VESK_HOST_API IJournalData
{
public:
    virtual ~IJournalData() = default;
};

/// The record of a command.
class VESK_HOST_API IJournalCommandData : public IJournalData
{
public:
    virtual void SetCommandId(const std::wstring& commandId) = 0;
    virtual void SetCommandParameters(const CommandParameters& parameters) = 0;
    virtual std::wstring GetCommandId() const = 0;
    virtual const CommandParameters& GetCommandParameters() const = 0;
};

}
