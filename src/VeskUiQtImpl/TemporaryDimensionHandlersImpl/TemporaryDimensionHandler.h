#pragma once

#include "Dimension/ActionViewInput.h"
#include "Dimension/ITemporaryDimensionHandler.h"
#include "Dimension/InputState.h"
#include "Dimension/TemporaryDimensionData.h"
#include "Dimension/TemporaryDimensionStyle.h"
#include "Validation/NumberValidator.h"
#include "VeskUiQtImpl/Platform/InputMethodSwitch.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/DimensionKind.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/TemporaryDimensionHandleEditor.h"

#include "HostUi/LineEditValidateHelper.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <optional>

class QKeyEvent;

namespace vesk
{

class IUiView;

/// The common part of the handlers: the editor over the view, its style and position, the
/// validators, and how a typed value is validated and delivered. The widget itself is never shown.
///
/// Notifying the host of a key or a value may end the action and destroy the handler: code that
/// continues afterwards first checks whether the handler is still alive.
class TemporaryDimensionHandler : public QWidget, public ITemporaryDimensionHandler
{
    Q_OBJECT
    Q_PROPERTY(bool rawTextInput READ IsRawTextInput WRITE SetRawTextInput)
    Q_PROPERTY(int inputState READ GetInputState)

public:
    /// Works in `pView`, which must not be null; the pointer is not kept. The main window's input
    /// method is off while any handler exists.
    explicit TemporaryDimensionHandler(IUiView* pView);
    ~TemporaryDimensionHandler() override;

    bool IsInputting() override;
    bool HasEditorFocus() override;
    void EndInput() override;

    /// Applies the bounds of both values.
    bool UpdateConfig(const ITemporaryDimensionContext* pContext) override;

    /// Whether the text itself is delivered, whatever it says, instead of a validated number.
    virtual bool IsRawTextInput() const;
    virtual void SetRawTextInput(bool isRawTextInput);

    /// Opens the editor on a field. Without `editorReady` the editor is first found or created; it
    /// shows `text`, or the current value if the field's rule allows that.
    virtual void ShowInputWidget(InputState state, bool editorReady, bool useGivenText,
                                 std::wstring text) = 0;

    /// Finds or creates the editor of the view and makes it this handler's. Warns and keeps the
    /// current editor if the view has no widget.
    void CreateEditorWidget();

    /// Centres the editor on a world point; does nothing without an editor.
    void SetEditorPosition(const Vector3d& world);

    /// Moves the editor to the text of the value being typed; ends the input if none is.
    Q_INVOKABLE void ResetEditorPosition();

    /// Switches the main window's input method off, and on again once no handler wants it off.
    void DisableIme();
    void EnableIme();

protected:
    /// How a kind of handler responds to the keys of its editor.
    struct EditorRules
    {
        DimensionKind kind;
        const char* function;        ///< Name used in warnings.
        std::function<void()> onTab; ///< Empty for kinds without Tab switching.
    };

    /// Opens the editor on a field of the kind. Warns for any other state.
    void ShowField(const DimensionKind& kind, const char* function, const FieldRequest& request);

    /// Opens the editor if the event is a key that does so for this kind. Everything else is
    /// handled as by a plain QObject: a widget would report every key press as consumed.
    bool HandleEvent(QEvent* pEvent, const DimensionKind& kind, const char* function);

    /// Sends a key of the view to `event` as a key press if the kind accepts it.
    bool SendViewKey(const DimensionKind& kind, int virtualKey, Qt::KeyboardModifiers modifiers);

    bool FilterEditorEvent(QObject* pWatched, QEvent* pEvent, const EditorRules& rules);

    /// Commits the typed value: the input ends and the value is delivered. A rejected value stays
    /// in the editor, selected.
    void CommitValue(const DimensionKind& kind, const char* function);

    /// Commits the typed value in the same way, but continues with the next field.
    void CommitValueAndSwitch(const DimensionKind& kind, const char* function);

    std::uint32_t m_viewId;
    QPointer<TemporaryDimensionHandleEditor> m_pEditor;
    bool m_isRawTextInput = false;
    NumberValidator<double> m_firstValueValidator;
    NumberValidator<double> m_secondValueValidator;
    OwnerPtr<LineEditValidateHelper> m_opValidateHelper;

    /// IS_None exactly when no value is being typed; the editor is visible only in other states.
    InputState m_InputState = InputState::IS_None;
    TemporaryDimensionData m_data;
    TemporaryDimensionStyle m_style;

private:
    /// A value that is being committed, and its field.
    struct TakenValue
    {
        DimensionField field;
        ActionViewInput record;
    };

    int GetInputState() const { return static_cast<int>(m_InputState); }
    IUiView* FindView() const;
    void RefreshView();
    void RefreshViewId();
    void RegisterEditor();
    bool BeginInput(InputState state, bool editorReady);
    QString FormatValue(const DimensionField& field) const;
    void ShowEditor(const QString& text, bool isSelected);
    bool PassKeyOn(QEvent* pEvent);
    bool HandleAsPlainObject(QEvent* pEvent);
    bool HandleEditorKey(QObject* pWatched, QKeyEvent& event, const EditorRules& rules);
    bool HandleEscape(const QPointer<QObject>& pWatched, QKeyEvent& event, bool isHandedOn);
    std::optional<TakenValue> TakeValue(const DimensionKind& kind, const char* function);
    bool IsAccepted(double value, bool isNumber, const DimensionField& field);
    const NumberValidator<double>& ValidatorOf(const DimensionField& field) const;

    /// What the main window had; empty if this handler switched nothing off.
    std::optional<InputContext> m_savedInputContext;
};

}
