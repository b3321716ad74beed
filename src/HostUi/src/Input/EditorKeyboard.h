#pragma once

#include <QObject>

class QWidget;

namespace vesk
{

/// Returns the keyboard to the view's window when the editor's window closes, before the window
/// manager finds it without an owner, so that no typed key is lost.
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

    void WatchWindow();
    void OnVisibleChanged(bool isVisible);

    QWidget& m_editor;
};

}
