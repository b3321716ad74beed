#pragma once

#include "Model/Workspace.h"
#include "Panes/Panes.h"
#include "Ribbon/CommandTable.h"
#include "SketcherWindow.h"
#include "VeskUiQtImpl/DockManagerImpl.h"
#include "View/SketchView.h"

#include "Command/ActionManager.h"
#include "HostCore.h"
#include "HostUi/ControlHost.h"
#include "HostUi/ControlLibrary.h"
#include "HostUi/DimensionInputController.h"
#include "HostUi/UiApplication.h"
#include "Journal/JournalManager.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>
#include <optional>
#include <vector>

/// The window of the drawing program with everything in it: ribbon, view and panes, and a journal
/// in a file. Tools run without a nested event loop.
class SketcherDesk final
{
public:
    SketcherDesk()
    {
        if (!m_library.IsLoaded())
            qFatal("%s", qPrintable(m_library.GetError()));
        host.GetViewManager().AddView(&window.GetView());
        m_application.SetMainWindow(&window);
        m_application.SetDockManager(&m_docks);
        m_panes.emplace(workspace, window, m_docks, *m_controls, m_input);
        std::vector<CommandEntry> commands = MakeCommandTable(workspace, window.GetView(), m_input);
        for (CommandEntry& entry : m_panes->MakeCommands())
            commands.push_back(std::move(entry));
        RegisterCommands(commands);
        vesk::JournalManager& journal = vesk::JournalManager::GetInstance();
        journal.SetDigestSource([this] { return workspace.sketch.GetDigest(); });
        journal.SetSynced(false);
        std::string error;
        if (!journal.Open(m_folder.filePath("journal").toStdString(), error))
            qFatal("%s", error.c_str());
        window.BuildControls(commands, *m_controls);
        vesk::ActionManager::SetEventLoop(nullptr);
        // The view gets 1600 x 1000.
        window.resize(2080, 1340);
        window.show();
        Settle();
    }

    ~SketcherDesk()
    {
        vesk::ActionManager::Reset();
        vesk::JournalManager::GetInstance().SetDigestSource(nullptr);
        window.ReleaseControls();
        m_panes.reset();
        m_controls.reset();
        m_application.SetDockManager(nullptr);
        m_application.SetMainWindow(nullptr);
        host.GetViewManager().RemoveView(&window.GetView());
    }

    /// Does what the last event has caused: what was posted, what that has posted, and painting.
    void Respond()
    {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
    }

    /// The same apart from the picture of the drawing, which the view paints in slices later.
    void RespondWithoutPicture()
    {
        window.GetView().setUpdatesEnabled(false);
        Respond();
    }

    /// Lets the picture be finished, too.
    void Settle()
    {
        window.GetView().setUpdatesEnabled(true);
        window.GetView().PaintAtOnce();
        Respond();
    }

    /// Shows a drawing, zoomed so that a sheet of 1600 x 1000 fills the view.
    void Show(SketchContent content)
    {
        workspace.sketch.Restore(std::move(content));
        window.GetView().Fit({60, 40, 0}, {1540, 960, 0});
        Settle();
    }

    /// Runs a command as its button does.
    static void Run(const std::wstring& commandId)
    {
        vesk::ActionManager::RunCommand(commandId, {});
    }

    void Move(const QPointF& place) { Send(QEvent::MouseMove, place, Qt::NoButton); }

    void Click(const QPointF& place)
    {
        Send(QEvent::MouseButtonPress, place, Qt::LeftButton);
        Send(QEvent::MouseButtonRelease, place, Qt::LeftButton);
    }

    vesk::HostCore host;

private:
    vesk::UiApplication m_application;
    vesk::ControlLibrary m_library;
    vesk::DimensionInputController m_input;

public:
    Workspace workspace;
    SketcherWindow window{workspace, m_input};

private:
    void Send(QEvent::Type type, const QPointF& place, Qt::MouseButton button)
    {
        QMouseEvent event(type, place, window.GetView().mapToGlobal(place.toPoint()), button,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : button,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(&window.GetView(), &event);
    }

    QTemporaryDir m_folder;
    vesk::DockManagerImpl m_docks{&window};
    std::optional<vesk::ControlHost> m_controls{std::in_place};
    std::optional<Panes> m_panes;
};
