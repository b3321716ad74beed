#include "Desktop/Photographer.h"

#include "Support/Polling.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <cstdio>

namespace vesk
{
namespace
{

/// What the title of the main window ends with, in every language.
constexpr char MainTitle[] = " - Sketcher";

constexpr QSize Screen(1400, 860);

QByteArray BytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Makes a link in the folder for temporary files, beside those of others that are alive.
QString LinkTo(const QString& folder)
{
    for (int number = 1; number < 100; ++number)
    {
        const QString link = QDir::temp().filePath(QString("sketcher-%1").arg(number));
        if (QFile::link(folder, link))
            return link;
    }
    return folder;
}

}

Photographer::Photographer(const XServer& server, const Look& look, const QString& folder)
    : m_display(server.GetDisplay()), m_folder(folder), m_session(server),
      m_home(LinkTo(m_session.PathOf(QString())))
{
    m_session.Input().ResizeScreen(Screen);
    QDir().mkpath(folder);
    QDir().mkpath(PathOf("config/sketcher"));
    QFile settings(PathOf("config/sketcher/settings.json"));
    const QJsonObject content{{"language", look.language}, {"colours", look.colours}};
    Do("writing the settings", [&] {
        return settings.open(QIODevice::WriteOnly) &&
               settings.write(QJsonDocument(content).toJson()) > 0;
    });
}

Photographer::~Photographer()
{
    if (QFileInfo(m_home).isSymLink())
        QFile::remove(m_home);
}

void Photographer::Start(const QStringList& arguments)
{
    Do("starting the program", [&] {
        return m_session.Start(arguments, {{"VESK_UNATTENDED", "0"},
                                           {"HOME", m_home},
                                           {"XDG_CONFIG_HOME", PathOf("config")},
                                           {"XDG_DATA_HOME", PathOf("data")}});
    });
}

void Photographer::StartPlain(const QStringList& arguments)
{
    m_session.SetFiles(DesktopSession::Files::ScreenOnly);
    Start(arguments);
}

void Photographer::Press(const QStringList& keys)
{
    Do("pressing " + keys.join(' '), [&] { return m_session.Input().Keys(keys); });
}

void Photographer::Type(const QString& text, const QStringList& keys)
{
    Press(InputDriver::Text(text) + keys);
}

void Photographer::Click(const QString& controlId)
{
    Do("clicking " + controlId, [&] { return m_session.Click(controlId); });
}

void Photographer::ClickView(QPointF world)
{
    Do("clicking in the view",
       [&] { return m_session.WaitForRest() && m_session.ClickView(world); });
}

void Photographer::MoveInView(QPointF world)
{
    Do("moving in the view",
       [&] { return m_session.WaitForRest() && m_session.MoveInView(world); });
}

void Photographer::RightClickView(QPointF world)
{
    Do("clicking with the right button", [&] {
        return m_session.WaitForRest() && m_session.Input().Click(m_session.ToScreen(world), 3);
    });
}

void Photographer::Begin(const QString& commandId)
{
    Rest();
    Click(commandId);
    Do("beginning " + commandId, [&] { return m_session.WaitForAction(commandId); });
}

void Photographer::Rest()
{
    Press({"Escape", "Escape", "Escape"});
    Do("ending a tool",
       [&] { return m_session.WaitForAction(QString()) && m_session.WaitForNoEditor(); });
}

void Photographer::ClickTab(const QString& pane, int index)
{
    constexpr int TabWidth = 70;
    constexpr int BelowThePane = 12;
    m_session.WaitForRest();
    const QRect rect = RectOfPane(pane);
    const QPoint tab(rect.left() + TabWidth / 2 + index * TabWidth, rect.bottom() + BelowThePane);
    Do("clicking a tab", [&] { return m_session.Input().Click(tab); });
}

void Photographer::OpenMenu(const QString& buttonId, const QString& entryId)
{
    Do("opening the menu of " + buttonId, [&] { return m_session.OpenMenu(buttonId, entryId); });
}

void Photographer::WaitForDialog()
{
    Do("waiting for a dialog", [this] {
        return PollUntil([this] {
            const QByteArray title = AskActiveWindow({"getwindowname"});
            return !title.isEmpty() && !title.endsWith(MainTitle);
        });
    });
}

void Photographer::WaitForMainWindow()
{
    Do("waiting for the main window", [this] {
        return PollUntil([this] { return AskActiveWindow({"getwindowname"}).endsWith(MainTitle); });
    });
}

void Photographer::ChooseEntry(const QString& buttonId, const QString& entryId)
{
    Do("choosing " + entryId,
       [&] { return m_session.OpenMenu(buttonId, entryId) && m_session.ClickEntry(entryId); });
}

void Photographer::End()
{
    Do("closing the program", [&] { return m_session.Close() == 0; });
}

void Photographer::Take(const QString& name)
{
    Settle(name, {"-window", "root"});
}

void Photographer::TakePart(const QString& name, const QRect& part)
{
    Settle(name,
           {"-window", "root", "-crop",
            QString("%1x%2+%3+%4").arg(part.width()).arg(part.height()).arg(part.x()).arg(part.y()),
            "+repage"});
}

void Photographer::TakeWindow(const QString& name)
{
    Settle(name, {"-frame", "-window", QString::fromLatin1(AskActiveWindow({}))});
}

void Photographer::TakePane(const QString& pane, const QString& name)
{
    m_session.WaitForRest();
    TakePart(name, RectOfPane(pane));
}

void Photographer::TakeRibbon(const QString& name)
{
    m_session.WaitForRest();
    const QRect view = m_session.Tree().FindView().value_or(UiView()).rect;
    TakePart(name, QRect(0, 0, Screen.width(), view.top()));
}

void Photographer::TakeStatusBar(const QString& name)
{
    constexpr int Height = 26;
    TakePart(name, QRect(0, Screen.height() - Height, Screen.width(), Height));
}

/// Does something unless something before it has failed.
void Photographer::Do(const QString& what, const std::function<bool()>& act)
{
    if (!m_isRight)
        return;
    m_isRight = act();
    if (!m_isRight)
        std::fprintf(stderr, "pictures: %s failed\n", qPrintable(what));
}

/// The output of xdotool for the window with the focus.
QByteArray Photographer::AskActiveWindow(const QStringList& question) const
{
    QProcess xdotool;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", m_display);
    xdotool.setProcessEnvironment(environment);
    xdotool.start("xdotool", QStringList{"getactivewindow"} + question);
    return xdotool.waitForFinished() ? xdotool.readAllStandardOutput().trimmed() : QByteArray();
}

/// Takes pictures until two in a row are equal; a text cursor may blink in between.
void Photographer::Settle(const QString& name, const QStringList& arguments)
{
    if (!m_isRight)
        return;
    m_session.WaitForRest();
    const QString path = m_folder.filePath(name + ".png");
    QByteArray former;
    const bool isSettled = PollUntil([&] {
        QProcess import;
        // Without times, so that equal pictures are equal files.
        import.start("import", QStringList{"-display", m_display, "+set", "date:create"} +
                                   arguments + QStringList{"-strip", path});
        if (!import.waitForFinished() || import.exitCode() != 0)
            return false;
        const QByteArray picture = BytesOf(path);
        const bool isSame = !picture.isEmpty() && picture == former;
        former = picture;
        return isSame;
    });
    Do("taking " + name, [&] { return isSettled; });
}

QRect Photographer::RectOfPane(const QString& pane) const
{
    for (const QJsonValue& dock : m_session.Tree().GetJson()["docks"].toArray())
    {
        const QJsonArray rect = dock["rect"].toArray();
        if (dock["name"].toString() == pane && rect.size() == 4)
            return {rect[0].toInt(), rect[1].toInt(), rect[2].toInt(), rect[3].toInt()};
    }
    return {};
}

}
