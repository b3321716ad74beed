#pragma once

#include "Foundation/HostExport.h"
#include "Foundation/OwnerPtr.h"

namespace vesk
{

class IGraphicsNodeGroup;
class ITemporaryDimensionContext;

/// Shows the dimensions of a context and accepts the values typed for them.
///
/// Further features are offered through the toolkit's meta-object: the property "rawTextInput"
/// (bool), the property "inputState" (int, an InputState) and the invokable "ResetEditorPosition".
class VESK_HOST_API ITemporaryDimensionHandler
{
public:
    virtual ~ITemporaryDimensionHandler() = default;

    /// The graphics of the context's dimensions, owned by the caller. `pContext` is not kept.
    virtual OwnerPtr<IGraphicsNodeGroup>
    GenerateGraphics(const ITemporaryDimensionContext* pContext) = 0;

    /// True while a value is being typed.
    virtual bool IsInputting() = 0;

    /// True while the editor has the keyboard; it may be open without, until the window system
    /// moves it.
    virtual bool HasEditorFocus() = 0;

    /// Ends the input without a value and hides the editor.
    virtual void EndInput() = 0;

    /// Commits the typed value, as if Return was pressed.
    virtual void OnEditorReturnPressed() = 0;

    /// A key was pressed in the view while no input was open. `virtualKey` is '0' to '9', 'A' to
    /// 'Z', 96 to 105 for the keypad digits, 109 and 189 for minus, 188 for the comma. True if the
    /// key was handled.
    virtual bool OnKeyDown(int virtualKey, bool isCtrl, bool isAlt, bool isShift) = 0;

    /// Adopts ranges and flags from a context of the handler's kind. False for any other.
    virtual bool UpdateConfig(const ITemporaryDimensionContext* pContext) = 0;
};

/// Finds the handler for a context.
class VESK_HOST_API ITemporaryDimensionHandlerFactory
{
public:
    virtual ~ITemporaryDimensionHandlerFactory() = default;

    /// Empty if `pCurrent` fits and was updated, or if there is no handler for the context;
    /// otherwise a new, configured handler, owned by the caller, who drops `pCurrent`.
    virtual OwnerPtr<ITemporaryDimensionHandler>
    UpdateOrCreateHandler(const ITemporaryDimensionContext* pContext,
                          ITemporaryDimensionHandler* pCurrent) = 0;
};

}
