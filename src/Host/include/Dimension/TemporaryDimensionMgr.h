#pragma once

#include "Dimension/InputField.h"
#include "Dimension/InputState.h"
#include "Foundation/HostExport.h"
#include "Foundation/OwnerPtr.h"

#include <map>
#include <optional>
#include <vector>

namespace vesk
{

class IGraphicsNodeGroup;
class ITemporaryDimensionContext;
class ITemporaryDimensionHandler;
class ITemporaryDimensionHandlerFactory;

/// Gives access to what handlers offer beyond their interface.
class VESK_HOST_API ITemporaryDimensionHandlerAccess
{
public:
    virtual ~ITemporaryDimensionHandlerAccess() = default;

    /// Makes the handler reposition its editor.
    virtual void ResetEditorPosition(ITemporaryDimensionHandler& handler) = 0;

    /// Which value is being typed in the handler's editor.
    virtual InputState GetInputState(ITemporaryDimensionHandler& handler) = 0;

    /// Whether the handler delivers texts unevaluated.
    virtual bool IsRawTextInput(ITemporaryDimensionHandler&) { return false; }
};

/// Owns the handler of the provisional dimensions, and their graphics.
///
/// It ends the input before it drops or replaces the handler, and activates the view afterwards.
class VESK_HOST_API TemporaryDimensionMgr
{
public:
    /// The manager; it lives as long as the process.
    static TemporaryDimensionMgr* GetInstance();

    /// Registers the factory, null for none; a change drops the handler. Not owned.
    void SetHandlerFactory(ITemporaryDimensionHandlerFactory* pFactory);

    /// Sets the access to handlers; null for none. Not owned.
    void SetHandlerAccess(ITemporaryDimensionHandlerAccess* pAccess);

    /// Shows a context: keeps, replaces or creates the handler and generates its graphics. An empty
    /// pointer drops the handler. A replacement handler starts without locks.
    void SetContext(OwnerPtr<ITemporaryDimensionContext> opContext);

    /// Regenerates the graphics with the current handler and repositions its editor, for its
    /// current context or for a new one that replaces it. Does nothing without a handler or a
    /// context.
    void Regenerate();

    /// The same for a new context, whose ownership it takes.
    void Regenerate(OwnerPtr<ITemporaryDimensionContext> opContext);

    /// Ends the input and drops the handler, graphics and locks.
    void Drop();

    /// Ends the input, if there is one.
    void EndInput();

    /// True while a value is being typed.
    bool IsInputting() const;

    /// True while there are dimensions: the running action has handed in a context for which there
    /// is a handler.
    bool HasHandler() const;

    /// Passes a key pressed in the view to the handler (codes: ITemporaryDimensionHandler). True if
    /// it was handled.
    bool OnKeyDown(int virtualKey, bool isCtrl, bool isAlt, bool isShift);

    /// Which value is being typed.
    InputState GetInputState() const;

    /// The field of that value.
    InputField GetInputField() const;

    /// Whether the typed text is delivered unevaluated, whatever it contains: it must not be
    /// checked.
    bool IsRawTextInput() const;

    /// The width of the open editor in pixels if it has grown with its text; 0 if it has its
    /// opening width. Clients read it from TemporaryDimensionStyle.
    void SetEditorWidth(int width) { m_editorWidth = width; }

    /// The width set last.
    int GetEditorWidth() const { return m_editorWidth; }

    /// The provisional graphics, null if there are none. Not owned; invalid after the next change.
    const IGraphicsNodeGroup* GetGraphics() const;

    /// Locked values, which the cursor no longer changes; their dimensions are shown as locked. A
    /// value passed here, in model units, is shown as given: an angle of 270 degrees is not shown
    /// as the -90 that the points give.
    void SetLocked(InputState field, bool isLocked, std::optional<double> value = std::nullopt);

    /// True for a value that SetLocked has locked.
    bool IsLocked(InputState field) const;

    /// The locked values, in the order of InputState.
    std::vector<InputState> GetLocked() const;

    /// The value passed when the field was locked; nothing if none was.
    std::optional<double> GetLockedValue(InputState field) const;

private:
    class Call;

    TemporaryDimensionMgr() = default;
    ~TemporaryDimensionMgr() = default;

    void Replace(OwnerPtr<ITemporaryDimensionHandler> opHandler);
    void Retire(OwnerPtr<ITemporaryDimensionHandler> opHandler);
    void Keep(OwnerPtr<ITemporaryDimensionContext> opContext);

    ITemporaryDimensionHandlerFactory* m_pFactory = nullptr;
    ITemporaryDimensionHandlerAccess* m_pAccess = nullptr;
    OwnerPtr<ITemporaryDimensionHandler> m_opHandler;

    /// The context that the handler shows; null without a handler.
    OwnerPtr<ITemporaryDimensionContext> m_opContext;
    OwnerPtr<IGraphicsNodeGroup> m_opGraphics;
    std::map<InputState, std::optional<double>> m_locked;
    int m_editorWidth = 0;

    /// Dropped handlers with an operation still on the stack, and contexts that they may still use.
    std::vector<OwnerPtr<ITemporaryDimensionHandler>> m_retired;
    std::vector<OwnerPtr<ITemporaryDimensionContext>> m_retiredContexts;
    int m_callDepth = 0;
    bool m_isGenerating = false;
};

}
