#pragma once

#include <QObject>

/// While it lives, a program that is told to quit, as at the end of the desktop's session, ends its
/// event loops and leaves its windows open: Qt 6 would close them first, and they would ask what is
/// to be saved.
class QuitWithoutClosing final : public QObject
{
    Q_OBJECT

public:
    /// There is an application object.
    QuitWithoutClosing();

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
};
