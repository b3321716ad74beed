#pragma once

#include "Foundation/HostExport.h"
#include "Foundation/OwnerPtr.h"

namespace vesk
{

class IGraphicsNodeGroup;
class ITemporaryDimensionContext;

/// Shows the dimensions of a context and takes the values that are typed for them.
///
/// What a handler can do besides, it offers to the toolkit: the property "rawTextInput" (bool), the
/// property "inputState" (int, an InputState) and the invokable "ResetEditorPosition".
class VESK_HOST_API ITemporaryDimensionHandler
{
public:
    virtual ~ITemporaryDimensionHandler() = default;

    /// The graphics of the context's dimensions, owned by the caller. Not kept: `pContext`.
    virtual OwnerPtr<IGraphicsNodeGroup>
    GenerateGraphics(const ITemporaryDimensionContext* pContext) = 0;

    /// True while a value is being typed.
    virtual bool IsInputting() = 0;
    virtual bool HasEditorFocus() = 0;

    /// Ends the input without a value and hides the editor.
    virtual void EndInput() = 0;

    /// Takes the typed value, as if Return was pressed.
    virtual void OnEditorReturnPressed() = 0;

    /// A key came in the view while nothing was being typed. `virtualKey` is '0' to '9', 'A' to
    /// 'Z', 96 to 105 for the keypad's digits, 109 and 189 for minus, 188 for the comma. True when
    /// taken.
    virtual bool OnKeyDown(int virtualKey, bool isCtrl, bool isAlt, bool isShift) = 0;

    /// Takes ranges and flags over from a context of the handler's kind. False for any other.
    virtual bool UpdateConfig(const ITemporaryDimensionContext* pContext) = 0;
};

/// Finds the handler for a context.
class VESK_HOST_API ITemporaryDimensionHandlerFactory
{
public:
    virtual ~ITemporaryDimensionHandlerFactory() = default;

    /// Empty when `pCurrent` fits and was updated, or when there is no handler for the context;
    /// else a new, configured handler, owned by the caller, who drops `pCurrent`.
    virtual OwnerPtr<ITemporaryDimensionHandler>
    UpdateOrCreateHandler(const ITemporaryDimensionContext* pContext,
                          ITemporaryDimensionHandler* pCurrent) = 0;
};

}
