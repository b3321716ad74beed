#include "VeskUiQtImpl/Control/FileIcons.h"

#include "VeskUiQtImpl/Platform/FileStamp.h"

#include "HostUi/QtText.h"

#include <QCoreApplication>
#include <QResource>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <unordered_map>

namespace vesk
{
namespace
{

using Clock = std::chrono::steady_clock;

/// So short that the times of files hardly tell more, and long enough for a thousand buttons.
constexpr std::chrono::milliseconds BetweenLooks(10);

/// Icons take little until they are painted, and then some kilobytes.
constexpr std::size_t MostIcons = 2048;

bool IsResource(const QString& path)
{
    return path.startsWith(':');
}

/// For a resource, which has no time, its place in memory stands in.
FileStamp ReadResourceStamp(const QString& path)
{
    const QResource resource(path);
    return {resource.isValid(), reinterpret_cast<std::intptr_t>(resource.data()),
            static_cast<std::uint64_t>(resource.size())};
}

/// An icon as it was read.
class KeptIcon
{
public:
    /// The stamp is older than the icon, so that no change is missed.
    explicit KeptIcon(const QString& path)
        : m_file(IsResource(path) ? NativePath() : ToNativePath(path)),
          m_resource(IsResource(path) ? path : QString()), m_stamp(ReadStamp()), m_icon(path)
    {}

    const QIcon& GetIcon() const { return m_icon; }
    bool Exists() const { return m_stamp.exists; }

    bool IsUpToDate()
    {
        const Clock::time_point now = Clock::now();
        if (now - m_foundUpToDateAt < BetweenLooks)
            return true;
        const bool isUpToDate = ReadStamp() == m_stamp;
        if (isUpToDate)
            m_foundUpToDateAt = now;
        return isUpToDate;
    }

private:
    FileStamp ReadStamp() const
    {
        return m_file.empty() ? ReadResourceStamp(m_resource) : ReadFileStamp(m_file);
    }

    NativePath m_file;
    QString m_resource; ///< In place of a file.
    FileStamp m_stamp;
    QIcon m_icon;
    Clock::time_point m_foundUpToDateAt = Clock::now();
};

/// The icons that have been read, by path.
class IconStore
{
public:
    /// The only one. It is not created with the library, which is loaded before there are buttons.
    static IconStore& Instance()
    {
        static IconStore s_store;
        return s_store;
    }

    /// Must not be called once the application or the library is gone.
    ~IconStore() { qRemovePostRoutine(&Clear); }

    QIcon Get(const std::wstring& path);
    bool IsCurrent(const QIcon& icon, const std::wstring& path);

private:
    /// Icons need the application, which calls this in its destructor.
    static void Clear();

    QIcon Read(const std::wstring& path);
    void DropAll();

    using Icons = std::unordered_map<std::wstring, KeptIcon>;
    Icons m_icons;

    /// The same by their cacheKey, which is found sooner than a path.
    std::unordered_map<qint64, Icons::value_type*> m_byKey;
    bool m_isClearedInTime = false;
};

QIcon IconStore::Get(const std::wstring& path)
{
    if (path.empty())
        return QIcon();
    const auto found = m_icons.find(path);
    if (found != m_icons.end() && found->second.IsUpToDate())
        return found->second.GetIcon();

    if (found != m_icons.end())
    {
        m_byKey.erase(found->second.GetIcon().cacheKey());
        m_icons.erase(found);
    }
    return Read(path);
}

bool IconStore::IsCurrent(const QIcon& icon, const std::wstring& path)
{
    if (path.empty())
        return icon.isNull();
    const auto found = m_byKey.find(icon.cacheKey());
    return found != m_byKey.end() && found->second->first == path &&
           found->second->second.IsUpToDate();
}

QIcon IconStore::Read(const std::wstring& path)
{
    KeptIcon read(ToQString(path));
    if (!read.Exists())
        return read.GetIcon();

    if (!m_isClearedInTime)
        qAddPostRoutine(&Clear);
    m_isClearedInTime = true;
    if (m_icons.size() >= MostIcons)
        DropAll();
    Icons::value_type& kept = *m_icons.emplace(path, std::move(read)).first;
    m_byKey.emplace(kept.second.GetIcon().cacheKey(), &kept);
    return kept.second.GetIcon();
}

void IconStore::DropAll()
{
    m_byKey.clear();
    m_icons.clear();
}

void IconStore::Clear()
{
    Instance().DropAll();
    Instance().m_isClearedInTime = false;
}

}

QIcon FileIcons::Get(const std::wstring& path)
{
    return IconStore::Instance().Get(path);
}

bool FileIcons::IsCurrent(const QIcon& icon, const std::wstring& path)
{
    return IconStore::Instance().IsCurrent(icon, path);
}

}
