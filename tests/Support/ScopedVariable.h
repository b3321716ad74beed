#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

/// An environment variable that names a path, for the lifetime of this object.
class ScopedVariable final
{
public:
    ScopedVariable(const char* pName, const QString& path)
        : m_pName(pName), m_before(qgetenv(pName))
    {
        qputenv(pName, QFile::encodeName(path));
    }

    ~ScopedVariable()
    {
        if (m_before.isNull())
            qunsetenv(m_pName);
        else
            qputenv(m_pName, m_before);
    }

    ScopedVariable(const ScopedVariable&) = delete;
    ScopedVariable& operator=(const ScopedVariable&) = delete;

private:
    const char* m_pName;
    QByteArray m_before;
};
