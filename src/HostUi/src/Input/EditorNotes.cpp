#include "Input/EditorNotes.h"

#include "Input/NoteLayout.h"

#include <QLabel>

namespace vesk
{
namespace
{

/// The look of a note; colours that are not from the palette are readable with any palette.
struct NoteKind
{
    const char* name;
    const char* colours;
};

constexpr NoteKind Refusal{"InputRefusal", "background: #b03a37; color: white"};
constexpr NoteKind Value{"InputValue", "background: palette(base); color: palette(text); "
                                       "border: 1px solid palette(highlight)"};
constexpr NoteKind Keys{"InputKeys", "background: palette(window); color: palette(window-text); "
                                     "border: 1px solid palette(mid)"};

QLabel* MakeNote(const NoteKind& kind, QWidget& view)
{
    auto* pNote = new QLabel(&view);
    pNote->setObjectName(QLatin1String(kind.name));
    pNote->setAttribute(Qt::WA_TransparentForMouseEvents);
    pNote->setFocusPolicy(Qt::NoFocus);
    pNote->setStyleSheet(
        QStringLiteral("QLabel { %1; border-radius: 4px; padding: 2px 6px }").arg(kind.colours));
    return pNote;
}

/// Returns true if the note must be shown.
bool Prepare(QPointer<QLabel>& pNote, const NoteKind& kind, const QString& text, QWidget& view)
{
    if (pNote != nullptr && pNote->parentWidget() != &view)
        delete pNote;
    if (text.isEmpty())
    {
        if (pNote != nullptr)
            pNote->hide();
        return false;
    }
    if (pNote == nullptr)
        pNote = MakeNote(kind, view);
    if (pNote->text() != text)
        pNote->setText(text);
    return true;
}

void ShowAt(QLabel& note, const QRect& place)
{
    note.setGeometry(place);
    note.show();
    note.raise();
}

}

EditorNotes::~EditorNotes()
{
    delete m_pRefusal;
    delete m_pValue;
    delete m_pKeys;
}

void EditorNotes::Show(QWidget& view, const EditorScene& scene, const NoteTexts& texts)
{
    NoteLayout layout(scene);
    if (Prepare(m_pValue, Value, texts.value, view))
        ShowAt(*m_pValue, layout.PlaceBeside(m_pValue->sizeHint()));
    if (Prepare(m_pRefusal, Refusal, texts.refusal, view))
        ShowAt(*m_pRefusal, layout.PlaceBelow(m_pRefusal->sizeHint()));
    if (Prepare(m_pKeys, Keys, texts.keys, view))
        ShowAt(*m_pKeys, layout.PlaceBelow(m_pKeys->sizeHint()));
}

void EditorNotes::Hide()
{
    for (QLabel* pNote : {m_pRefusal.data(), m_pValue.data(), m_pKeys.data()})
    {
        if (pNote != nullptr)
            pNote->hide();
    }
}

}
