#include "Input/EditorNotes.h"

#include "Accessibility/AccessibleTexts.h"

#include <algorithm>
#include <vector>

namespace vesk
{
namespace
{

/// The look of a note; colours that are not from the palette are readable with any palette.
struct NoteKind
{
    const char* name;
    const char* colours;
    bool isAlert;
};

/// In the order in which they are placed.
constexpr NoteKind Kinds[] = {
    {"InputValue",
     "background: palette(base); color: palette(text); "
     "border: 1px solid palette(highlight)",
     false},
    {"InputRefusal", "background: #992f2c; color: white", true},
    {"InputKeys",
     "background: palette(window); color: palette(window-text); "
     "border: 1px solid palette(mid)",
     false},
};

/// The first is placed beside the editor, the others below it.
constexpr std::size_t Beside = 0;

QLabel* MakeNote(const NoteKind& kind, QWidget& view)
{
    auto* pNote = new QLabel(&view);
    pNote->setObjectName(QLatin1String(kind.name));
    pNote->setAttribute(Qt::WA_TransparentForMouseEvents);
    pNote->setFocusPolicy(Qt::NoFocus);
    // Screen readers say at once what appears as an alert.
    if (kind.isAlert)
        SetAccessibleRole(*pNote, QAccessible::AlertMessage);
    pNote->setStyleSheet(
        QStringLiteral("QLabel { %1; border-radius: 4px; padding: 2px 6px }").arg(kind.colours));
    return pNote;
}

/// Whether nothing of the view is above these notes. Notes that are there already are not raised:
/// each of several would be moved above the others, one after the other.
bool AreOnTop(const std::vector<QLabel*>& notes, const QWidget& view)
{
    const QObjectList& children = view.children();
    return children.size() >= static_cast<int>(notes.size()) &&
           std::equal(notes.rbegin(), notes.rend(), children.rbegin());
}

}

EditorNotes::~EditorNotes()
{
    for (const Note& note : m_notes)
        delete note.pLabel;
}

void EditorNotes::Show(QWidget& view, const EditorScene& scene, const NoteTexts& texts)
{
    const std::array<const QString*, Count> shown{&texts.value, &texts.refusal, &texts.keys};
    std::array<QSize, Count> sizes;
    for (std::size_t i = 0; i < Count; ++i)
    {
        if (Prepare(m_notes[i], i, *shown[i], view))
            sizes[i] = SizeOf(m_notes[i]);
    }
    if (!(sizes == m_sizes && scene == m_scene))
        Place(scene, sizes);
    std::vector<QLabel*> notes;
    for (std::size_t i = 0; i < Count; ++i)
    {
        if (!sizes[i].isValid())
            continue;
        m_notes[i].pLabel->setGeometry(m_places[i]);
        m_notes[i].pLabel->show();
        notes.push_back(m_notes[i].pLabel);
    }
    if (AreOnTop(notes, view))
        return;
    for (QLabel* pNote : notes)
        pNote->raise();
}

void EditorNotes::Hide()
{
    for (const Note& note : m_notes)
    {
        if (note.pLabel != nullptr)
            note.pLabel->hide();
    }
}

/// Returns true if the note must be shown.
bool EditorNotes::Prepare(Note& note, std::size_t kind, const QString& text, QWidget& view)
{
    if (note.pLabel != nullptr && note.pLabel->parentWidget() != &view)
        delete note.pLabel;
    if (text.isEmpty())
    {
        if (note.pLabel != nullptr)
            note.pLabel->hide();
        return false;
    }
    if (note.pLabel == nullptr)
    {
        note.pLabel = MakeNote(Kinds[kind], view);
        note.sizes.clear();
    }
    if (note.pLabel->text() != text)
    {
        note.pLabel->setText(text);
        if (Kinds[kind].isAlert)
            note.pLabel->setAccessibleName(text);
    }
    return true;
}

QSize EditorNotes::SizeOf(Note& note)
{
    constexpr int Most = 100;
    if (note.sizes.size() == Most || note.font != note.pLabel->font())
        note.sizes.clear();
    note.font = note.pLabel->font();
    QSize& size = note.sizes[note.pLabel->text()];
    if (!size.isValid())
        size = note.pLabel->sizeHint();
    return size;
}

void EditorNotes::Place(const EditorScene& scene, const std::array<QSize, Count>& sizes)
{
    NoteLayout layout(scene);
    for (std::size_t i = 0; i < Count; ++i)
    {
        if (sizes[i].isValid())
            m_places[i] = i == Beside ? layout.PlaceBeside(sizes[i]) : layout.PlaceBelow(sizes[i]);
    }
    m_sizes = sizes;
    m_scene = scene;
}

}
