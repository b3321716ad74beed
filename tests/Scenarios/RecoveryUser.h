#pragma once

#include "ScriptedUser.h"
#include "SketcherWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>

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

/// Answers with "do not save" whenever it is asked.
class Discarder final : public QObject
{
public:
    Discarder() { startTimer(10); }

protected:
    void timerEvent(QTimerEvent*) override
    {
        const QMessageBox* pQuestion = FindQuestion();
        if (pQuestion == nullptr)
            return;
        for (QAbstractButton* pButton : pQuestion->buttons())
        {
            if (pQuestion->buttonRole(pButton) == QMessageBox::DestructiveRole)
                return pButton->click();
        }
    }
};

/// Runs a session whose user discards what is not saved at the end.
inline int RunAndDiscard(ScriptedUser& user, const Options& options)
{
    const Discarder discarder;
    return user.Run(options);
}
