#include "Desktop/DesktopTest.h"

#include <QRegularExpression>

namespace vesk
{

namespace
{

/// This many switches are sent as one burst before anything is checked.
constexpr int BURST = 10;

/// A value from /proc/<pid>/status in kB; -1 if it does not exist.
int ReadStatus(qint64 processId, const char* field)
{
    const QString status =
        QString::fromLatin1(ReadBytes(QString("/proc/%1/status").arg(processId)));
    const QRegularExpression line(QString("^%1:\\s+(\\d+) kB").arg(field),
                                  QRegularExpression::MultilineOption);
    const QRegularExpressionMatch match = line.match(status);
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

}

/// Switching between tools all day costs nothing.
class ToolSwitchTest : public DesktopTest
{
    Q_OBJECT

private slots:
    void manySwitchesLeaveTheStackAsItWas();

private:
    void Switch(int count);
    bool EndWithErase(QPoint erase);
    int CountCommands();
};

bool ToolSwitchTest::EndWithErase(QPoint erase)
{
    const auto runs = [](const UiTree& tree) { return tree.GetAction() == "Sketcher.Erase"; };
    // On a busy machine the window manager loses about one click in several hundred, in any
    // program.
    return Session().WaitFor(runs, 2000) ||
           (Session().Input().Click(erase) && Session().WaitFor(runs));
}

int ToolSwitchTest::CountCommands()
{
    return ReadBytes(Session().PathOf("journal")).count("\"kind\":\"command\"");
}

/// Switches until the program has started this many commands: a busy machine may lose clicks.
void ToolSwitchTest::Switch(int count)
{
    const QPoint line = Session().Tree().FindControl("Sketcher.Line")->rect.center();
    const QPoint erase = Session().Tree().FindControl("Sketcher.Erase")->rect.center();
    QList<QPoint> places;
    for (int i = 0; i < BURST; ++i)
        places << (i % 2 == 0 ? line : erase);
    const int last = CountCommands() + count;
    while (CountCommands() < last)
    {
        QVERIFY(Session().Input().ClickAll(places));
        QVERIFY(EndWithErase(erase));
    }
}

void ToolSwitchTest::manySwitchesLeaveTheStackAsItWas()
{
    const int count = CountFromEnvironment("VESK_DESKTOP_SWITCHES", 2000);
    QVERIFY(Session().BeginLine());
    Switch(2 * BURST);
    const int stackBefore = ReadStatus(Session().GetProcessId(), "VmStk");
    const int memoryBefore = ReadStatus(Session().GetProcessId(), "VmRSS");
    QVERIFY(stackBefore > 0);

    Switch(count);

    const int stackAfter = ReadStatus(Session().GetProcessId(), "VmStk");
    const int memoryAfter = ReadStatus(Session().GetProcessId(), "VmRSS");
    qInfo("%d switches: stack %d kB, then %d kB; memory %d kB, then %d kB", count, stackBefore,
          stackAfter, memoryBefore, memoryAfter);
    QVERIFY(stackAfter - stackBefore <= 16);
    QVERIFY(memoryAfter - memoryBefore <= 20 * 1024);

    QVERIFY(Session().BeginLine(QPointF(-50.0, 0.0)));
    QVERIFY(Session().Type("12.5", {"Return"}));
    QVERIFY(DrawsOneLine(12.5));
}

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::ToolSwitchTest);
#include "ToolSwitchTest.moc"
