#pragma once

#include "Desktop/ChildProcess.h"
#include "Desktop/InputDriver.h"
#include "Desktop/Polling.h"
#include "Desktop/UiTree.h"
#include "Support/DrawnLine.h"

#include <QMap>
#include <QTemporaryDir>

#include <optional>

namespace vesk
{

/// The program, running on a display, and a user in front of it.
///
/// Its files (what it shows, journal, model, warnings) and its home lie in a folder of this
/// session. Whoever wants to know what came of an input waits until the program says so; nothing
/// sleeps.
class DesktopSession
{
public:
    using Environment = QMap<QString, QString>;

    explicit DesktopSession(const QString& display);
    ~DesktopSession();
    DesktopSession(const DesktopSession&) = delete;
    DesktopSession& operator=(const DesktopSession&) = delete;

    /// Starts the program and waits until its window has come to rest. `arguments` come after the
    /// files'.
    bool Start(const QStringList& arguments = {}, const Environment& environment = {});

    /// Starts the program and waits for nothing.
    bool Launch(const QStringList& arguments = {}, const Environment& environment = {});

    /// Closes the main window as a user does. The exit code; -1 when the program did not end by
    /// itself.
    int Close();

    /// Ends the program without a warning, as `kill -9` does.
    void Kill();

    /// Runs the program to its end without a screen, with none of the session's files. The exit
    /// code; -1 when it did not end by itself. What it said on standard error is `GetErrorOutput`.
    int RunOffscreen(const QStringList& arguments, const Environment& environment = {});

    const InputDriver& Input() const { return m_input; }

    /// Clicks the control with that id. False when it is not on screen within a few seconds.
    bool Click(const QString& id);

    /// The keys that click a button of the ribbon, or give another control of it the focus: F10
    /// shows those of the tabs, the tab's shows those of its controls.
    QStringList KeysTo(const QString& id);

    /// Opens the menu of a button by its arrow and waits for the entry of that command.
    bool OpenMenu(const QString& buttonId, const QString& commandId);

    /// Clicks the entry of an open menu.
    bool ClickEntry(const QString& commandId);

    /// Clicks the place of a world point in the view.
    bool ClickView(QPointF world);
    bool MoveInView(QPointF world);

    /// Starts the line tool (anew, when it runs already) and clicks the point from which to draw.
    bool BeginLine(QPointF start = QPointF(0.0, 0.0));

    /// Where a world point is on the screen, as the view stands now.
    QPoint ToScreen(QPointF world) const;

    /// Types a text, then presses the named keys, in one stream at 200 keys a second.
    bool Type(const QString& text, const QStringList& keysAfterwards = {});

    /// Waits until what the program shows fulfils `isTrue`. False when it does not in time.
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

    /// What the program showed when it was last asked.
    const UiTree& Tree() const { return m_tree; }

    QString PathOf(const QString& file) const { return m_folder.filePath(file); }
    QVector<DrawnLine> Lines() const { return ReadLines(PathOf("model.json")); }
    qint64 GetProcessId() const { return m_program.processId(); }

    /// All that the program wrote to standard error.
    QString GetErrorOutput() const { return QString::fromUtf8(m_errorOutput); }

    /// The debug warnings that were logged, a line each.
    QByteArray GetWarnings() const { return ReadBytes(PathOf("warnings.log")); }

    /// Keeps this session's files and a picture of the screen in a folder, to find out what went
    /// wrong.
    void SaveEvidence(const QString& folder);

private:
    bool Refresh();
    QProcessEnvironment MakeEnvironment(const Environment& additions) const;
    void RunProgram(const QStringList& arguments, const QProcessEnvironment& environment);
    int WaitForExit();

    QString m_display;
    QTemporaryDir m_folder;
    InputDriver m_input;
    ChildProcess m_program;
    UiTree m_tree;
    QString m_startHint; ///< What the line tool says while it waits for the first point.
    QByteArray m_errorOutput;
};

}
