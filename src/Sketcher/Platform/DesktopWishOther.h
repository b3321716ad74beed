#pragma once

#include <QDBusAbstractInterface>
#include <QObject>
#include <QString>

class DesktopWish;
class QDBusVariant;

/// The settings of the desktop, which every desktop that has such settings offers to programs on
/// the session's bus in the same way.
class DesktopPortal final : public QDBusAbstractInterface
{
    Q_OBJECT

public:
    DesktopPortal();

signals:
    /// Named as on the bus.
    void SettingChanged(const QString& space, const QString& key, const QDBusVariant& value);
};

/// Tells a wish what the portal says, now and when it changes.
class DesktopPortalReader final : public QObject
{
    Q_OBJECT

public:
    /// The wish is not owned and outlives this.
    explicit DesktopPortalReader(DesktopWish& wish);

private:
    void OnChanged(const QString& space, const QString& key, const QDBusVariant& value);
    void Ask(const QString& key);
    void Take(const QString& key, uint value);

    DesktopWish& m_wish;
    DesktopPortal m_portal;
};
