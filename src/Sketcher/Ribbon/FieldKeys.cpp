#include "Ribbon/FieldKeys.h"

#include "Control/LineEditDefinition.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <utility>

FieldKeys::FieldKeys(QLineEdit& field, vesk::LineEditDefinition& definition,
                     FormerText getFormerText)
    : QObject(&field), m_field(field), m_definition(definition),
      m_getFormerText(std::move(getFormerText))
{
    field.installEventFilter(this);
}

FieldKeys::~FieldKeys() = default;

bool FieldKeys::eventFilter(QObject*, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::KeyPress)
        return FilterKey(static_cast<QKeyEvent&>(*pEvent));
    if (pEvent->type() != QEvent::ShortcutOverride ||
        !IsForDrawing(static_cast<const QKeyEvent&>(*pEvent)))
        return false;
    // The field would claim the key whether or not it has anything to undo.
    pEvent->ignore();
    return true;
}

bool FieldKeys::HasOtherText() const
{
    return m_definition.GetText() != m_getFormerText();
}

/// A rejected text is still the user's.
bool FieldKeys::HasOwnUndo() const
{
    return HasOtherText() || (m_definition.IsEditing() && m_field.isUndoAvailable());
}

/// True for undo and redo if the field has nothing of its own to undo or redo.
bool FieldKeys::IsForDrawing(const QKeyEvent& event) const
{
    if (event.matches(QKeySequence::Undo))
        return !HasOwnUndo();
    return event.matches(QKeySequence::Redo) && !m_field.isRedoAvailable();
}

/// True if the key goes no further.
bool FieldKeys::FilterKey(const QKeyEvent& event)
{
    if (event.key() != Qt::Key_Escape || !HasOtherText())
        return false;
    m_definition.SetText(m_getFormerText());
    m_definition.SetIsEditing(false);
    emit restored();
    return true;
}
