#include "Desktop/DesktopSession.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonDocument>
#include <QProcessEnvironment>

namespace vesk
{

namespace
{

/// A window counts as laid out after nothing has moved for this long.
constexpr int REST_MS = 250;

/// Keys that have had no effect for this long count as lost.
constexpr int LOST_KEYS_MS = 10000;

QString ProgramPath()
{
    return QDir(QCoreApplication::applicationDirPath()).absoluteFilePath("../bin/sketcher");
}

}

DesktopSession::DesktopSession(const XServer& server)
    : m_display(server.GetVariables()), m_input(server.GetDisplay(), server.GetDevices())
{}

DesktopSession::~DesktopSession()
{
    Kill();
}

bool DesktopSession::Start(const QStringList& arguments, const Environment& environment)
{
    // The window manager frames and maximises the window when it maps it. On a busy machine that
    // comes late, and the report of the program even later: positions are valid once the window is
    // visible and the server reports the same geometry.
    const auto isPlaced = [&] {
        return m_input.CountWindows() > 0 && WaitForRest() &&
               m_input.HasWindowAt(m_tree.FindView()->rect);
    };
    return Launch(arguments, environment) && PollUntil(isPlaced);
}

bool DesktopSession::Launch(const QStringList& arguments, const Environment& environment)
{
    QStringList files = {"--ui-tree", PathOf("ui.json")};
    if (m_files == Files::All)
        files << QStringList{"--journal",          PathOf("journal"), "--model",
                             PathOf("model.json"), "--log",           PathOf("warnings.log")};
    QFile::remove(PathOf("ui.json"));
    Environment additions = m_display;
    for (auto addition = environment.begin(); addition != environment.end(); ++addition)
        additions.insert(addition.key(), addition.value());
    RunProgram(files + arguments, MakeEnvironment(additions));
    return m_program.waitForStarted();
}

int DesktopSession::Close()
{
    if (m_program.state() == QProcess::NotRunning || !m_input.CloseMainWindow())
        return -1;
    // A busy machine may lose the keys: they are pressed again as long as the window exists.
    PollUntil(
        [this] { return m_program.waitForFinished(LOST_KEYS_MS) || !m_input.CloseMainWindow(); });
    return WaitForExit();
}

void DesktopSession::Kill()
{
    if (m_program.state() == QProcess::NotRunning)
        return;
    m_program.kill();
    WaitForExit();
}

int DesktopSession::RunOffscreen(const QStringList& arguments, const Environment& environment)
{
    QProcessEnvironment variables = MakeEnvironment(environment);
    variables.insert("QT_QPA_PLATFORM", "offscreen");
    RunProgram(arguments, variables);
    return WaitForExit();
}

bool DesktopSession::Click(const QString& id)
{
    QPoint place;
    const bool isThere = WaitFor([&](const UiTree& tree) {
        const std::optional<UiControl> control = tree.FindControl(id);
        if (!control || !control->isVisible || !control->isEnabled || control->rect.isEmpty())
            return false;
        place = control->rect.center();
        return true;
    });
    return isThere && m_input.Click(place);
}

QStringList DesktopSession::KeysTo(const QString& id)
{
    Refresh();
    return {"F10", "2", m_tree.GetKeyTip(id)};
}

bool DesktopSession::OpenMenu(const QString& buttonId, const QString& commandId)
{
    constexpr int FromTheEdge = 4;
    QPoint place;
    const bool isThere = WaitFor([&](const UiTree& tree) {
        const std::optional<UiControl> button = tree.FindControl(buttonId);
        if (!button || !button->isVisible || !button->isEnabled)
            return false;
        place = QPoint(button->rect.right() - FromTheEdge, button->rect.center().y());
        return true;
    });
    return isThere && m_input.Click(place) && WaitForEntry(commandId);
}

bool DesktopSession::ClickEntry(const QString& commandId)
{
    return WaitForEntry(commandId) && m_input.Click(m_tree.FindEntry(commandId)->rect.center());
}

bool DesktopSession::ClickView(QPointF world)
{
    return Refresh() && m_input.Click(ToScreen(world));
}

bool DesktopSession::MoveInView(QPointF world)
{
    return Refresh() && m_input.MoveTo(ToScreen(world));
}

bool DesktopSession::BeginLine(QPointF start)
{
    const bool waits =
        Click("Sketcher.Line") && WaitFor([&](const UiTree& tree) {
            const bool isStart = m_startHint.isEmpty() || tree.GetHint() == m_startHint;
            return tree.GetAction() == "Sketcher.Line" && !tree.GetHint().isEmpty() && isStart;
        });
    m_startHint = m_tree.GetHint();
    return waits && ClickView(start) &&
           WaitFor([&](const UiTree& tree) { return tree.GetHint() != m_startHint; });
}

QPoint DesktopSession::ToScreen(QPointF world) const
{
    return m_tree.FindView().value_or(UiView()).ToScreen(world);
}

bool DesktopSession::Type(const QString& text, const QStringList& keysAfterwards)
{
    return m_input.Keys(InputDriver::Text(text) + keysAfterwards);
}

bool DesktopSession::WaitForText(const QString& controlId, const QString& text)
{
    return WaitFor([&](const UiTree& tree) {
        const std::optional<UiControl> control = tree.FindControl(controlId);
        return control && control->text == text;
    });
}

bool DesktopSession::WaitForChecked(const QString& controlId, bool isChecked)
{
    return WaitFor([&](const UiTree& tree) {
        const std::optional<UiControl> control = tree.FindControl(controlId);
        return control && control->isChecked == isChecked;
    });
}

bool DesktopSession::WaitForEntry(const QString& commandId)
{
    return WaitFor([&](const UiTree& tree) { return tree.FindEntry(commandId).has_value(); });
}

bool DesktopSession::WaitForScale(double pixelsPerUnit)
{
    return WaitFor([&](const UiTree& tree) {
        return tree.FindView() && qAbs(tree.FindView()->worldPerPixel * pixelsPerUnit - 1.0) < 1e-9;
    });
}

bool DesktopSession::WaitForAction(const QString& commandId)
{
    return WaitFor([&](const UiTree& tree) { return tree.GetAction() == commandId; });
}

bool DesktopSession::WaitForEntities(int count)
{
    return WaitFor([&](const UiTree& tree) { return tree.GetEntityCount() == count; });
}

bool DesktopSession::WaitForEditor(const QString& text)
{
    return WaitFor([&](const UiTree& tree) {
        const std::optional<UiEditor> editor = tree.FindEditor();
        return editor && editor->isVisible && editor->text == text;
    });
}

bool DesktopSession::WaitForNoEditor()
{
    return WaitFor([](const UiTree& tree) { return !tree.FindEditor(); });
}

bool DesktopSession::WaitForPoint(const QString& x, const QString& y)
{
    return WaitFor([&](const UiTree& tree) {
        const QJsonValue point = tree.GetJson()["point"];
        return point["x"].toString() == x && point["y"].toString() == y && point.isObject();
    });
}

bool DesktopSession::WaitForNoPoint()
{
    return WaitFor([](const UiTree& tree) { return tree.GetJson()["point"].isNull(); });
}

void DesktopSession::SaveEvidence(const QString& folder)
{
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    m_input.TakePicture(folder + "/screen.png");
    for (const QFileInfo& file : QDir(m_folder.path()).entryInfoList(QDir::Files))
        QFile::copy(file.filePath(), folder + "/" + file.fileName());
    QFile errors(folder + "/stderr");
    if (errors.open(QIODevice::WriteOnly))
        errors.write(m_errorOutput + m_program.readAllStandardError());
}

bool DesktopSession::Refresh()
{
    const std::optional<UiTree> tree = UiTree::Read(PathOf("ui.json"));
    if (tree)
        m_tree = *tree;
    return tree.has_value();
}

bool DesktopSession::WaitForRest()
{
    QElapsedTimer atRest;
    QJsonObject last;
    return WaitFor([&](const UiTree& tree) {
        const bool isNew = tree.GetJson() != last || !atRest.isValid();
        if (isNew)
        {
            last = tree.GetJson();
            atRest.start();
        }
        return tree.FindView() && atRest.hasExpired(REST_MS);
    });
}

QProcessEnvironment DesktopSession::MakeEnvironment(const Environment& additions) const
{
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (const char* name :
         {"QT_QPA_PLATFORM", "QT_SCALE_FACTOR", "WAYLAND_DISPLAY", "LANG", "LC_NUMERIC"})
        variables.remove(name);
    variables.insert("HOME", m_folder.path());
    variables.insert("XDG_CONFIG_HOME", PathOf("config"));
    variables.insert("XDG_DATA_HOME", PathOf("data"));
    variables.insert("XDG_CACHE_HOME", PathOf("cache"));
    variables.insert("XDG_RUNTIME_DIR", m_folder.path());
    variables.insert("LC_ALL", "C.UTF-8");
    variables.insert("VESK_UNATTENDED", "1");
    for (auto addition = additions.begin(); addition != additions.end(); ++addition)
        variables.insert(addition.key(), addition.value());
    return variables;
}

void DesktopSession::RunProgram(const QStringList& arguments,
                                const QProcessEnvironment& environment)
{
    m_errorOutput.clear();
    m_program.setStandardOutputFile(QProcess::nullDevice());
    m_program.setProcessEnvironment(environment);
    m_program.start(ProgramPath(), arguments);
}

int DesktopSession::WaitForExit()
{
    const bool hasEnded =
        m_program.state() == QProcess::NotRunning || m_program.waitForFinished(PATIENCE_MS);
    m_errorOutput += m_program.readAllStandardError();
    if (!hasEnded)
    {
        Kill();
        return -1;
    }
    return m_program.exitStatus() == QProcess::NormalExit ? m_program.exitCode() : -1;
}

}
