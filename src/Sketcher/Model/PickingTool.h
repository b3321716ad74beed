#pragma once

/// A tool whose clicks pick entities, always or at some of its steps.
class IPickingTool
{
public:
    virtual ~IPickingTool() = default;

    enum class Click
    {
        PicksEntity,
        SetsPoint,
        DoesNothing,
    };

    /// What a click would do where the cursor was last.
    virtual Click GetClick() const = 0;
};
