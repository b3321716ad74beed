#pragma once

#include "Command/ActionViewInput.h"
#include "Dimension/ITemporaryDimensionHandler.h"
#include "Dimension/InputState.h"
#include "Dimension/TemporaryDimensionData.h"
#include "Dimension/TemporaryDimensionStyle.h"
#include "Platform/InputMethodSwitch.h"
#include "TemporaryDimensionHandlersImpl/DimensionField.h"
#include "TemporaryDimensionHandlersImpl/TemporaryDimensionHandleEditor.h"
#include "Validation/NumberValidator.h"

#include <HostUi/LineEditValidateHelper.h>

#include <QPointer>
#include <QWidget>

#include <functional>
#include <optional>

class QKeyEvent;

namespace vesk
{

class IUiView;

/// The common part of the handlers: the editor over the view, its look and place, the validators,
/// and how a typed value is judged and delivered. The widget itself is never shown.
///
/// Telling the host of a key or a value may end the action, and with it the handler: whoever
/// continues afterwards asks first whether it still lives.
class TemporaryDimensionHandler : public QWidget, public ITemporaryDimensionHandler
{
    Q_OBJECT
    Q_PROPERTY(bool rawTextInput READ IsRawTextInput WRITE SetRawTextInput)
    Q_PROPERTY(int inputState READ GetInputState)

public:
    /// Works in `pView`, which is not null and not kept. The main window's input method is off
    /// while any handler lives.
    explicit TemporaryDimensionHandler(IUiView* pView);
    ~TemporaryDimensionHandler() override;

    bool IsInputting() override;
    bool HasEditorFocus() override;
    void EndInput() override;

    /// Takes the bounds of both values over.
    bool UpdateConfig(const ITemporaryDimensionContext* pContext) override;

    /// Whether the text itself is delivered, whatever it says, instead of a number that was judged.
    virtual bool IsRawTextInput() const;
    virtual void SetRawTextInput(bool isRawTextInput);

    /// Opens the editor on a field. Without `editorReady` it is made or found first; the text is
    /// `text`, or the current value where the field's rule allows.
    virtual void ShowInputWidget(InputState state, bool editorReady, bool useGivenText,
                                 std::wstring text) = 0;

    /// Finds the view's editor, or makes it, and takes it over. Warns and keeps what there is when
    /// the view has no widget.
    void CreateEditorWidget();

    /// Centres the editor on a world point; nothing happens without an editor.
    void SetEditorPosition(const Vector3d& world);

    /// Places the editor where the text of the value being typed stands; without one the input
    /// ends.
    Q_INVOKABLE void ResetEditorPosition();

    /// Switches the main window's input method off and, when no handler wants it off any more, on.
    void DisableIme();
    void EnableIme();

protected:
    /// What stood in the editor when its value was taken.
    struct EditorValue
    {
        ActionViewInput record;
        bool isNumber;
    };

    /// How a kind answers the keys of its editor.
    struct EditorRules
    {
        const char* function; ///< Who warns.
        bool commitsWithSpace;
        bool handsEscapeOn;          ///< To the view, after the input has ended.
        std::function<void()> onTab; ///< Empty: Tab is the editor's own.
    };

    /// The view the handler works in; null when it is gone.
    IUiView* FindView() const;

    /// The view when it can be drawn in; else null, with a warning in the name of `function`.
    IUiView* FindDrawableView(const char* function) const;

    /// Enters a state; without `editorReady` the editor is fetched. False, and no input runs, when
    /// there is no editor.
    bool BeginInput(InputState state, bool editorReady);

    /// The current value of a field, as its dimension shows it.
    QString FormatValue(const DimensionField& field) const;

    /// Shows the editor with a text at its field.
    void ShowEditor(const QString& text, bool isSelected);

    /// Has the host make the dimensions of the handler's view anew.
    void RefreshView();

    /// Hands a key over as a key press, and tells whether it was consumed.
    bool SendKey(int virtualKey, Qt::KeyboardModifiers modifiers, const QString& text);

    /// A key that opens nothing: the host refreshes, the rest is a plain object's.
    bool PassKeyOn(QEvent* pEvent);

    /// Handles an event as any object does: a widget would call every key press consumed.
    bool HandleAsPlainObject(QEvent* pEvent);

    bool FilterEditorEvent(QObject* pWatched, QEvent* pEvent, const EditorRules& rules);

    /// True when there is an input whose value can be taken.
    bool HasEditorValue() const;

    /// Reads the editor. In raw-text mode the live validation ends with it.
    EditorValue TakeEditorValue();

    /// Judges a value. One that is refused stays in the editor, selected.
    bool IsAccepted(const EditorValue& value, const DimensionField& field);

    /// Ends the input and delivers the record.
    void Commit(const ActionViewInput& record);

    /// Delivers the record and goes on with the next field.
    void CommitAndSwitch(const ActionViewInput& record, InputState next);

    std::uint32_t m_viewId;
    QPointer<TemporaryDimensionHandleEditor> m_pEditor;
    bool m_isRawTextInput = false;
    NumberValidator<double> m_firstValueValidator;
    NumberValidator<double> m_secondValueValidator;
    OwnerPtr<LineEditValidateHelper> m_opValidateHelper;

    /// IS_None exactly when no value is being typed; the editor shows only while it is another.
    InputState m_InputState = InputState::IS_None;
    TemporaryDimensionData m_data;
    TemporaryDimensionStyle m_style;

private:
    int GetInputState() const { return static_cast<int>(m_InputState); }
    void RefreshViewId();
    bool FindOrCreateEditor(QWidget* pViewWidget);
    bool ActivateEditor(QWidget* pViewWidget);
    void StyleEditor();
    void RegisterEditor();
    bool HandleEditorKey(QObject* pWatched, QKeyEvent& event, const EditorRules& rules);
    bool HandleEscape(const QPointer<QObject>& pWatched, QKeyEvent& event, bool isHandedOn);
    const NumberValidator<double>& ValidatorOf(const DimensionField& field) const;

    /// What the main window had; empty when this handler switched nothing off.
    std::optional<InputContext> m_savedInputContext;
};

}
