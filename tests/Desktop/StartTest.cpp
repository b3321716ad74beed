#include "Desktop/DesktopTest.h"

namespace vesk
{

/// What the program needs to start.
class StartTest : public DesktopTest
{
    Q_OBJECT

private slots:
    void noDriverOfOpenGLIsLoaded()
    {
        const QByteArray mapped =
            ReadBytes(QStringLiteral("/proc/%1/maps").arg(Session().GetProcessId()));

        QVERIFY(mapped.contains("Widgets.so"));
        QVERIFY(!mapped.contains("libGLX_"));
        QVERIFY(!mapped.contains("_dri.so"));
        QVERIFY(CloseProgram());
    }
};

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::StartTest);
#include "StartTest.moc"
