#include "Desktop/DesktopTest.h"

namespace vesk
{

namespace
{

/// The digest of the drawing after the last step in a journal; empty if there is none.
QByteArray LastDigest(const QString& journal)
{
    const QByteArray key("\"digest\":\"");
    const QByteArray lines = ReadBytes(journal);
    const int place = lines.lastIndexOf(key);
    return place < 0 ? QByteArray() : lines.mid(place + key.size(), 64);
}

}

/// Entities on their way from one running program to another.
class ClipboardTest : public DesktopTest
{
    Q_OBJECT

private slots:
    void whatOneProgramCopiesAnotherPastes();
    void whatIsCutSurvivesInTheOtherProgram();

private:
    bool DrawThree();
    bool PressUntilRecorded(const QStringList& keys, const QByteArray& commandId);
};

/// Two lines and a circle, in three steps.
bool ClipboardTest::DrawThree()
{
    DesktopSession& session = Session();
    return session.BeginLine() && session.ClickView({120, 40}) && session.ClickView({60, 130}) &&
           session.WaitForEntities(2) && session.Click("Sketcher.Circle") &&
           session.WaitForAction("Sketcher.Circle") && session.ClickView({-150, -80}) &&
           session.ClickView({-100, -80}) && session.WaitForEntities(3) &&
           session.Type("", {"Escape"}) && session.WaitForAction("");
}

bool ClipboardTest::PressUntilRecorded(const QStringList& keys, const QByteArray& commandId)
{
    return Session().Type("", keys) && PollUntil([&] {
               return ReadBytes(Session().PathOf("journal")).contains('"' + commandId + '"');
           });
}

void ClipboardTest::whatOneProgramCopiesAnotherPastes()
{
    QVERIFY(DrawThree());
    QVERIFY(PressUntilRecorded({"ctrl+a", "ctrl+c"}, "Sketcher.Copy"));
    DesktopSession other(Server());
    QVERIFY(other.Start());

    QVERIFY(other.Type("", {"ctrl+v"}));
    QVERIFY(other.WaitForEntities(3));

    // The window that was opened first is closed first.
    QVERIFY(CloseProgram());
    QCOMPARE(other.Close(), 0);
    QCOMPARE(ReadBytes(other.PathOf("model.json")), ReadBytes(Session().PathOf("model.json")));
    QCOMPARE(LastDigest(other.PathOf("journal")).size(), 64);
    QCOMPARE(LastDigest(other.PathOf("journal")), LastDigest(Session().PathOf("journal")));
    QCOMPARE(other.GetErrorOutput(), QString());
    QCOMPARE(other.GetWarnings(), QByteArray());
}

/// The other program's journal does not need the first program, nor its clipboard.
void ClipboardTest::whatIsCutSurvivesInTheOtherProgram()
{
    QVERIFY(DrawThree());
    QVERIFY(PressUntilRecorded({"ctrl+a", "ctrl+x"}, "Sketcher.Cut"));
    QVERIFY(Session().WaitForEntities(0));
    DesktopSession other(Server());
    QVERIFY(other.Start());
    QVERIFY(other.Type("", {"ctrl+v"}));
    QVERIFY(other.WaitForEntities(3));
    // The window that was opened first is closed first.
    QVERIFY(CloseProgram());
    QCOMPARE(other.Close(), 0);

    const QString replayed = other.PathOf("replayed.json");
    QCOMPARE(other.RunOffscreen({"--replay", other.PathOf("journal"), "--model", replayed}), 0);

    QVERIFY(!ReadBytes(replayed).isEmpty());
    QCOMPARE(ReadBytes(replayed), ReadBytes(other.PathOf("model.json")));
}

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::ClipboardTest);
#include "ClipboardTest.moc"
