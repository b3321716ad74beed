#pragma once

#include "VeskUiQtImpl/VeskUiQtImplExport.h"

#include <QPointer>

#include <string>

class QAction;
class QObject;

namespace vesk
{

class CommandParameters;
class ICommand;

/// The only path by which a command chosen on a widget is journaled and sent. GUI thread only.
///
/// A menu or ribbon action chosen while a command runs ends that command and is clicked again, by
/// posted mouse events, once the command has returned. Any other sender is served at once.
class ProcessCommandUtil
{
public:
    /// Runs the command of a ribbon control in the current view, with its parameters. `pSender` is
    /// the clicked widget or action. The sender may be destroyed before this returns.
    static void ProcessRibbonBarCommand(const std::wstring& commandId,
                                        const CommandParameters& parameters, QObject* pSender);

    /// Runs the command of a menu or status bar entry. Such commands have no parameters: any given
    /// are ignored.
    static void ProcessStatusBarCommand(const std::wstring& commandId,
                                        const CommandParameters& parameters, QObject* pSender);

    /// False from the start of a command to its end.
    static VESK_UI_QT_IMPL_API bool IsLastCommandExecuted();

private:
    static bool Begin(QObject* pSender);
    static bool Journal(const ICommand& command, const CommandParameters& parameters,
                        const char* function);
    static void Finish();
    static void ReplayPendingAction();

    static bool s_isLastCommandExecuted;

    /// What the user chose while a command was running; not owned.
    static QPointer<QAction> s_pendingAction;
};

}
