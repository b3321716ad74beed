#pragma once

#include <QObject>

#include <functional>
#include <string>

class QKeyEvent;
class QLineEdit;

namespace vesk
{
class LineEditDefinition;
}

/// Keys of a field that shows a value of the drawing. Escape restores the text of the value,
/// and the undo key belongs to the drawing as soon as the field contains nothing typed, as the redo
/// key does while there is nothing to redo in the field.
class FieldKeys final : public QObject
{
    Q_OBJECT

public:
    /// The text of the current value.
    using FormerText = std::function<std::wstring()>;

    /// Becomes a child of the field, which owns the definition.
    FieldKeys(QLineEdit& field, vesk::LineEditDefinition& definition, FormerText getFormerText);
    ~FieldKeys() override;

signals:
    /// The former text of the field has been restored.
    void restored();

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    bool HasOtherText() const;
    bool HasOwnUndo() const;
    bool IsForDrawing(const QKeyEvent& event) const;
    bool FilterKey(const QKeyEvent& event);

    QLineEdit& m_field;
    vesk::LineEditDefinition& m_definition;
    FormerText m_getFormerText;
};
