#pragma once

#include <QObject>

class QWidget;

namespace vesk
{

/// Returns the keyboard to the view's window when the editor's window closes, before the window
/// manager finds it without an owner, so that no typed key is lost.
class EditorKeyboard final : public QObject
{
public:
    /// Becomes a child of the editor, which is a child of the view and a window of its own.
    explicit EditorKeyboard(QWidget& editor);

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    void WatchWindow();
    void OnVisibleChanged(bool isVisible);

    QWidget& m_editor;
};

}
