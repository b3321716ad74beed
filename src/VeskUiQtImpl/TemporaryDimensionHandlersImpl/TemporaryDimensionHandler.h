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
    /// What a kind draws into.
    struct Drawing
    {
        OwnerPtr<IGraphicsNodeGroup> opGroup;
        std::optional<double> pixel; ///< World width of a pixel; empty when nothing can be drawn.
    };

    /// How a kind answers the keys of its editor.
    struct EditorRules
    {
        DimensionKind kind;
        const char* function;        ///< Who warns.
        std::function<void()> onTab; ///< Left out by kinds that do not switch.
    };

    /// An empty group that no view picks.
    static OwnerPtr<IGraphicsNodeGroup> CreateGroup();

    /// Makes what a kind draws into. In the name of `function` it warns when there is no context
    /// (then there is no group either), when it is another kind's (`wrongContext`), and when the
    /// view cannot be drawn in.
    Drawing BeginDrawing(const ITemporaryDimensionContext* pContext, bool isOwnContext,
                         const char* function, const wchar_t* wrongContext) const;

    /// Opens the editor on a field of the kind. Any other state is warned of.
    void ShowField(const DimensionKind& kind, const char* function, const FieldRequest& request);

    /// Has an event open the editor if it is a key of the kind. The rest is a plain object's: a
    /// widget would call every key press consumed.
    bool HandleEvent(QEvent* pEvent, const DimensionKind& kind, const char* function);

    /// Sends a key of the view to `event` as a key press if the kind takes it.
    bool SendViewKey(const DimensionKind& kind, int virtualKey, Qt::KeyboardModifiers modifiers);

    bool FilterEditorEvent(QObject* pWatched, QEvent* pEvent, const EditorRules& rules);

    /// Takes the typed value: the input ends and the value is delivered. One that is refused stays
    /// in the editor, selected.
    void CommitValue(const DimensionKind& kind, const char* function);

    /// Takes the typed value in the same way, but goes on with the next field.
    void CommitValueAndSwitch(const DimensionKind& kind, const char* function);

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
    /// A value that was taken, and the field in which it stood.
    struct TakenValue
    {
        DimensionField field;
        ActionViewInput record;
    };

    int GetInputState() const { return static_cast<int>(m_InputState); }
    IUiView* FindView() const;
    IUiView* FindDrawableView(const char* function) const;
    void RefreshView();
    void RefreshViewId();
    bool FindOrCreateEditor(QWidget* pViewWidget);
    bool ActivateEditor(QWidget* pViewWidget);
    void StyleEditor();
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

    /// What the main window had; empty when this handler switched nothing off.
    std::optional<InputContext> m_savedInputContext;
};

}
