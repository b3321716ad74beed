#pragma once

#include "Dimension/TemporaryDimensionMgr.h"
#include "HostUi/HostUiExport.h"
#include "Journal/JournalManager.h"

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QRect>

#include <memory>
#include <optional>
#include <vector>

class QKeyEvent;
class QLineEdit;

namespace vesk
{

class EditorNotes;
class EscapeKey;
class LateUnit;
class PointInput;
struct InputField;
struct TypedReading;

/// Delivers every key of a dimension input in order and to the right widget.
///
/// While a value is being typed, keys go to the editor, wherever the window system delivered them;
/// otherwise to the view. A text to be committed is judged before the handler sees the key. A
/// formula or a number with a unit is replaced by its value. A text without a clear value, or with
/// one that the action cannot use, is rejected: it stays in the editor, selected, with a message
/// beside it. While a handler's `rawTextInput` is on, texts are left alone. A unit typed after a
/// Space that committed the value is dropped, and the view text says so. Installed while it lives.
///
/// The editor is as wide as its text needs. Closing its window ends the input instead.
///
/// A point can be typed, too: where the action takes one (`IAction::TakesPoint`), a character that
/// can begin a number, and no dimension uses, opens two fields beside the cursor; an `@` does so
/// also while there are dimensions. A click in the view closes them.
class VESK_HOST_UI_API DimensionInputController final : public QObject,
                                                        public IJournalObserver,
                                                        public ITemporaryDimensionHandlerAccess
{
    Q_OBJECT

public:
    DimensionInputController();
    ~DimensionInputController() override;

    /// Handles a key that arrived in the view. Returns false for a key that means nothing here,
    /// such as Escape without a running action: it belongs to the view or the window.
    bool OnViewKey(QKeyEvent& event);

    /// Commits the value being typed, as Return would. Returns false if it was rejected: the input
    /// goes on.
    bool Commit();

    /// The editor while a value is being typed in it; else null.
    QLineEdit* GetActiveEditor() const;

    /// Where the user types now: that editor, or the field of a coordinate; else null.
    QLineEdit* GetOpenField() const;

    /// A point that is being typed.
    struct TypedPoint
    {
        QString x;       ///< The text in the field of the first coordinate.
        QString y;       ///< The text in the field of the second one.
        QString message; ///< Why one of them was rejected; empty if none was.
    };

    /// The point that is being typed; nothing if none is.
    std::optional<TypedPoint> GetTypedPoint() const;

    /// Why the text in the editor was rejected; empty if it was not.
    QString GetMessage() const;

    /// The value of the editor's text in the display unit, in range or not; nothing if it has no
    /// clear value.
    std::optional<double> GetValue() const;

    /// Whether a strip beside the editor explains its keys. Initially true.
    bool IsKeyStripShown() const { return m_isKeyStripShown; }

    /// Sets whether the strip is shown, at once.
    void SetKeyStripShown(bool isShown)
    {
        m_isKeyStripShown = isShown;
        UpdateNotes();
    }

    /// Whether Space commits a plain number where the kind of dimension allows it; otherwise it is
    /// a blank everywhere. Initially true.
    bool IsSpaceCommitting() const { return m_isSpaceCommitting; }

    /// Sets what Space does, at once.
    void SetSpaceCommitting(bool isCommitting)
    {
        m_isSpaceCommitting = isCommitting;
        UpdateNotes();
    }

    void OnRecord(const JournalRecord&) override {}
    void OnUiObject(const IJournalUiObject& object, int kind) override;

    void ResetEditorPosition(ITemporaryDimensionHandler& handler) override;
    InputState GetInputState(ITemporaryDimensionHandler& handler) override;
    bool IsRawTextInput(ITemporaryDimensionHandler& handler) override;

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    void NoteCursor(const QObject* pWatched, const QEvent& event);
    void NoteClick(QObject* pWatched, const QEvent& event);
    void NoteOtherKey(const QEvent& event);
    bool FilterPointEvent(QEvent& event);
    bool FilterEditorEvent(QEvent& event);
    bool FilterEditorKey(QKeyEvent& event);
    bool CommitsWithSpace(const TypedReading& reading, const InputField& field) const;
    void TakeValue(QLineEdit& editor, QKeyEvent& event, const InputField& field);
    QWidget* FindOtherField() const;
    bool PassOn(QEvent& event);
    bool KeepsForUnit(const QKeyEvent& event);
    void EndLateUnit();
    std::optional<double> Accept(QLineEdit& editor, const InputField& field);
    void HoldKey(QKeyEvent& event);
    bool OpenInput(QKeyEvent& event);
    void OnEditorHidden();
    void OnTextEdited();
    void FitEditor();
    void UpdateNotes();

    /// A plain QWidget because it is also used while the editor is being destroyed.
    QPointer<QWidget> m_pEditor;
    std::unique_ptr<EditorNotes> m_pNotes;
    std::unique_ptr<EscapeKey> m_pEscape;
    std::unique_ptr<LateUnit> m_pLateUnit;
    std::unique_ptr<PointInput> m_pPoint;

    /// The window that was clicked last since the editor was hidden.
    QPointer<QWidget> m_pClicked;

    /// Why the current text was rejected.
    QString m_refusal;
    bool m_isKeyStripShown = true;
    bool m_isSpaceCommitting = true;

    /// The position of the cursor in the current view; nothing while it is elsewhere.
    std::optional<QPoint> m_cursor;

    /// Where the dimensions have their texts in the current view; nothing if they have been drawn
    /// anew since that was found.
    std::optional<std::vector<QRect>> m_texts;

    /// The key being delivered to the handler; not owned, null if there is none.
    const QEvent* m_pDelivered = nullptr;

    /// Whether the user typed the text of the field; false while it shows the field's current
    /// value.
    bool m_isTextTyped = false;
};

}
