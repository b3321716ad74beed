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

/// Reaches what handlers offer besides their interface.
class VESK_HOST_API ITemporaryDimensionHandlerAccess
{
public:
    virtual ~ITemporaryDimensionHandlerAccess() = default;

    /// Has the handler place its editor again.
    virtual void ResetEditorPosition(ITemporaryDimensionHandler& handler) = 0;

    /// Which value the handler is taking.
    virtual InputState GetInputState(ITemporaryDimensionHandler& handler) = 0;

    /// Whether the handler delivers texts as they stand.
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

    /// Registers the factory; null withdraws it, and the handler is dropped. Not owned.
    void SetHandlerFactory(ITemporaryDimensionHandlerFactory* pFactory);

    /// Chooses how handlers are reached; null for not at all. Not owned.
    void SetHandlerAccess(ITemporaryDimensionHandlerAccess* pAccess);

    /// Shows a context: keeps, replaces or creates the handler and makes its graphics. An empty
    /// pointer drops the handler. A handler of another kind starts without locks.
    void SetContext(OwnerPtr<ITemporaryDimensionContext> opContext);

    /// Makes the graphics anew with the handler there is, and places its editor again: of the
    /// context that it has, or of a new one that takes its place. Without a handler or a context
    /// nothing happens.
    void Regenerate();
    void Regenerate(OwnerPtr<ITemporaryDimensionContext> opContext);

    /// Ends the input and drops handler, graphics and locks.
    void Drop();

    /// Ends the input, if there is one.
    void EndInput();
    bool IsInputting() const;
    bool HasHandler() const;

    /// Hands a key of the view to the handler (codes: ITemporaryDimensionHandler). True when taken.
    bool OnKeyDown(int virtualKey, bool isCtrl, bool isAlt, bool isShift);

    /// Which value is being typed.
    InputState GetInputState() const;

    /// The field that it is being typed in.
    InputField GetInputField() const;

    /// Whether what is being typed is taken as a text, whatever it says: nobody is to judge it.
    bool IsRawTextInput() const;

    /// How wide the open editor is, in pixels, where it has grown with its text; 0 where it is as
    /// it opens. TemporaryDimensionStyle tells everybody.
    void SetEditorWidth(int width) { m_editorWidth = width; }
    int GetEditorWidth() const { return m_editorWidth; }

    /// The provisional graphics, null when there are none. Not owned; gone with the next change.
    const IGraphicsNodeGroup* GetGraphics() const;

    /// Values that the cursor no longer changes; their dimensions show it. A value in model units
    /// is shown as it is given: an angle of 270 degrees not as the -90 that points tell.
    void SetLocked(InputState field, bool isLocked, std::optional<double> value = std::nullopt);
    bool IsLocked(InputState field) const;
    std::vector<InputState> GetLocked() const;

    /// The value that is locked with the field; nothing when none is.
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

    /// What the handler shows; null without a handler.
    OwnerPtr<ITemporaryDimensionContext> m_opContext;
    OwnerPtr<IGraphicsNodeGroup> m_opGraphics;
    std::map<InputState, std::optional<double>> m_locked;
    int m_editorWidth = 0;

    /// Dropped handlers that still have an operation on the stack, and contexts that they may look
    /// at.
    std::vector<OwnerPtr<ITemporaryDimensionHandler>> m_retired;
    std::vector<OwnerPtr<ITemporaryDimensionContext>> m_retiredContexts;
    int m_callDepth = 0;
    bool m_isGenerating = false;
};

}
