#pragma once

#include "Dimension/TemporaryDimensionMgr.h"
#include "HostUi/HostUiExport.h"
#include "Journal/JournalManager.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

class QKeyEvent;
class QLabel;
class QLineEdit;

namespace vesk
{

/// Sees to it that every key of a dimension input arrives, in order and in the right place.
///
/// While a value is being typed, keys go to the editor, wherever the window system delivered them;
/// otherwise to the view. A text that makes no sense is refused in place when it is committed: it
/// stays, is selected, and a message beside the editor says why. Installed while it lives.
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

    /// Puts the message beside the editor again, after the editor was moved.
    void PlaceMessage();

    void OnRecord(const JournalRecord& record) override;
    void OnUiObject(const IJournalUiObject& object, int kind) override;

    void ResetEditorPosition(ITemporaryDimensionHandler& handler) override;
    InputState GetInputState(ITemporaryDimensionHandler& handler) override;
    bool IsRawTextInput(ITemporaryDimensionHandler& handler) override;

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    bool FilterEditorKey(QKeyEvent& event);
    void NoteRelease(const QKeyEvent& event);
    bool IsNewEscape(const QKeyEvent& event);
    bool IsRefused(QLineEdit& editor);
    bool OpenInput(const QKeyEvent& event);
    void OpenInputWithText(const QString& text);
    void OnEditorHidden();
    void OnTextEdited();
    void ShowMessage(const QString& message);

    /// As a plain widget: it is asked for while the editor is being destroyed, too.
    QPointer<QWidget> m_pEditor;
    QPointer<QLabel> m_pMessage;

    /// Whether the text of the field is the user's: false while it shows the field's current value.
    bool m_isTextTyped = false;

    /// Whether Escape was pressed and its release has not come yet, and since when it was heard of.
    bool m_isEscapeDown = false;
    QElapsedTimer m_sinceEscape;

    /// The window system's time of its last release.
    unsigned long m_escapeReleaseTime = 0;
};

}
