#include "Input/EditorKeyboard.h"

#include "Platform/KeyboardFocus.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QWindow>

namespace vesk
{

namespace
{

/// Whether a key types its text; asking whether it is a standard key takes long.
bool IsTyped(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers others =
        event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    return !others && !event.text().isEmpty() && event.text().front().isPrint();
}

/// On some systems only one of the customary two is the standard key of redo.
bool IsRedo(const QKeyEvent& event)
{
    const bool isControlY = event.key() == Qt::Key_Y && event.modifiers() == Qt::ControlModifier;
    return isControlY || event.matches(QKeySequence::Redo);
}

}

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
    if (pEvent->type() == QEvent::ShortcutOverride)
        return FilterOverride(static_cast<QKeyEvent&>(*pEvent));
    if (pEvent->type() == QEvent::KeyPress)
        return FilterKey(static_cast<const QKeyEvent&>(*pEvent));
    return QObject::eventFilter(pWatched, pEvent);
}

/// A line edit would claim both keys whether or not it has anything to undo.
bool EditorKeyboard::FilterOverride(QKeyEvent& event) const
{
    if (IsTyped(event))
        return false;
    const auto* pEdit = qobject_cast<const QLineEdit*>(&m_editor);
    const bool isUndo = event.matches(QKeySequence::Undo);
    if (pEdit == nullptr || (!isUndo && !IsRedo(event)))
        return false;
    event.setAccepted(isUndo ? pEdit->isUndoAvailable() : pEdit->isRedoAvailable());
    return true;
}

bool EditorKeyboard::FilterKey(const QKeyEvent& event) const
{
    auto* pEdit = qobject_cast<QLineEdit*>(&m_editor);
    if (pEdit == nullptr || IsTyped(event) || !IsRedo(event))
        return false;
    pEdit->redo();
    return true;
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
