#pragma once

#include "Desktop/InputDriver.h"
#include "Desktop/UiTree.h"
#include "Support/ChildProcess.h"
#include "Support/DrawnLine.h"
#include "Support/FileBytes.h"
#include "Support/Polling.h"
#include "Support/XServer.h"

#include <QMap>
#include <QTemporaryDir>

#include <optional>

namespace vesk
{

/// The program, running on a display, and its user.
///
/// Its files (screen contents, journal, model, warnings) and its home are in a folder of this
/// session. To see the effect of an input, wait until the program reports it; nothing sleeps.
class DesktopSession
{
public:
    using Environment = QMap<QString, QString>;

    /// Which files of the session the program is told to write.
    enum class Files
    {
        All,
        ScreenOnly, ///< Only what is on screen: then the program offers and asks as it does at
                    ///< home.
    };

    explicit DesktopSession(const XServer& server);
    ~DesktopSession();
    DesktopSession(const DesktopSession&) = delete;
    DesktopSession& operator=(const DesktopSession&) = delete;

    /// Sets which files the next start names; initially all.
    void SetFiles(Files files) { m_files = files; }

    /// Starts the program and waits until its window has settled. `arguments` follow those for the
    /// files.
    bool Start(const QStringList& arguments = {}, const Environment& environment = {});

    /// Starts the program without waiting for anything.
    bool Launch(const QStringList& arguments = {}, const Environment& environment = {});

    /// Closes the main window as a user does. Returns the exit code, or -1 if the program did not
    /// exit by itself.
    int Close();

    /// Waits until the program exits by itself. Returns the exit code, or -1 if it does not.
    int WaitForExit();

    /// Kills the program without warning, as `kill -9` does.
    void Kill();

    /// Runs the program to its end without a screen, with none of the session's files. Returns the
    /// exit code, or -1 if it did not exit by itself. `GetErrorOutput` returns what it wrote to
    /// standard error.
    int RunOffscreen(const QStringList& arguments, const Environment& environment = {});

    const InputDriver& Input() const { return m_input; }

    /// Clicks the control with that id. Returns false if it does not become visible and enabled in
    /// time.
    bool Click(const QString& id);

    /// The keys that click a button of the ribbon, or give the focus to any other control in it:
    /// F10 shows those of the tabs, and the key of a tab shows those of its controls.
    QStringList KeysTo(const QString& id);

    /// Opens the menu of a button by its arrow and waits for the entry of that command.
    bool OpenMenu(const QString& buttonId, const QString& commandId);

    /// Clicks the entry of an open menu.
    bool ClickEntry(const QString& commandId);

    /// Clicks a world point in the view.
    bool ClickView(QPointF world);
    bool MoveInView(QPointF world);

    /// Starts the line tool (again if it is already running) and clicks the start point.
    bool BeginLine(QPointF start = QPointF(0.0, 0.0));

    /// The screen position of a world point in the current state of the view.
    QPoint ToScreen(QPointF world) const;

    /// Types a text, then presses the named keys, in one stream at 200 keys a second.
    bool Type(const QString& text, const QStringList& keysAfterwards = {});

    /// Waits until the screen contents satisfy `isTrue`. Returns false on timeout.
    template <class Predicate>
    bool WaitFor(Predicate isTrue, int timeoutMs = PATIENCE_MS)
    {
        return PollUntil([&] { return Refresh() && isTrue(m_tree); }, timeoutMs);
    }

    /// Waits until nothing has moved for a quarter of a second.
    bool WaitForRest();

    bool WaitForText(const QString& controlId, const QString& text);
    bool WaitForChecked(const QString& controlId, bool isChecked);
    bool WaitForEntry(const QString& commandId);
    bool WaitForScale(double pixelsPerUnit);
    bool WaitForAction(const QString& commandId);
    bool WaitForEntities(int count);
    bool WaitForEditor(const QString& text);
    bool WaitForNoEditor();

    /// Wait until a point with these texts is being typed, or none is.
    bool WaitForPoint(const QString& x, const QString& y);
    bool WaitForNoPoint();

    /// The screen contents when they were last read.
    const UiTree& Tree() const { return m_tree; }

    QString PathOf(const QString& file) const { return m_folder.filePath(file); }
    QVector<DrawnLine> Lines() const { return ReadLines(PathOf("model.json")); }
    qint64 GetProcessId() const { return m_program.processId(); }

    /// Everything the program wrote to standard error.
    QString GetErrorOutput() const { return QString::fromUtf8(m_errorOutput); }

    /// The debug warnings that were logged, one per line.
    QByteArray GetWarnings() const { return ReadBytes(PathOf("warnings.log")); }

    /// Saves this session's files and a screenshot in a folder, for diagnosis.
    void SaveEvidence(const QString& folder);

private:
    bool Refresh();
    QProcessEnvironment MakeEnvironment(const Environment& additions) const;
    void RunProgram(const QStringList& arguments, const QProcessEnvironment& environment);

    Environment m_display; ///< The variables by which programs find it.
    Files m_files = Files::All;
    QTemporaryDir m_folder;
    InputDriver m_input;
    ChildProcess m_program;
    UiTree m_tree;
    QString m_startHint; ///< The prompt of the line tool for the first point.
    QByteArray m_errorOutput;
};

}
