#pragma once

#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QString>

#include <optional>

class QLabel;
class QWidget;

namespace vesk
{

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

    /// Shows these notes, and no others, about an editor. The view is not owned; the rectangle and
    /// the cursor are in its pixels, no cursor is elsewhere.
    void Show(QWidget& view, const QRect& editor, const std::optional<QPoint>& cursor,
              const NoteTexts& texts);
    void Hide();

private:
    /// Children of the view that they were last shown on.
    QPointer<QLabel> m_pRefusal;
    QPointer<QLabel> m_pValue;
    QPointer<QLabel> m_pKeys;
};

}
