#pragma once

#include <QObject>

class QKeyEvent;
class QWidget;

namespace vesk
{

/// What the keyboard does with an editor besides typing.
///
/// Returns the keyboard to the view's window when the editor's window closes, before the window
/// manager finds it without an owner, so that no typed key is lost. Lets the keys of undo and redo
/// act on the text while it has something to undo or redo, and else be the shortcuts that they are
/// elsewhere.
class EditorKeyboard final : public QObject
{
    Q_OBJECT

public:
    /// Creates one as a child of the editor, which is a child of the view and a window of its own.
    /// An editor that already has one keeps it.
    static void Watch(QWidget& editor);

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    explicit EditorKeyboard(QWidget& editor);

    bool FilterOverride(QKeyEvent& event) const;
    bool FilterKey(const QKeyEvent& event) const;
    void WatchWindow();
    void OnVisibleChanged(bool isVisible);

    QWidget& m_editor;
};

}
