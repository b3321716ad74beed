#pragma once

#include "Foundation/HostExport.h"
#include "Foundation/OwnerPtr.h"

#include <string>

namespace vesk
{

class IWidget;

/// One pane of the main window.
class VESK_HOST_API IDock
{
public:
    virtual ~IDock();

    /// Identifies the pane; never changes.
    virtual const std::wstring& GetName() const = 0;

    /// Moves the pane, in pixels; a floating pane moves on the screen.
    virtual void Move(int x, int y) = 0;

    /// The pane's content, null until it is set. Not owned by the caller.
    virtual IWidget* GetWidget() const = 0;

    /// Sets the pane's content, which belongs to the pane's widgets from then on. Content that is
    /// not a widget is kept but not shown.
    virtual void SetWidget(OwnerPtr<IWidget> opWidget) = 0;

    /// Sets the title shown to the user.
    virtual void SetTitle(const std::wstring& title) = 0;

    /// The title that was last set.
    virtual std::wstring GetTitle() const = 0;

    /// Makes the pane visible, provided that the main window is.
    virtual void Show() = 0;

    /// Makes the pane invisible until it is shown.
    virtual void Hide() = 0;

    /// Brings the pane to the front of the panes it is tabbed with.
    virtual void Raise() = 0;

    /// True after Hide, whether or not the main window is visible. A pane behind another tab is not
    /// hidden.
    virtual bool IsHidden() const = 0;

    /// Makes the pane a separate window, or puts it back into the main window.
    virtual void SetFloating(bool isFloating) = 0;

    /// True when the pane is a separate window.
    virtual bool IsFloating() const = 0;
};

}
