#pragma once

#include "Dimension/TemporaryDimensionMgr.h"
#include "HostUi/HostUiExport.h"
#include "Journal/JournalManager.h"

#include <QObject>
#include <QPoint>
#include <QPointer>

#include <memory>
#include <optional>

class QKeyEvent;
class QLineEdit;

namespace vesk
{

class EditorNotes;
class EscapeKey;
class LateUnit;
struct InputField;

/// Sees to it that every key of a dimension input arrives, in order and in the right place.
///
/// While a value is being typed, keys go to the editor, wherever the window system delivered them;
/// otherwise to the view. A text that is to be taken is judged before the handler sees the key: a
/// formula, or a number with a unit, gives way to the number that it comes to, and what has no
/// clear value, or none that the action can use, is refused in place: it stays, is selected, and a
/// message beside the editor says why. What a handler takes as a text is left alone. A unit that is
/// typed after a blank that took the value is dropped, and the view says so. Installed while it
/// lives.
///
/// The editor is as wide as its text needs, and is no window that one could close: that ends the
/// input.
class VESK_HOST_UI_API DimensionInputController final : public QObject,
                                                        public IJournalObserver,
                                                        public ITemporaryDimensionHandlerAccess
{
    Q_OBJECT

public:
    DimensionInputController();
    ~DimensionInputController() override;

    /// Takes a key that arrived in the view. False for a key that means nothing here: it is the
    /// view's or the window's, an Escape without a running action among them.
    bool OnViewKey(QKeyEvent& event);

    /// Takes the value being typed, as Return would. False when it was refused: the input goes on.
    bool Commit();

    /// The editor of the dimensions, while a value is being typed in it; else null.
    QLineEdit* GetActiveEditor() const;

    /// Why the text was refused; empty while nothing is refused.
    QString GetMessage() const;

    /// What the text of the editor comes to, in the unit shown, whether in range or not; nothing
    /// where it has no clear value.
    std::optional<double> GetValue() const;

    /// Whether a strip beside the editor tells what the keys do there. It does at first.
    bool IsKeyStripShown() const { return m_isKeyStripShown; }
    void SetKeyStripShown(bool isShown);

    void OnRecord(const JournalRecord&) override {}
    void OnUiObject(const IJournalUiObject& object, int kind) override;

    void ResetEditorPosition(ITemporaryDimensionHandler& handler) override;
    InputState GetInputState(ITemporaryDimensionHandler& handler) override;
    bool IsRawTextInput(ITemporaryDimensionHandler& handler) override;

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    class Delivery;

    void NoteCursor(const QObject* pWatched, const QEvent& event);
    void NoteClick(QObject* pWatched, const QEvent& event);
    void NoteOtherKey(const QEvent& event);
    bool FilterEditorEvent(QEvent& event);
    bool FilterEditorKey(QKeyEvent& event);
    void TakeValue(QLineEdit& editor, QKeyEvent& event, const InputField& field);
    QWidget* FindOtherField() const;
    bool PassOn(QEvent& event);
    bool KeepsForUnit(const QKeyEvent& event);
    void EndLateUnit();
    std::optional<double> Accept(QLineEdit& editor, const InputField& field);
    void HoldKey(QKeyEvent& event);
    bool OpenInput(const QKeyEvent& event);
    void OnEditorHidden();
    void OnTextChanged();
    void OnTextEdited();
    void FitEditor();
    void UpdateNotes();

    /// As a plain widget: it is asked for while the editor is being destroyed, too.
    QPointer<QWidget> m_pEditor;
    std::unique_ptr<EditorNotes> m_pNotes;
    std::unique_ptr<EscapeKey> m_pEscape;
    std::unique_ptr<LateUnit> m_pLateUnit;

    /// The window that was clicked last, since the editor was hidden.
    QPointer<QWidget> m_pClicked;

    /// Why the text as it stands was refused.
    QString m_refusal;
    bool m_isKeyStripShown = true;

    /// Where the cursor is in the current view; nothing while it is elsewhere.
    std::optional<QPoint> m_cursor;

    /// The key that is on its way to the handler, not owned; null while none is.
    const QEvent* m_pDelivered = nullptr;

    /// Whether the text of the field is the user's: false while it shows the field's current value.
    bool m_isTextTyped = false;
};

}
