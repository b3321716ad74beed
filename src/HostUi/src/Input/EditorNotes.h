#pragma once

#include <QPointer>
#include <QString>

class QLabel;
class QWidget;

namespace vesk
{

struct EditorScene;

/// The notes beside the editor: why its text was rejected, the value of the text, and what the keys
/// do. An empty note is not shown.
struct NoteTexts
{
    QString refusal;
    QString value;
    QString keys;
};

/// Shows the notes over a view. They accept neither keyboard nor mouse input.
class EditorNotes
{
public:
    ~EditorNotes();

    /// Shows these notes, and no others, on a view (not owned).
    void Show(QWidget& view, const EditorScene& scene, const NoteTexts& texts);
    void Hide();

private:
    /// Children of the view on which they were last shown.
    QPointer<QLabel> m_pRefusal;
    QPointer<QLabel> m_pValue;
    QPointer<QLabel> m_pKeys;
};

}
