#include "Desktop/DesktopTest.h"

namespace vesk
{

/// How the program ends when it is not closed.
class EndingTest : public DesktopTest
{
    Q_OBJECT

private slots:
    void aLostDisplayLosesNothing()
    {
        XServer server;
        QVERIFY2(server.Start(), qPrintable(server.GetError()));
        DesktopSession session(server);
        QVERIFY(session.Start());
        QVERIFY(session.BeginLine());
        QVERIFY(session.ClickView({50, 0}));
        QVERIFY(session.WaitForEntities(1));

        server.Kill();

        QCOMPARE(session.WaitForExit(), 1);
        const QString replayed = session.PathOf("replayed.json");
        QCOMPARE(session.RunOffscreen({"--replay", session.PathOf("journal"), "--model", replayed}),
                 0);
        QCOMPARE(ReadLines(replayed).size(), 1);
        // Nobody has decided about it.
        QVERIFY(!ReadBytes(session.PathOf("journal")).contains("\"close\""));
        AcceptErrorOutput();
    }
};

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::EndingTest);
#include "EndingTest.moc"
