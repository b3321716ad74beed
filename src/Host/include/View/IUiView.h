#pragma once

#include "Foundation/HostExport.h"
#include "View/WindowId.h"

#include <cstdint>
#include <string>

namespace vesk
{

class IModelView;

/// A drawing view on screen.
class VESK_HOST_API IUiView
{
public:
    virtual ~IUiView() = default;

    /// Unique among the views of the program; never changes.
    virtual std::uint32_t GetId() const = 0;

    /// The native window of the view's widget.
    virtual WindowId GetWindowId() const = 0;

    /// How the view maps the world; owned by the view, null if it shows no model.
    virtual IModelView* GetModelView() const = 0;

    /// Shows a line of text: what the running action expects. Empty clears it.
    virtual void SetViewText(const std::wstring& text) = 0;

    /// Gives the view the keyboard focus.
    virtual void Activate() = 0;

    /// Schedules a repaint of the view.
    virtual void Redraw() = 0;
};

}
