#pragma once

#include <QString>

namespace vesk::test
{

/// A library, loaded as a host loads it and unloaded by the destructor.
class LoadedLibrary
{
public:
    explicit LoadedLibrary(const QString& path);
    ~LoadedLibrary() { Unload(); }
    LoadedLibrary(const LoadedLibrary&) = delete;
    LoadedLibrary& operator=(const LoadedLibrary&) = delete;

    bool IsLoaded() const { return m_pHandle != nullptr; }

    /// Why it could not be loaded; empty if it was.
    QString GetError() const { return m_error; }

    void Unload();

    /// True as long as anything keeps the library of this path in the process.
    static bool IsInTheProcess(const QString& path);

private:
    void* m_pHandle;
    QString m_error;
};

}
