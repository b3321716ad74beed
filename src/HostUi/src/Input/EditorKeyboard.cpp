#include "Input/EditorKeyboard.h"

#include "Platform/KeyboardFocus.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>

namespace vesk
{

void EditorKeyboard::Watch(QWidget& editor)
{
    if (editor.findChild<EditorKeyboard*>(QString(), Qt::FindDirectChildrenOnly) == nullptr)
        new EditorKeyboard(editor);
}

EditorKeyboard::EditorKeyboard(QWidget& editor) : QObject(&editor), m_editor(editor)
{
    editor.installEventFilter(this);
    WatchWindow();
}

bool EditorKeyboard::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    // It may be a different window from the last time.
    if (pEvent->type() == QEvent::Show)
        WatchWindow();
    return QObject::eventFilter(pWatched, pEvent);
}

void EditorKeyboard::WatchWindow()
{
    if (const QWindow* pWindow = m_editor.windowHandle())
        connect(pWindow, &QWindow::visibleChanged, this, &EditorKeyboard::OnVisibleChanged,
                Qt::UniqueConnection);
}

/// Emitted before the window system is told.
void EditorKeyboard::OnVisibleChanged(bool isVisible)
{
    const QWidget* pView = m_editor.parentWidget();
    if (isVisible || pView == nullptr)
        return;
    const QWindow* pEditorWindow = m_editor.windowHandle();
    const QWindow* pWindow = pView->window()->windowHandle();
    if (pEditorWindow != nullptr && pWindow != nullptr)
        MoveKeyboard(*pEditorWindow, *pWindow);
}

}
