#pragma once

#include "Foundation/HostExport.h"
#include "Journal/IJournalManager.h"
#include "Journal/JournalRecord.h"

#include <string>
#include <vector>

namespace vesk
{

/// Hears of the journal as it grows.
class VESK_HOST_API IJournalObserver
{
public:
    virtual ~IJournalObserver() = default;

    /// A record was written.
    virtual void OnRecord(const JournalRecord& record) = 0;

    /// A widget was made known. The object lives as long as the call.
    virtual void OnUiObject(const IJournalUiObject& object, int kind) = 0;
};

/// The journal of this process.
///
/// Each record is one line, handed to the operating system before what it records is done. While no
/// file is open, records are numbered and told to the observers all the same. When a line cannot be
/// written, one warning is raised and the file gets no more: what stands in it can be repeated.
///
/// Only GetLastLines may be called from any thread.
class VESK_HOST_API JournalManager : public IJournalManager
{
public:
    static JournalManager& GetInstance();

    /// Replaces the file at `path` (UTF-8) and starts numbering anew. False, and nothing changes,
    /// when it cannot be written.
    virtual bool Open(const std::string& path) = 0;

    /// Closes the file and forgets the last lines; numbering starts anew.
    virtual void Close() = 0;

    /// Writes a record and returns its number. A number of an end record is its command's.
    virtual int Add(decltype(JournalRecord::what) what) = 0;

    /// The number of the command record written last, if its command has not begun yet, else 0.
    /// Taken once: whoever runs the command completes the record.
    virtual int TakeCommandNumber(const std::wstring& commandId) = 0;

    /// The lines of the last records, oldest first, at most 20.
    virtual std::vector<std::string> GetLastLines() const = 0;

    /// Adds an observer (not owned), told until it is removed.
    virtual void AddObserver(IJournalObserver* pObserver) = 0;
    virtual void RemoveObserver(IJournalObserver* pObserver) = 0;
};

}
