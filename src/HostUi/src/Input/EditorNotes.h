#pragma once

#include "Input/NoteLayout.h"

#include <QFont>
#include <QHash>
#include <QLabel>
#include <QPointer>
#include <QRect>
#include <QString>

#include <array>
#include <cstddef>

namespace vesk
{

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
    static constexpr std::size_t Count = 3;

    struct Note
    {
        /// A child of the view on which it was last shown.
        QPointer<QLabel> pLabel;

        /// What its texts need in that font, as far as that is known: a text with keys in bold is
        /// laid out in a document of its own, and two such texts alternate while a value is typed.
        QHash<QString, QSize> sizes;
        QFont font;
    };

    static bool Prepare(Note& note, std::size_t kind, const QString& text, QWidget& view);
    static QSize SizeOf(Note& note);
    void Place(const EditorScene& scene, const std::array<QSize, Count>& sizes);

    /// The value, the refusal and the keys.
    std::array<Note, Count> m_notes;

    /// Where the notes belong, and what that was found for; a note that is not shown has no size.
    std::array<QRect, Count> m_places;
    std::array<QSize, Count> m_sizes;
    EditorScene m_scene;
};

}
