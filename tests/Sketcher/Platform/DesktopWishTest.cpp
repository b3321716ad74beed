#include "Platform/DesktopWish.h"

#include "HostUi/Contrast.h"
#include "Settings/Appearance.h"
#include "Support/ScopedVariable.h"
#include "Support/TestValues.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QMap>
#include <QPalette>
#include <QProcess>
#include <QSignalSpy>

#include <memory>

namespace
{

constexpr char Portal[] = "org.freedesktop.portal.Desktop";
constexpr char PortalPath[] = "/org/freedesktop/portal/desktop";
constexpr char PortalSettings[] = "org.freedesktop.portal.Settings";
constexpr char AppearanceSpace[] = "org.freedesktop.appearance";

QVariant Packed(const QVariant& value)
{
    return QVariant::fromValue(QDBusVariant(value));
}

/// A desktop on the bus, which answers what it is told.
class Desktop final : public QDBusVirtualObject
{
public:
    explicit Desktop(QDBusConnection bus) : m_bus(std::move(bus))
    {
        m_bus.registerVirtualObject(PortalPath, this);
        m_bus.registerService(Portal);
    }

    ~Desktop() override
    {
        m_bus.unregisterService(Portal);
        m_bus.unregisterObject(PortalPath);
    }

    void Set(const QString& key, uint value) { m_values[key] = value; }

    void Change(const QString& space, const QString& key, uint value)
    {
        QDBusMessage signal =
            QDBusMessage::createSignal(PortalPath, PortalSettings, "SettingChanged");
        signal << space << key << Packed(value);
        m_bus.send(signal);
    }

    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override
    {
        if (call.member() != "Read" || call.arguments().value(0) != QString(AppearanceSpace))
            return false;
        const QString key = call.arguments().value(1).toString();
        // Two variants, one in the other, as desktops do. What an error says is no value.
        if (m_values.contains(key))
            bus.send(call.createReply(Packed(Packed(m_values[key]))));
        else
            bus.send(call.createErrorReply(QDBusError::InvalidArgs, "1"));
        return true;
    }

    QString introspect(const QString&) const override { return {}; }

private:
    QDBusConnection m_bus;
    QMap<QString, uint> m_values;
};

bool IsDarkShown()
{
    return QApplication::palette().color(QPalette::Base).lightness() < 64;
}

}

/// What the desktop asks programs for, with a desktop of the test's own on a bus of its own.
class DesktopWishTest final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_bus.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
        QVERIFY(m_bus.waitForStarted());
        QVERIFY(m_bus.waitForReadyRead());
        m_address = QString::fromLatin1(m_bus.readLine()).trimmed();
        QVERIFY(!m_address.isEmpty());
        m_pVariable = std::make_unique<ScopedVariable>("DBUS_SESSION_BUS_ADDRESS", m_address);
    }

    void init()
    {
        m_pDesktop = std::make_unique<Desktop>(
            QDBusConnection::connectToBus(m_address, QStringLiteral("desktop")));
    }

    void cleanup()
    {
        m_pDesktop.reset();
        QDBusConnection::disconnectFromBus(QStringLiteral("desktop"));
    }

    void cleanupTestCase()
    {
        QDBusConnection::disconnectFromBus(QStringLiteral("qt_default_session_bus"));
        m_bus.terminate();
        QVERIFY(m_bus.waitForFinished());
    }

    void desktopIsAsked_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<uint>("value");
        QTest::addColumn<bool>("isDark");
        QTest::addColumn<bool>("isHighContrast");

        QTest::newRow("dark") << "color-scheme" << 1u << true << false;
        QTest::newRow("high contrast") << "contrast" << 1u << false << true;
    }

    void desktopIsAsked()
    {
        QFETCH(QString, key);
        QFETCH(uint, value);
        QFETCH(bool, isDark);
        QFETCH(bool, isHighContrast);
        m_pDesktop->Set(key, value);

        const DesktopWish wish;

        QTRY_VERIFY(wish.IsDark() == isDark && wish.IsHighContrast() == isHighContrast);
    }

    /// The toolkit keeps the connection of a wish before.
    void withoutABusNothingIsAskedFor()
    {
        auto pNone = std::make_unique<ScopedVariable>("DBUS_SESSION_BUS_ADDRESS", QString());
        const DesktopWish wish;
        pNone.reset();
        m_pDesktop->Set("color-scheme", 1);
        m_pDesktop->Set("contrast", 1);
        const DesktopWish asked;

        QTRY_VERIFY(asked.IsDark() && asked.IsHighContrast());

        QVERIFY(!wish.IsDark());
        QVERIFY(!wish.IsHighContrast());
    }

    void changeIsTold()
    {
        m_pDesktop->Set("color-scheme", 1);
        const DesktopWish wish;
        QTRY_VERIFY(wish.IsDark());
        const QSignalSpy changes(&wish, &DesktopWish::changed);

        m_pDesktop->Change(AppearanceSpace, "color-scheme", 1);
        m_pDesktop->Change("org.example", "contrast", 1);
        m_pDesktop->Change(AppearanceSpace, "accent-color", 1);
        m_pDesktop->Change(AppearanceSpace, "contrast", 2);
        m_pDesktop->Change(AppearanceSpace, "color-scheme", 2);

        QTRY_VERIFY(!wish.IsDark());
        QCOMPARE(changes.count(), 1);
        m_pDesktop->Change(AppearanceSpace, "contrast", 1);
        m_pDesktop->Change(AppearanceSpace, "contrast", 1);
        m_pDesktop->Change(AppearanceSpace, "color-scheme", 1);
        QTRY_VERIFY(wish.IsDark());
        QVERIFY(wish.IsHighContrast());
        QCOMPARE(changes.count(), 3);
    }

    void programFollows()
    {
        m_pDesktop->Set("color-scheme", 1);
        Appearance appearance;
        QVERIFY(!IsDarkShown());

        appearance.FollowDesktop();
        QTRY_VERIFY(IsDarkShown());
        QVERIFY(!vesk::IsHighContrast(QApplication::palette()));

        m_pDesktop->Change(AppearanceSpace, "contrast", 1);
        QTRY_VERIFY(vesk::IsHighContrast(QApplication::palette()));

        m_pDesktop->Change(AppearanceSpace, "contrast", 0);
        m_pDesktop->Change(AppearanceSpace, "color-scheme", 0);
        QTRY_VERIFY(!IsDarkShown());
    }

    void desktopsColoursComeBackAtTheEnd()
    {
        m_pDesktop->Set("color-scheme", 1);
        auto pAppearance = std::make_unique<Appearance>();
        pAppearance->FollowDesktop();
        QTRY_VERIFY(IsDarkShown());

        pAppearance.reset();

        QVERIFY(!IsDarkShown());
    }

    void paletteThatTheToolkitKnowsStays_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QPalette>("palette");

        QPalette contrast(Qt::white);
        contrast.setColor(QPalette::Base, Qt::white);
        contrast.setColor(QPalette::Text, Qt::black);
        QTest::newRow("dark") << "color-scheme" << QPalette(QColor(0x20, 0x30, 0x40));
        QTest::newRow("high contrast") << "contrast" << contrast;
    }

    void paletteThatTheToolkitKnowsStays()
    {
        QFETCH(QString, key);
        QFETCH(QPalette, palette);
        m_pDesktop->Set(key, 1);
        QApplication::setPalette(palette);
        Appearance appearance;

        appearance.FollowDesktop();
        const DesktopWish asked;
        QTRY_VERIFY(asked.IsDark() || asked.IsHighContrast());

        const QColor base = QApplication::palette().color(QPalette::Base);
        QApplication::setPalette(QPalette());
        QCOMPARE(base, palette.color(QPalette::Base));
    }

    void coloursThatTheUserHasChosenStay()
    {
        m_pDesktop->Set("color-scheme", 1);
        Appearance appearance;
        appearance.FollowDesktop();
        QTRY_VERIFY(IsDarkShown());

        appearance.Set(Settings::Colours::Light);
        QVERIFY(!IsDarkShown());
        m_pDesktop->Change(AppearanceSpace, "contrast", 1);
        m_pDesktop->Change(AppearanceSpace, "color-scheme", 2);
        m_pDesktop->Change(AppearanceSpace, "color-scheme", 1);
        QTest::qWait(0);
        QVERIFY(!IsDarkShown());

        appearance.Set(Settings::Colours::Desktop);
        QTRY_VERIFY(vesk::IsHighContrast(QApplication::palette()));
    }

private:
    QProcess m_bus;
    QString m_address;
    std::unique_ptr<ScopedVariable> m_pVariable;
    std::unique_ptr<Desktop> m_pDesktop;
};

VESK_TESTS(DesktopWishTest);
#include "DesktopWishTest.moc"
