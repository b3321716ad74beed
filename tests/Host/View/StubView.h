#pragma once

#include "Support/IdleView.h"
#include "View/IModelView.h"

namespace vesk
{

/// A view with an id and optionally a model view.
class StubView final : public test::IdleView
{
public:
    explicit StubView(std::uint32_t id, IModelView* pModelView = nullptr)
        : IdleView(id), m_pModelView(pModelView)
    {}

    IModelView* GetModelView() const override { return m_pModelView; }

private:
    IModelView* m_pModelView;
};

}
