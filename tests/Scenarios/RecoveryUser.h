#pragma once

#include "Recovery/JournalFolder.h"
#include "Recovery/UnsavedWork.h"
#include "ScriptedUser.h"
#include "SessionJournal.h"
#include "SketcherWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>

// What the user of a session sees of unsaved work, and answers.

inline QLabel* FindOffer()
{
    auto* pText = ScriptedUser::FindWindow()->findChild<QLabel*>("RecoveryText");
    return pText != nullptr && pText->isVisible() ? pText : nullptr;
}

inline bool IsOffered()
{
    return FindOffer() != nullptr;
}

inline bool IsNothingOffered()
{
    return !IsOffered();
}

inline QMessageBox* FindQuestion()
{
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

/// Clicks a button that opens a dialog, and waits until it is there.
inline void OpenDialog(ScriptedUser& user, const QString& buttonId)
{
    // The dialog may run an event loop of its own.
    user.Do([buttonId] {
        QTimer::singleShot(0, [buttonId] { ScriptedUser::FindButton(buttonId)->click(); });
    });
    user.Until([] { return QApplication::activeModalWidget() != nullptr; });
}

/// Does half of something: "tool", "value", "menu", or a dialog by the id of its button; nothing if
/// empty.
inline void DoHalf(ScriptedUser& user, const QString& what)
{
    const QString line = QStringLiteral("Sketcher.Line");
    if (what == "tool" || what == "value")
        user.Click(line).ClickAt(0, 0).UntilRunning(line);
    if (what == "value")
        user.Type("12");
    if (what == "menu")
        user.OpenMenu("Sketcher.Zoom");
    if (what.startsWith("Sketcher."))
        OpenDialog(user, what);
}

/// The program's own journals.
inline QStringList Journals()
{
    return SessionJournal::GetFolder().GetJournals();
}

/// Those that are offered at the next start, if there is work in them.
inline QStringList Undecided()
{
    QStringList journals;
    for (const QString& journal : Journals())
    {
        if (!IsEnded(journal) && !JournalFolder::IsSettled(journal))
            journals << journal;
    }
    return journals;
}

/// Answers the question with "do not save".
inline void Discard()
{
    const QMessageBox& question = *FindQuestion();
    for (QAbstractButton* pButton : question.buttons())
    {
        if (question.buttonRole(pButton) == QMessageBox::DestructiveRole)
            return pButton->click();
    }
}

/// Answers with "do not save" whenever it is asked.
class Discarder final : public QObject
{
public:
    Discarder() { startTimer(10); }

protected:
    void timerEvent(QTimerEvent*) override
    {
        if (FindQuestion() != nullptr)
            Discard();
    }
};

/// Runs a session whose user discards what is not saved at the end.
inline int RunAndDiscard(ScriptedUser& user, const Options& options)
{
    const Discarder discarder;
    return user.Run(options);
}
