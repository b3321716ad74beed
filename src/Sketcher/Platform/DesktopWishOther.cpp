#include "Platform/DesktopWishOther.h"

#include "Platform/DesktopWish.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QVariant>

#include <memory>

namespace
{

constexpr char Service[] = "org.freedesktop.portal.Desktop";
constexpr char Path[] = "/org/freedesktop/portal/desktop";
constexpr char Interface[] = "org.freedesktop.portal.Settings";
constexpr char Namespace[] = "org.freedesktop.appearance";
constexpr char ColourScheme[] = "color-scheme";
constexpr char ContrastKey[] = "contrast";

/// The first value of either key that is not the desktop's default: dark, and high.
constexpr uint Asked = 1;

/// The number in as many variants as the desktop has packed it into.
uint Unpack(QVariant value)
{
    while (value.userType() == qMetaTypeId<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value.toUInt();
}

}

DesktopPortal::DesktopPortal()
    : QDBusAbstractInterface(Service, Path, Interface, QDBusConnection::sessionBus(), nullptr)
{}

DesktopPortalReader::DesktopPortalReader(DesktopWish& wish) : m_wish(wish)
{
    connect(&m_portal, &DesktopPortal::SettingChanged, this, &DesktopPortalReader::OnChanged);
    for (const char* key : {ColourScheme, ContrastKey})
        Ask(QLatin1String(key));
}

void DesktopPortalReader::OnChanged(const QString& space, const QString& key,
                                    const QDBusVariant& value)
{
    if (space == QLatin1String(Namespace))
        Take(key, Unpack(value.variant()));
}

void DesktopPortalReader::Ask(const QString& key)
{
    auto* pAnswer = new QDBusPendingCallWatcher(
        m_portal.asyncCall(QStringLiteral("Read"), QString::fromLatin1(Namespace), key), this);
    connect(pAnswer, &QDBusPendingCallWatcher::finished, this, [this, pAnswer, key] {
        pAnswer->deleteLater();
        const QDBusMessage answer = pAnswer->reply();
        if (answer.type() == QDBusMessage::ReplyMessage)
            Take(key, Unpack(answer.arguments().value(0)));
    });
}

void DesktopPortalReader::Take(const QString& key, uint value)
{
    if (key == QLatin1String(ColourScheme))
        m_wish.SetDark(value == Asked);
    else if (key == QLatin1String(ContrastKey))
        m_wish.SetHighContrast(value == Asked);
}

DesktopWish::DesktopWish()
{
    // Without an address the toolkit would start a bus.
    if (!qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS"))
        m_pSource = std::make_unique<DesktopPortalReader>(*this);
}
