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
    /// Sets the command that the record is about.
    virtual void SetCommandId(const std::wstring& commandId) = 0;

    /// Sets its parameters; initially there are none.
    virtual void SetCommandParameters(const CommandParameters& parameters) = 0;

    /// The command that the record is about.
    virtual std::wstring GetCommandId() const = 0;

    /// Its parameters; they live as long as the record does not change.
    virtual const CommandParameters& GetCommandParameters() const = 0;
};

}
