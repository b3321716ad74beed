#include "Desktop/DesktopTest.h"

namespace vesk
{

/// The journal contains everything that was finished, and restores it to the last bit.
class ReplayTest : public DesktopTest
{
    Q_OBJECT

private slots:
    void sessionIsReplayedToTheLastBit_data();
    void sessionIsReplayedToTheLastBit();
    void killedProgramLosesNothingThatWasFinished();
    void tornLastLineChangesNothing();
    void unknownCommandStopsTheReplay();
    void badLineIsNotReplayed();

private:
    void DrawTwoLines();
    void RunWholeSession();
    int Replay(const QString& journal, const DesktopSession::Environment& environment = {});
};

void ReplayTest::DrawTwoLines()
{
    QVERIFY(Session().BeginLine(QPointF(-100.0, -40.0)));
    QVERIFY(Session().Type("125.5", {"Tab", "3", "0", "Return"}));
    QVERIFY(Session().WaitForEntities(1));
    QVERIFY(Session().ClickView(QPointF(37.0, 111.0)));
    QVERIFY(Session().WaitForEntities(2));
}

void ReplayTest::RunWholeSession()
{
    DrawTwoLines();
    QVERIFY(Session().Click("Sketcher.DrawingName"));
    QVERIFY(Session().Type("", QStringList{"ctrl+a"} + InputDriver::Text("Plan 7") +
                                   QStringList{"Return"}));
    QVERIFY(Session().Click("Sketcher.ZoomAll"));
    QVERIFY(Session().BeginLine(QPointF(10.3, -20.7)));
    QVERIFY(Session().MoveInView(QPointF(40.0, -31.0)));
    QVERIFY(Session().Type("0.333333333", {"Return"}));
    QVERIFY(Session().WaitForEntities(3));
    QVERIFY(Session().Type("77.7", {"Tab", "minus", "1", "2", "period", "7", "Return"}));
    QVERIFY(Session().WaitForEntities(4));
    QVERIFY(Session().Click("Sketcher.Undo"));
    QVERIFY(Session().WaitForEntities(3));
    QVERIFY(Session().Click("Sketcher.Erase"));
    QVERIFY(Session().WaitForAction("Sketcher.Erase"));
    QVERIFY(Session().ClickView(QPointF(-100.0, -40.0) + QPointF(54.34, 31.37)));
    QVERIFY(Session().WaitForEntities(2));
}

int ReplayTest::Replay(const QString& journal, const DesktopSession::Environment& environment)
{
    return Session().RunOffscreen({"--replay", journal, "--model",
                                   Session().PathOf("replayed.json"), "--log",
                                   Session().PathOf("warnings.log")},
                                  environment);
}

void ReplayTest::sessionIsReplayedToTheLastBit_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("scale");
    QTest::newRow("as recorded") << "C.UTF-8"
                                 << "1";
    QTest::newRow("a decimal comma") << "de_DE.UTF-8"
                                     << "1";
    QTest::newRow("at twice the scale") << "C.UTF-8"
                                        << "2";
}

void ReplayTest::sessionIsReplayedToTheLastBit()
{
    QFETCH(QString, locale);
    QFETCH(QString, scale);
    // A locale of its own: the machine may have none but C.
    QCOMPARE(QProcess::execute("localedef", {"--no-archive", "-i", "de_DE", "-f", "UTF-8",
                                             Session().PathOf("de_DE.UTF-8")}),
             0);
    RunWholeSession();
    QCOMPARE(CloseAndReadLines().size(), 2);

    const int exitCode =
        Replay(Session().PathOf("journal"),
               {{"LC_ALL", locale}, {"LOCPATH", Session().PathOf("")}, {"QT_SCALE_FACTOR", scale}});

    QCOMPARE(exitCode, 0);
    const QByteArray drawn = ReadBytes(Session().PathOf("model.json"));
    QVERIFY(!drawn.isEmpty());
    QCOMPARE(ReadBytes(Session().PathOf("replayed.json")), drawn);
}

void ReplayTest::killedProgramLosesNothingThatWasFinished()
{
    DrawTwoLines();
    QVERIFY(Session().Type("99"));
    QVERIFY(Session().WaitForEditor("99"));
    KillProgram();

    const int exitCode = Replay(Session().PathOf("journal"));

    QCOMPARE(exitCode, 0);
    QVERIFY(Session().GetErrorOutput().contains("Sketcher.Line"));
    const QVector<DrawnLine> lines = ReadLines(Session().PathOf("replayed.json"));
    QCOMPARE(lines.size(), 2);
    QVERIFY(qAbs(lines[0].GetLength() - 125.5) <= 1e-9);
    QVERIFY(AngleBetween(lines[0].GetAngle(), 30.0) <= 1e-9);
    AcceptErrorOutput();
}

void ReplayTest::tornLastLineChangesNothing()
{
    DrawTwoLines();
    QCOMPARE(CloseAndReadLines().size(), 2);
    const QByteArray whole = ReadBytes(Session().PathOf("journal"));
    const QByteArray lastLine = whole.mid(whole.lastIndexOf('\n', -2) + 1);
    QVERIFY(WriteBytes(Session().PathOf("torn"), whole + lastLine.left(lastLine.size() / 2)));

    const int exitCode = Replay(Session().PathOf("torn"));

    QCOMPARE(exitCode, 0);
    QCOMPARE(ReadBytes(Session().PathOf("replayed.json")),
             ReadBytes(Session().PathOf("model.json")));
}

void ReplayTest::unknownCommandStopsTheReplay()
{
    DrawTwoLines();
    QVERIFY(Session().Click("Sketcher.Erase"));
    QVERIFY(Session().WaitForAction("Sketcher.Erase"));
    QCOMPARE(CloseAndReadLines().size(), 2);
    const QByteArray journal = ReadBytes(Session().PathOf("journal"));
    QVERIFY(WriteBytes(Session().PathOf("foreign"),
                       QByteArray(journal).replace("Sketcher.Erase", "Sketcher.Fly")));

    const int exitCode = Replay(Session().PathOf("foreign"));

    QCOMPARE(exitCode, 3);
    QVERIFY(Session().GetErrorOutput().contains("Sketcher.Fly"));
    QCOMPARE(ReadLines(Session().PathOf("replayed.json")).size(), 2);
    AcceptErrorOutput();
}

void ReplayTest::badLineIsNotReplayed()
{
    DrawTwoLines();
    QCOMPARE(CloseAndReadLines().size(), 2);
    QVERIFY(WriteBytes(Session().PathOf("bad"),
                       "no record\n" + ReadBytes(Session().PathOf("journal"))));

    const int exitCode = Replay(Session().PathOf("bad"));

    QCOMPARE(exitCode, 2);
    QVERIFY(!Session().GetErrorOutput().isEmpty());
    QVERIFY(!QFile::exists(Session().PathOf("replayed.json")));
    AcceptErrorOutput();
}

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::ReplayTest);
#include "ReplayTest.moc"
