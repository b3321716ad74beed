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

/// Two keys of a field that shows a value of the drawing. Escape gives the text back that stands
/// for the value, and what undoes is the drawing's as soon as nothing typed is in the field.
class FieldKeys final : public QObject
{
    Q_OBJECT

public:
    /// The text that stands for the value now.
    using FormerText = std::function<std::wstring()>;

    /// Lives with the field, which owns its definition.
    FieldKeys(QLineEdit& field, vesk::LineEditDefinition& definition, FormerText getFormerText);
    ~FieldKeys() override;

signals:
    /// The field has its former text back.
    void restored();

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    bool HasOtherText() const;
    bool HasOwnUndo() const;
    bool FilterKey(const QKeyEvent& event);

    QLineEdit& m_field;
    vesk::LineEditDefinition& m_definition;
    FormerText m_getFormerText;
};
