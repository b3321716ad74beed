#pragma once

#include <QString>

#include <memory>

class QLockFile;

/// Tells other programs that a drawing file is open, by a hidden file beside it.
///
/// The lock ends with the object. One that a program has left behind when it died is taken over.
class DocumentLock final
{
public:
    enum class State
    {
        Held,
        InUse,      ///< Another program has the file open.
        Impossible, ///< No file can be created in the folder.
    };

    /// Tries to lock the file at that path, directly or through links, without waiting.
    explicit DocumentLock(const QString& path);
    ~DocumentLock();

    State GetState() const { return m_state; }

    /// On screen: which program has the file open, as far as can be known.
    const QString& GetHolder() const { return m_holder; }

private:
    std::unique_ptr<QLockFile> m_pFile;
    State m_state = State::Impossible;
    QString m_holder;
};
