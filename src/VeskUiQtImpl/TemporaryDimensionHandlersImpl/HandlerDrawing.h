#pragma once

#include "Foundation/OwnerPtr.h"
#include "Graphics/IGraphicsNode.h"

#include <cstdint>
#include <optional>

namespace vesk
{

class ITemporaryDimensionContext;

/// What a kind of handler draws its dimensions into.
struct HandlerDrawing
{
    OwnerPtr<IGraphicsNodeGroup> opGroup;
    std::optional<double> pixel; ///< World width of a pixel; empty if nothing can be drawn.

    /// An empty group that cannot be picked in a view.
    static OwnerPtr<IGraphicsNodeGroup> CreateGroup();

    /// Creates what a kind draws into. Warns in the name of `function` if there is no context (then
    /// there is no group either), if the context belongs to another kind (`wrongContext`), and if
    /// the view cannot be drawn in.
    static HandlerDrawing Begin(std::uint32_t viewId, const ITemporaryDimensionContext* pContext,
                                bool isOwnContext, const char* function,
                                const wchar_t* wrongContext);
};

}
