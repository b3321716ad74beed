#pragma once

#include <QPointer>
#include <QString>

class QLabel;
class QWidget;

namespace vesk
{

struct EditorScene;

/// What stands beside the editor of a value: why its text was refused, what the text comes to, and
/// what the keys do. An empty text is not shown.
struct NoteTexts
{
    QString refusal;
    QString value;
    QString keys;
};

/// Shows the notes over a view. They take neither the keyboard nor the mouse.
class EditorNotes
{
public:
    ~EditorNotes();

    /// Shows these notes, and no others, on a view (not owned).
    void Show(QWidget& view, const EditorScene& scene, const NoteTexts& texts);
    void Hide();

private:
    /// Children of the view that they were last shown on.
    QPointer<QLabel> m_pRefusal;
    QPointer<QLabel> m_pValue;
    QPointer<QLabel> m_pKeys;
};

}
