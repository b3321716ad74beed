#include "Documents/DocumentLock.h"

#include "Model/UiText.h"

#include <QFileInfo>
#include <QLockFile>

namespace
{

/// The same file for all names of a file, also if it does not exist yet.
QString LockPath(const QString& path)
{
    constexpr int MostLinks = 40;
    QFileInfo file(path);
    for (int i = 0; i < MostLinks && file.isSymLink(); ++i)
        file.setFile(file.symLinkTarget());
    return QStringLiteral("%1/.%2.lock").arg(file.absolutePath(), file.fileName());
}

}

DocumentLock::DocumentLock(const QString& path)
    : m_pFile(std::make_unique<QLockFile>(LockPath(path)))
{
    // However old, a lock holds as long as its program runs.
    m_pFile->setStaleLockTime(0);
    if (m_pFile->tryLock(0))
        m_state = State::Held;
    else if (m_pFile->error() == QLockFile::LockFailedError)
        m_state = State::InUse;
    qint64 process = 0;
    QString host;
    QString program;
    if (m_state == State::InUse && m_pFile->getLockInfo(&process, &host, &program))
        m_holder = "%1（%2，进程 %3）"_tr.arg(program, host, QString::number(process));
}

DocumentLock::~DocumentLock() = default;
