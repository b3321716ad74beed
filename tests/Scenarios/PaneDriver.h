#pragma once

#include "ScriptedUser.h"
#include "SketcherWindow.h"

#include "Dock/IDockManager.h"
#include "Dock/IPropertyWidget.h"
#include "HostUi/QtText.h"
#include "View/IUiManager.h"

#include <QAbstractButton>
#include <QAction>
#include <QDockWidget>
#include <QMap>
#include <QString>
#include <QStringList>

/// Access to the panes of the window in a running session, both as a user and as a program.
namespace PaneDriver
{

inline QStringList Names()
{
    return {vesk::ToQString(vesk::IPropertyWidget::GetTypeName()), QStringLiteral("Entities"),
            QStringLiteral("Layers"), QStringLiteral("Journal"), QStringLiteral("Inspector")};
}

/// The command that shows or hides a pane.
inline QString CommandOf(const QString& name)
{
    return QStringLiteral("Sketcher.Pane.") + name;
}

inline vesk::IDockManager& Manager()
{
    return *vesk::IUiManager::Get()->GetDockManager();
}

inline vesk::IDock& Dock(const QString& name)
{
    return *Manager().GetDock(vesk::ToWide(name));
}

inline QDockWidget& Widget(const QString& name)
{
    return dynamic_cast<QDockWidget&>(Dock(name));
}

inline QAbstractButton* CloseButton(const QString& name)
{
    return Widget(name).findChild<QAbstractButton*>(QStringLiteral("qt_dockwidget_closebutton"));
}

/// Which panes are visible, in the order of the menu: "10111".
inline QString Visible()
{
    QString visible;
    for (const QString& name : Names())
        visible += QLatin1Char(Dock(name).IsHidden() ? '0' : '1');
    return visible;
}

/// Which entries of the menu are marked.
inline QString Marked()
{
    QString marked;
    for (const QString& name : Names())
        marked += QLatin1Char(ScriptedUser::FindEntry(CommandOf(name))->isChecked() ? '1' : '0');
    return marked;
}

}
