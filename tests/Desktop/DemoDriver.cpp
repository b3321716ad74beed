// Draws a house in the program with real clicks and keys, on a display of its own, and checks what
// came out. usage: desktop_demo FOLDER (for the pictures)

#include "Desktop/DesktopSession.h"
#include "Support/XServer.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdio>

namespace vesk
{

namespace
{

constexpr double TOLERANCE = 1e-9;

/// One line to draw: from the click at `start`, or from the end of the previous line.
struct DemoLine
{
    std::optional<QPointF> start;
    QString length;
    QString angle;  ///< Empty: typed without Tab, in the direction of the cursor.
    QPointF cursor; ///< Position of the cursor until an angle is typed.
};

const QVector<DemoLine>& House()
{
    static const QVector<DemoLine> s_lines = {
        {QPointF(-150.0, -130.0), "300", "0", {}},
        {{}, "180", "90", {}},
        {{}, "173.20508075688772", "150", {}},
        {{}, "173.20508075688772", "-150", {}},
        {{}, "180", "270", {}},
        {QPointF(-110.0, -130.0), "95.25", "90", {}},
        {{}, "55.5", "0", {}},
        {{}, "95.25", "-90", {}},
        {QPointF(20.0, -60.0), "80", "", QPointF(140.0, -60.0)},
        {{}, "70.125", "90", {}},
        {{}, "80", "180", {}},
        {{}, "70.125", "-90", {}},
        {QPointF(150.0, -130.0), "125.5", "30", {}},
    };
    return s_lines;
}

bool Fail(const char* what)
{
    std::fprintf(stderr, "demo: %s\n", what);
    return false;
}

bool Draw(DesktopSession& session, const DemoLine& line, int number, const QString& pictures)
{
    if (line.start)
    {
        if (!session.BeginLine(*line.start))
            return Fail("the line tool does not start");
    }
    if (line.angle.isEmpty() && !session.MoveInView(line.cursor))
        return Fail("the mouse does not move");
    if (!session.Type(line.length))
        return Fail("no key goes in");
    if (number == 3 && session.WaitForRest())
        session.Input().TakePicture(pictures + "/typing.png");
    QStringList rest;
    if (!line.angle.isEmpty())
        rest << "Tab" << InputDriver::Text(line.angle);
    return session.Input().Keys(rest << "Return") && session.WaitForEntities(number);
}

bool DrawAll(DesktopSession& session, const QString& pictures)
{
    int number = 0;
    for (const DemoLine& line : House())
    {
        if (!Draw(session, line, ++number, pictures))
            return Fail(qPrintable("no line came of " + line.length + " " + line.angle));
    }
    session.WaitForRest();
    session.Input().TakePicture(pictures + "/drawing.png");
    session.Input().Keys({"Escape"});
    if (!session.WaitForAction(QString()) || !session.Click("Sketcher.ZoomAll"))
        return Fail("zooming to all does not work");
    const double before = session.Tree().FindView()->worldPerPixel;
    const bool isZoomed = session.WaitFor(
        [&](const UiTree& tree) { return tree.FindView()->worldPerPixel != before; });
    if (!isZoomed || !session.BeginLine(QPointF(-150.0, -130.0)) ||
        !session.MoveInView(QPointF(20.0, 60.0)) || !session.Type("212.5") ||
        !session.WaitForRest())
        return Fail("the last picture cannot be taken");
    return session.Input().TakePicture(pictures + "/sketcher.png");
}

/// Prints what was typed and what it became. Returns true if they agree.
bool Report(const DemoLine& typed, const DrawnLine& drawn)
{
    const double lengthError = qAbs(drawn.GetLength() - typed.length.toDouble());
    const double angleError =
        typed.angle.isEmpty() ? 0.0 : AngleBetween(drawn.GetAngle(), typed.angle.toDouble());
    const bool isRight = lengthError <= TOLERANCE && angleError <= TOLERANCE;
    const QString keys =
        typed.angle.isEmpty() ? typed.length : typed.length + " Tab " + typed.angle;
    std::printf("%-30s length %.12g (off by %.1e), angle %.12g (off by %.1e)%s\n", qPrintable(keys),
                drawn.GetLength(), lengthError, drawn.GetAngle(), angleError,
                isRight ? "" : "  WRONG");
    return isRight;
}

bool Check(const QVector<DrawnLine>& lines)
{
    if (lines.size() != House().size())
        return Fail("the drawing has another number of lines than were typed");
    bool isRight = true;
    for (int i = 0; i < lines.size(); ++i)
        isRight = Report(House()[i], lines[i]) && isRight;
    return isRight || Fail("a value differs from what was typed");
}

bool Run(const QString& pictures)
{
    QDir().mkpath(pictures);
    XServer server;
    if (!server.Start())
        return Fail(qPrintable(server.GetError()));
    DesktopSession session(server);
    if (!session.Start())
        return Fail("the program did not start");
    if (!DrawAll(session, pictures))
    {
        session.SaveEvidence(pictures + "/failure");
        return false;
    }
    if (session.Close() != 0)
        return Fail("the program does not end well");
    if (!session.GetWarnings().isEmpty())
        return Fail(session.GetWarnings().constData());
    return Check(session.Lines());
}

}

}

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const QString pictures = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString("demo");
    const bool isRight = vesk::Run(pictures);
    if (isRight)
        std::printf("All values came out as typed. Pictures: %s\n", qPrintable(pictures));
    return isRight ? 0 : 1;
}
