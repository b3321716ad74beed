#pragma once

#include <QObject>

class QWidget;

namespace vesk
{

/// Returns the keyboard to the view's window when the window of its editor closes, before the
/// window manager finds it without an owner: what is typed on arrives.
class EditorKeyboard final : public QObject
{
public:
    /// Becomes a child of the editor, which is one of the view and a window of its own.
    explicit EditorKeyboard(QWidget& editor);

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    void WatchWindow();
    void OnVisibleChanged(bool isVisible);

    QWidget& m_editor;
};

}
