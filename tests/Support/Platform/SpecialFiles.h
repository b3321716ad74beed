#pragma once

#include <QString>

#include <memory>

namespace vesk::test
{

/// The path of a device that whoever reads it never reaches the end of.
QString EndlessDevice();

/// A file that the system reports to exist, but does not let anyone read while this object lives.
class UnreadableFile
{
public:
    /// Creates it in that folder, if the system has none already.
    explicit UnreadableFile(const QString& folder);

    const QString& GetPath() const { return m_path; }

private:
    QString m_path;
    std::shared_ptr<void> m_pLock;
};

}
