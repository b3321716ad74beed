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

    /// Moves the pane, in pixels: a floating one on the screen.
    virtual void Move(int x, int y) = 0;

    /// What the pane shows, null until it was set. Not owned by the caller.
    virtual IWidget* GetWidget() const = 0;

    /// Gives the pane its content, which belongs to the pane's widgets from then on. Content that
    /// is no widget is kept but not shown.
    virtual void SetWidget(OwnerPtr<IWidget> opWidget) = 0;

    /// Gives the pane the title that its user reads.
    virtual void SetTitle(const std::wstring& title) = 0;

    /// The title as it was set last.
    virtual std::wstring GetTitle() const = 0;

    /// Makes the pane visible, as far as the main window is.
    virtual void Show() = 0;

    /// Makes the pane invisible until it is shown.
    virtual void Hide() = 0;

    /// Brings the pane to the front of those that it is tabbed with.
    virtual void Raise() = 0;

    /// True after Hide, whether or not the main window is visible. A pane behind another tab is not
    /// hidden.
    virtual bool IsHidden() const = 0;

    /// Makes the pane a window of its own, or puts it back into the main window.
    virtual void SetFloating(bool isFloating) = 0;

    /// True when the pane is a window of its own.
    virtual bool IsFloating() const = 0;
};

}
