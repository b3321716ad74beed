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
/// file is open, records are numbered and told to the observers all the same.
///
/// A file in use is this program's alone. When a line cannot be written, the file is cut to its
/// last whole line; each further record first writes what is missing. So the file never has a hole,
/// and what stands in it can be repeated.
///
/// Only GetLastLines may be called from any thread.
class VESK_HOST_API JournalManager : public IJournalManager
{
public:
    static JournalManager& GetInstance();

    /// Replaces the file at `path` (UTF-8) and starts numbering anew. False, and nothing changes,
    /// when it cannot be written or another program has it; `error` then says so in one sentence.
    virtual bool Open(const std::string& path, std::string& error) = 0;

    /// Takes the file at `path` for this program and leaves it as it is, for its records are about
    /// to be repeated: those that are added until Continue or MoveTo are kept back. Numbering
    /// starts anew. False, and nothing changes, as with Open.
    virtual bool Reserve(const std::string& path, std::string& error) = 0;

    /// Goes on in the file that was taken, behind its last whole line: what was kept back stands in
    /// it already. The next number is the one after `lastNumber`.
    virtual void Continue(int lastNumber) = 0;

    /// Leaves the file that was taken and goes on in another, which is replaced and gets what was
    /// kept back. False, and without a file from now on, when that cannot be written.
    virtual bool MoveTo(const std::string& path, std::string& error) = 0;

    /// True while every record stands in a file, or is about to.
    virtual bool IsKept() const = 0;

    /// Closes the file and forgets the last lines; numbering starts anew. False when there was a
    /// file and records are missing in it.
    virtual bool Close() = 0;

    /// Writes a record and returns its number. A number of an end record is its command's.
    virtual int Add(decltype(JournalRecord::what) what) = 0;

    /// The number of the record of a command that a control has announced last (AddCommandData), if
    /// it has not begun yet, else 0. Taken once: whoever runs the command completes the record.
    virtual int TakeAnnounced(const std::wstring& commandId) = 0;

    /// The lines of the last records, oldest first, at most 20.
    virtual std::vector<std::string> GetLastLines() const = 0;

    /// Adds an observer (not owned), told until it is removed.
    virtual void AddObserver(IJournalObserver* pObserver) = 0;
    virtual void RemoveObserver(IJournalObserver* pObserver) = 0;
};

}
