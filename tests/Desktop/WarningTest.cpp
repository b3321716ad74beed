#include "Desktop/DesktopTest.h"

#include <QJsonDocument>

namespace vesk
{

namespace
{

const DesktopSession::Environment s_attended = {{"VESK_UNATTENDED", "0"}};

}

/// Debug warnings that the program raises on request, and a user disturbed by them.
class WarningTest : public DesktopTest
{
    Q_OBJECT

private slots:
    void aWarningIsShownAndIgnored();
    void aWarningOfAnotherThreadIsShown();
    void aWarningWhileOneIsShownIsCounted();
    void aStormFromPaintingShowsOneDialog();
    void ignoringAllEndsTheStorm();
    void aLoopOfWarningsIsShownAFewTimes();
    void unattendedALoopOfWarningsIsLogged();

private:
    bool Begin(const QString& kind);
    bool WaitForWarning(const QString& function);
    bool WaitForNoWarning();
    QVector<QJsonObject> ReadLog();
    QVector<QJsonObject> CloseAndReadLog();
};

/// Restarts the program so that it raises warnings of that kind.
bool WarningTest::Begin(const QString& kind)
{
    KillProgram();
    AcceptWarnings();
    return Session().Launch({"--raise-warnings", kind}, s_attended);
}

bool WarningTest::WaitForWarning(const QString& function)
{
    const auto isShown = [&function](const UiTree& tree) {
        return tree.GetJson()["warning"].toObject()["function"] == "WarningRaiser::" + function;
    };
    return Session().WaitFor(isShown) &&
           PollUntil([this] { return Session().Input().HasKeyboard(QStringLiteral("调试警告")); });
}

bool WarningTest::WaitForNoWarning()
{
    return Session().WaitFor([](const UiTree& tree) { return !tree.HasWarning(); });
}

QVector<QJsonObject> WarningTest::ReadLog()
{
    QVector<QJsonObject> lines;
    for (const QByteArray& line : Session().GetWarnings().split('\n'))
    {
        if (!line.isEmpty())
            lines.append(QJsonDocument::fromJson(line).object());
    }
    return lines;
}

QVector<QJsonObject> WarningTest::CloseAndReadLog()
{
    return CloseProgram() ? ReadLog() : QVector<QJsonObject>();
}

void WarningTest::aWarningIsShownAndIgnored()
{
    QVERIFY(Begin("plain"));
    QVERIFY(WaitForWarning("RaisePlain"));

    QVERIFY(Session().Input().Keys({"Escape"}));

    QVERIFY(WaitForNoWarning());
    QCOMPARE(CloseAndReadLog().size(), 1);
}

void WarningTest::aWarningOfAnotherThreadIsShown()
{
    QVERIFY(Begin("thread"));
    QVERIFY(WaitForWarning("RaiseInThread"));

    QVERIFY(Session().Input().Keys({"Return"}));

    QVERIFY(WaitForNoWarning());
    const QVector<QJsonObject> log = CloseAndReadLog();
    QCOMPARE(log.size(), 1);
    QCOMPARE(log[0]["function"].toString(), QString("WarningRaiser::RaiseInThread"));
}

void WarningTest::aWarningWhileOneIsShownIsCounted()
{
    QVERIFY(Begin("nested"));
    QVERIFY(WaitForWarning("RaisePlain"));
    QVERIFY(Session().WaitFor([](const UiTree& tree) {
        return tree.GetJson()["warning"].toObject()["suppressed"].toInt() == 1;
    }));
    QCOMPARE(Session().Tree().GetJson()["warning"].toObject()["function"].toString(),
             QString("WarningRaiser::RaisePlain"));

    QVERIFY(Session().Input().Keys({"Escape"}));

    QVERIFY(WaitForNoWarning());
    const QVector<QJsonObject> log = CloseAndReadLog();
    QCOMPARE(log.size(), 2);
    QVERIFY(log[0]["line"] != log[1]["line"]);
}

void WarningTest::aStormFromPaintingShowsOneDialog()
{
    QVERIFY(Begin("paint"));
    QVERIFY(WaitForWarning("RaiseInPaint"));
    const int windows = Session().Input().CountWindows();

    // The storm of warnings continues behind the dialog.
    QVERIFY(Session().WaitFor([](const UiTree& tree) {
        return tree.GetJson()["warning"].toObject()["suppressed"].toInt() > 50;
    }));

    QCOMPARE(Session().Input().CountWindows(), windows);
    QVERIFY(Session().Input().Keys({"Tab", "Return"}));
    QVERIFY(WaitForNoWarning());
}

void WarningTest::ignoringAllEndsTheStorm()
{
    QVERIFY(Begin("paint"));
    QVERIFY(WaitForWarning("RaiseInPaint"));

    QVERIFY(Session().Input().Keys({"Tab", "Return"}));

    QVERIFY(WaitForNoWarning());
    QVERIFY(Session().Click("Sketcher.Line"));
    QVERIFY(Session().WaitForAction("Sketcher.Line"));
    const QVector<QJsonObject> log = CloseAndReadLog();
    QVERIFY(log.size() <= 11);
    QVERIFY(!Session().Tree().HasWarning());
}

void WarningTest::aLoopOfWarningsIsShownAFewTimes()
{
    QVERIFY(Begin("loop"));
    QVERIFY(WaitForWarning("RaiseInLoop"));

    QVERIFY(Session().Input().Keys({"Escape"}));

    QVERIFY(WaitForNoWarning());
    const QVector<QJsonObject> log = CloseAndReadLog();
    QCOMPARE(log.size(), 11);
    QCOMPARE(log.last()["count"].toInt(), 10000);
    QCOMPARE(log.last()["suppressed"].toInt(), 9990);
}

void WarningTest::unattendedALoopOfWarningsIsLogged()
{
    KillProgram();
    AcceptWarnings();

    QVERIFY(Session().Start({"--raise-warnings", "loop"}));

    QVERIFY(!Session().Tree().HasWarning());
    const QVector<QJsonObject> log = CloseAndReadLog();
    QCOMPARE(log.size(), 11);
    QCOMPARE(log.last()["count"].toInt(), 10000);
}

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::WarningTest);
#include "WarningTest.moc"
