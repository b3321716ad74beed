#pragma once

#include "Command/ActionManager.h"
#include "Dimension/LengthUnit.h"
#include "Geometry/Vector3d.h"
#include "Input/CoordinateJudge.h"
#include "Input/EditorNotes.h"
#include "Journal/JournalManager.h"

#include <QObject>
#include <QPointer>
#include <QRect>

#include <cstddef>
#include <optional>

class QKeyEvent;
class QLineEdit;

namespace vesk
{

class EscapeKey;
class PointFields;

/// A point that the user types for the running action, in two fields over a view.
///
/// Tab and Shift+Tab go to the other field, Return and Enter give the point to the action, Escape
/// closes the fields and does nothing else. A text without a clear value, and a point that the
/// action cannot use, stay, with a message. Numbers are in the unit in which the input began. The
/// fields close when the action takes no point any more. `@` counts from the last recorded point.
class PointInput final : public QObject, public IActionObserver, public IJournalObserver
{
    Q_OBJECT

public:
    /// The press of Escape that closes the fields is counted there. Not owned.
    explicit PointInput(EscapeKey& escape);
    ~PointInput() override;

    /// Whether a key in the view begins a point: the running action takes one, and dimensions that
    /// could be typed have no use for the key.
    static bool IsBegunBy(const QKeyEvent& event);

    /// Opens the fields beside the cursor, in the view's pixels, and types the key into the first.
    void Open(QWidget& view, const std::optional<QPoint>& cursor, QKeyEvent& event);
    void Close();

    /// The field in which the user types; null while the fields are closed.
    QLineEdit* GetField() const;

    /// The texts of both fields; empty while they are closed.
    QString GetText(std::size_t index) const;

    /// Why the text was rejected; empty if it was not.
    const QString& GetRefusal() const { return m_refusal; }

    /// What is shown beside the fields, in the view's pixels: the keys only if they are wanted.
    NoteTexts GetNotes(bool areKeysShown) const;
    QRect GetRect() const;

    /// The cursor moved in the view, or left it.
    void MoveTo(const std::optional<QPoint>& cursor);

    void OnActionChanged() override;
    void OnRecord(const JournalRecord& record) override;
    void OnUiObject(const IJournalUiObject&, int) override {}

signals:
    /// The notes have changed, or their place.
    void changed();

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    void Make(QWidget& view);
    bool FilterKey(const QKeyEvent& event);
    void OnTextEdited();
    void Tell();
    void GoToOther();
    void Take();
    void Refuse(std::size_t index, const QString& refusal);
    CoordinateVerdict Judge(std::size_t index) const;

    EscapeKey& m_escape;
    QPointer<PointFields> m_pFields;
    LengthUnit m_unit;
    std::optional<Vector3d> m_last; ///< The point that was recorded last.
    QString m_refusal;
    bool m_isOpen = false;
};

}
