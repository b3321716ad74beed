#pragma once

#include "View/IModelView.h"
#include "View/IUiView.h"

namespace vesk
{

/// A view with an id and, if wanted, a model view.
class StubView final : public IUiView
{
public:
    explicit StubView(std::uint32_t id, IModelView* pModelView = nullptr)
        : m_id(id), m_pModelView(pModelView)
    {}

    std::uint32_t GetId() const override { return m_id; }
    WindowId GetWindowId() const override { return 0; }
    IModelView* GetModelView() const override { return m_pModelView; }
    void SetViewText(const std::wstring& /*text*/) override {}
    void Activate() override {}
    void Redraw() override {}

private:
    std::uint32_t m_id;
    IModelView* m_pModelView;
};

}
