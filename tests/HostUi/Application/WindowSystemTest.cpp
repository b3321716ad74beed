#include "HostUi/WindowSystem.h"

#include "Support/ScopedVariable.h"
#include "Support/TestValues.h"

namespace vesk
{

class WindowSystemTest final : public QObject
{
    Q_OBJECT

private slots:
    void xIsTakenOnlyInAWaylandSessionThatHasIt_data()
    {
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("wayland");
        QTest::addColumn<QString>("x");
        QTest::addColumn<QString>("expected");

        const QString none;
        QTest::newRow("Wayland with an X server") << none << "wayland-0"
                                                  << ":0"
                                                  << "xcb;wayland";
        QTest::newRow("Wayland alone") << none << "wayland-0" << none << none;
        QTest::newRow("X") << none << none << ":0" << none;
        QTest::newRow("neither") << none << none << none << none;
        QTest::newRow("somebody has chosen") << "wayland"
                                             << "wayland-0"
                                             << ":0"
                                             << "wayland";
    }

    void xIsTakenOnlyInAWaylandSessionThatHasIt()
    {
        QFETCH(QString, chosen);
        QFETCH(QString, wayland);
        QFETCH(QString, x);
        const ScopedVariable platform("QT_QPA_PLATFORM", chosen);
        const ScopedVariable session("WAYLAND_DISPLAY", wayland);
        const ScopedVariable display("DISPLAY", x);

        ChooseWindowSystem();

        QTEST(qEnvironmentVariable("QT_QPA_PLATFORM"), "expected");
    }
};

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::WindowSystemTest);
#include "WindowSystemTest.moc"
