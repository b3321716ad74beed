#pragma once

#include "Desktop/DesktopSession.h"

#include <QByteArray>
#include <QDir>
#include <QPointF>
#include <QRect>
#include <QString>
#include <QStringList>

#include <functional>

namespace vesk
{

/// Uses the program in one language, and takes pictures of what comes on screen.
///
/// What fails is reported on standard error, once, and the rest is left out; the caller asks at the
/// end whether everything succeeded.
class Photographer
{
public:
    /// What the program's settings say.
    struct Look
    {
        QString language; ///< "en", or empty for the source texts.
        QString colours;  ///< As the settings name them.
    };

    Photographer(const XServer& server, const Look& look, const QString& folder);
    ~Photographer();
    Photographer(const Photographer&) = delete;
    Photographer& operator=(const Photographer&) = delete;

    /// Starts the program, with its home as the previous run has left it.
    void Start(const QStringList& arguments = {});

    /// Starts it without a journal named by an option: with all offers and questions.
    void StartPlain(const QStringList& arguments = {});

    void Press(const QStringList& keys);
    void Type(const QString& text, const QStringList& keys = {});
    void Click(const QString& controlId);
    void ClickView(QPointF world);
    void MoveInView(QPointF world);
    void RightClickView(QPointF world);

    /// Begins a tool, ending the one that runs.
    void Begin(const QString& commandId);

    /// Ends whatever is under way.
    void Rest();

    /// Clicks a tab below a pane, counted from 0.
    void ClickTab(const QString& pane, int index);

    void OpenMenu(const QString& buttonId, const QString& entryId);
    void ChooseEntry(const QString& buttonId, const QString& entryId);

    /// Wait until a dialog has the focus, or the main window has it again.
    void WaitForDialog();
    void WaitForMainWindow();

    void End();
    void Kill() { m_session.Kill(); }

    /// Takes a picture as soon as nothing moves any more: of the whole screen, of the window with
    /// the focus, or of a part of the screen.
    void Take(const QString& name);
    void TakeWindow(const QString& name);
    void TakePart(const QString& name, const QRect& part);
    void TakePane(const QString& pane, const QString& name);
    void TakeRibbon(const QString& name);
    void TakeStatusBar(const QString& name);

    /// The path of a file in the home of the program.
    QString PathOf(const QString& file) const { return m_home + '/' + file; }

    /// Reports that something outside the program has failed.
    void Fail(const QString& what)
    {
        Do(what, [] { return false; });
    }

    bool HasSucceeded() const { return m_isRight; }

private:
    void Do(const QString& what, const std::function<bool()>& act);
    QByteArray AskActiveWindow(const QStringList& question) const;
    void Settle(const QString& name, const QStringList& arguments);
    QRect RectOfPane(const QString& pane) const;

    QString m_display;
    QDir m_folder;
    DesktopSession m_session;

    /// A link to the folder of the session, with a name that is the same in each run: it is seen in
    /// pictures.
    QString m_home;
    bool m_isRight = true;
};

}
