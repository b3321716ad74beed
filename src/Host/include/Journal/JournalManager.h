#pragma once

#include "Foundation/HostExport.h"
#include "Journal/IJournalManager.h"
#include "Journal/JournalRecord.h"

#include <functional>
#include <string>
#include <vector>

namespace vesk
{

/// Notified as the journal grows.
class VESK_HOST_API IJournalObserver
{
public:
    virtual ~IJournalObserver() = default;

    /// A record was written.
    virtual void OnRecord(const JournalRecord& record) = 0;

    /// A widget was announced. The object is valid only during the call.
    virtual void OnUiObject(const IJournalUiObject& object, int kind) = 0;
};

/// The journal of this process.
///
/// Each record is one line, handed to the operating system before what it records is done. Records
/// are numbered and reported to the observers even while no file is open.
///
/// A file that is replaced begins with a header. While there is a digest source, each finished step
/// is followed by a mark.
///
/// A file in use is locked for this program. If a line cannot be written, the file is truncated to
/// its last complete line; each further record first writes what is missing. So the file never has
/// a gap, and its content can be replayed.
///
/// Only GetLastLines may be called from any thread.
class VESK_HOST_API JournalManager : public IJournalManager
{
public:
    /// The journal; it lives as long as the process.
    static JournalManager& GetInstance();

    /// Replaces the file at `path` (UTF-8) and restarts numbering. If it cannot be written or
    /// another program has it open, returns false, changes nothing, and `error` says so in one
    /// sentence.
    virtual bool Open(const std::string& path, std::string& error) = 0;

    /// Locks the file at `path` for this program without changing it, because its records are about
    /// to be replayed: records added before Continue or MoveTo are held back. Restarts numbering.
    /// Returns false and changes nothing in the same cases as Open.
    virtual bool Reserve(const std::string& path, std::string& error) = 0;

    /// Continues in the reserved file, after its last complete line; the records held back are
    /// already in it. The next number is the one after `lastNumber`.
    virtual void Continue(int lastNumber) = 0;

    /// Releases the reserved file and continues in another, which is replaced and receives the
    /// records held back. If that cannot be written, returns false, and no file is open from then
    /// on.
    virtual bool MoveTo(const std::string& path, std::string& error) = 0;

    /// True if another program has the file at `path` (UTF-8) open as its journal; false if it
    /// cannot be determined. Creates and changes nothing.
    virtual bool IsInUse(const std::string& path) const = 0;

    /// Sets the name and version of this program for the headers of files that it begins.
    virtual void SetProgram(const std::wstring& program) = 0;

    /// Sets the version of the records to come: the present one, or 1 while they continue records
    /// of version 1. A file begun with version 1 gets no header, so that it is read as such. Close
    /// restores the present version.
    virtual void SetVersion(int version) = 0;

    /// Sets what computes the digest of the document; empty for no marks.
    virtual void SetDigestSource(std::function<std::string()> source) = 0;

    /// Sets whether marks have a time, and returns the former setting. A replay turns it off: its
    /// times are not the user's.
    virtual bool SetTimed(bool isTimed) = 0;

    /// Sets whether each record is on disk before what it records is done, rather than only with
    /// the operating system. It then survives a power failure.
    virtual void SetSynced(bool isSynced) = 0;

    /// True while every record is in a file (on disk, if that was asked for), or is held back for
    /// one.
    virtual bool IsKept() const = 0;

    /// Closes the file, forgets the last lines and restarts numbering. False if a file was open and
    /// records are missing from it.
    virtual bool Close() = 0;

    /// Writes a record and returns its number. An end record has the number of its command.
    virtual int Add(decltype(JournalRecord::what) what) = 0;

    /// Call when a step is finished: writes a mark if a point, property, undo or redo was recorded
    /// or the document's digest has changed since the last one. The action manager does this after
    /// each operation of an action and each plain command; whoever changes the document outside of
    /// those does it too.
    virtual void FinishStep() = 0;

    /// The number of the command record that a control announced last (AddCommandData), if it is
    /// for that command and has not been taken yet, otherwise 0. Can be taken once only: whoever
    /// runs the command completes the record.
    virtual int TakeAnnounced(const std::wstring& commandId) = 0;

    /// The lines of the last records, oldest first, at most 20.
    virtual std::vector<std::string> GetLastLines() const = 0;

    /// Adds an observer (not owned), notified until it is removed.
    virtual void AddObserver(IJournalObserver* pObserver) = 0;

    /// Removes an observer; an unknown one is ignored.
    virtual void RemoveObserver(IJournalObserver* pObserver) = 0;
};

}
