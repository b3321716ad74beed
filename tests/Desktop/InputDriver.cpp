#include "Desktop/InputDriver.h"

#include "Support/Polling.h"

#include <QHash>
#include <QProcess>
#include <QProcessEnvironment>

namespace vesk
{

namespace
{

bool Run(const QString& display, const QString& program, const QStringList& arguments,
         QByteArray* pOutput = nullptr)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", display);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (!process.waitForFinished(PATIENCE_MS))
        return false;
    if (pOutput != nullptr)
        *pOutput = process.readAllStandardOutput();
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

QString KeyName(QChar character)
{
    static const QHash<QChar, QString> s_names = {
        {'.', "period"}, {',', "comma"},      {'-', "minus"},       {'+', "plus"},
        {' ', "space"},  {'(', "parenleft"},  {')', "parenright"},  {'*', "asterisk"},
        {'/', "slash"},  {'_', "underscore"}, {'=', "equal"},       {'\'', "apostrophe"},
        {':', "colon"},  {'"', "quotedbl"},   {'^', "asciicircum"}, {'@', "at"}};
    return s_names.value(character, QString(character));
}

}

InputDriver::InputDriver(QString display, QString devices)
    : m_display(std::move(display)), m_devices(std::move(devices))
{}

bool InputDriver::Keys(const QStringList& keys, int keysPerSecond) const
{
    return Xdotool(QStringList{"key", "--delay", QString::number(1000 / keysPerSecond)} + keys);
}

QStringList InputDriver::Text(const QString& text)
{
    QStringList keys;
    for (const QChar character : text)
        keys << KeyName(character);
    return keys;
}

bool InputDriver::KeyDown(const QString& key) const
{
    return Xdotool({"keydown", key});
}

bool InputDriver::KeyUp(const QString& key) const
{
    return Xdotool({"keyup", key});
}

bool InputDriver::MoveTo(QPoint position) const
{
    return Xdotool({"mousemove", QString::number(position.x()), QString::number(position.y())});
}

bool InputDriver::Click(QPoint position, int button) const
{
    return Xdotool({"mousemove", QString::number(position.x()), QString::number(position.y()),
                    "click", "--delay", "5", QString::number(button)}) &&
           WaitForWindowManager();
}

bool InputDriver::ClickAll(const QList<QPoint>& positions) const
{
    QStringList arguments;
    for (const QPoint position : positions)
        arguments << "mousemove" << QString::number(position.x()) << QString::number(position.y())
                  << "click"
                  << "--delay"
                  << "10"
                  << "1";
    return Xdotool(arguments);
}

bool InputDriver::Drag(QPoint from, QPoint to) const
{
    constexpr int Steps = 20;
    QStringList arguments = {"mousemove", QString::number(from.x()), QString::number(from.y()),
                             "mousedown", "1"};
    for (int step = 1; step <= Steps; ++step)
    {
        const QPoint place = from + (to - from) * step / Steps;
        arguments << "mousemove" << QString::number(place.x()) << QString::number(place.y())
                  << "sleep"
                  << "0.02";
    }
    return Xdotool(arguments + QStringList{"sleep", "0.3", "mouseup", "1"}) &&
           WaitForWindowManager();
}

bool InputDriver::Wheel(int steps) const
{
    return Xdotool(
        {"click", "--repeat", QString::number(qAbs(steps)), "--delay", "5", steps > 0 ? "4" : "5"});
}

bool InputDriver::HasKeyboard(const QString& title) const
{
    QByteArray name;
    return Ask("xdotool", {"getactivewindow", "getwindowname"}, &name) &&
           QString::fromUtf8(name).trimmed() == title;
}

QString InputDriver::GetKeyboardOwner() const
{
    QByteArray number;
    Ask("xdotool", {"getwindowfocus", "-f"}, &number);
    return QString::fromLatin1(number).trimmed();
}

bool InputDriver::CloseMainWindow() const
{
    QByteArray clients;
    if (!Ask("xprop", {"-root", "_NET_CLIENT_LIST"}, &clients))
        return false;
    const int begin = clients.indexOf("0x");
    if (begin < 0)
        return false;
    const QByteArray window = clients.mid(begin).split(',').first().trimmed();
    return Ask("xdotool", {"windowactivate", "--sync", QString::fromLatin1(window)}) &&
           Xdotool({"key", "alt+F4"});
}

bool InputDriver::ResizeScreen(QSize size) const
{
    const QString mode = QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
    const auto numbers = [](int first) {
        return QStringList{QString::number(first), QString::number(first + 8),
                           QString::number(first + 16), QString::number(first + 32)};
    };
    // The server has no physical display, so any timing will do. It may already know the mode.
    Ask("xrandr",
        QStringList{"--newmode", mode, "40"} + numbers(size.width()) + numbers(size.height()));
    Ask("xrandr", {"--addmode", "screen", mode});
    return Ask("xrandr", {"--output", "screen", "--mode", mode});
}

bool InputDriver::TakePicture(const QString& file) const
{
    return Run(m_devices, "import", {"-window", "root", file});
}

bool InputDriver::HasWindowAt(const QRect& rect) const
{
    QByteArray windows;
    const QString size = QString("%1x%2+").arg(rect.width()).arg(rect.height());
    const QString place = QString("+%1+%2").arg(rect.x()).arg(rect.y());
    if (!Ask("xwininfo", {"-root", "-tree"}, &windows))
        return false;
    for (const QByteArray& line : windows.split('\n'))
    {
        if (line.contains(size.toLatin1()) && line.endsWith("  " + place.toLatin1()))
            return true;
    }
    return false;
}

int InputDriver::CountWindows() const
{
    QByteArray windows;
    Ask("xdotool", {"search", "--onlyvisible", "--class", "sketcher"}, &windows);
    return windows.count('\n');
}

bool InputDriver::WaitForWindowManager() const
{
    // A Wayland session passes everything on in order.
    if (m_devices != m_display)
        return true;
    // The window manager handles one request after the other: once it has handled this one, it has
    // passed on the click.
    QByteArray before;
    if (!Ask("xdotool", {"get_num_desktops"}, &before))
        return false;
    const QByteArray wanted = before.trimmed() == "2" ? "3" : "2";
    if (!Xdotool({"set_num_desktops", QString::fromLatin1(wanted)}))
        return false;
    return PollUntil([&] {
        QByteArray now;
        return Ask("xdotool", {"get_num_desktops"}, &now) && now.trimmed() == wanted;
    });
}

bool InputDriver::Xdotool(const QStringList& arguments) const
{
    return Run(m_devices, "xdotool", arguments);
}

bool InputDriver::Ask(const QString& program, const QStringList& arguments,
                      QByteArray* pOutput) const
{
    return Run(m_display, program, arguments, pOutput);
}

}
