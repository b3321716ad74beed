#pragma once

#include "Dock/IDock.h"
#include "Foundation/OwnerPtr.h"

#include <QDockWidget>

#include <string>

namespace vesk
{

/// A pane of the main window, both for the host and for Qt.
class DockImpl final : public QDockWidget, public IDock
{
public:
    /// Created with the application's current style sheet. The parent may be null.
    DockImpl(const std::wstring& name, const std::wstring& title, QWidget* pParent);
    ~DockImpl() override;

    const std::wstring& GetName() const override;
    void Move(int x, int y) override;
    IWidget* GetWidget() const override;
    void SetWidget(OwnerPtr<IWidget> opWidget) override;
    void SetTitle(const std::wstring& title) override;
    std::wstring GetTitle() const override;
    void Show() override;
    void Hide() override;
    void Raise() override;
    bool IsHidden() const override;
    void SetFloating(bool isFloating) override;
    bool IsFloating() const override;

private:
    /// Owned by its Qt parent if it is a widget.
    IWidget* m_pContent = nullptr;
    std::wstring m_name;
};

}
