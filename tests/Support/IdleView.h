#pragma once

#include "View/IUiView.h"

namespace vesk::test
{

/// A view without a window that does nothing. Test doubles override what they need.
class IdleView : public IUiView
{
public:
    explicit IdleView(std::uint32_t id) : m_id(id) {}

    std::uint32_t GetId() const override { return m_id; }
    WindowId GetWindowId() const override { return 0; }
    IModelView* GetModelView() const override { return nullptr; }
    void SetViewText(const std::wstring&) override {}
    void Activate() override {}
    void Redraw() override {}

private:
    std::uint32_t m_id;
};

}
