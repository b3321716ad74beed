#pragma once

#include "Ribbon/CommandEntry.h"
#include "Ribbon/LastTool.h"

#include <QObject>

#include <map>
#include <string>
#include <vector>

class QMenu;
class QPoint;
class SketchView;

/// The menu of what is selected, for the view and for lists of entities. An entry runs its command
/// as the command's button does; that of a command that is disabled is disabled.
///
/// Return and Space in the view run the last tool again, as the menu's first entry does.
class ContextMenu final : public QObject
{
    Q_OBJECT

public:
    /// The view (not owned) also is the menu's parent.
    ContextMenu(const std::vector<CommandEntry>& commands, SketchView& view);

    /// Opens the menu at a point of the screen.
    void Show(const QPoint& position);

private:
    void AddEntry(QMenu& menu, const CommandEntry& entry, const QString& text) const;
    void AddRepetition(QMenu& menu) const;
    const CommandEntry* Find(const std::wstring& commandId) const;

    SketchView& m_view;
    std::map<std::wstring, CommandEntry> m_commands;
    LastTool m_lastTool;
};
