#pragma once

#include "View/IUiView.h"
#include "View/ModelView.h"

#include <QKeyEvent>
#include <QWidget>

#include <functional>
#include <utility>

namespace vesk::test
{

/// A view that reports for each key whether it accepted it.
class AnsweringView final : public QWidget, public IUiView
{
public:
    AnsweringView(std::uint32_t id, QWidget* pParent, bool isTaking)
        : QWidget(pParent), m_id(id), m_isTaking(isTaking)
    {
        winId();
    }

    std::uint32_t GetId() const override { return m_id; }
    WindowId GetWindowId() const override { return m_hasWidget ? internalWinId() : 0; }
    IModelView* GetModelView() const override { return &m_modelView; }
    void SetViewText(const std::wstring&) override {}
    void Activate() override {}
    void Redraw() override {}

    bool event(QEvent* pEvent) override
    {
        if (pEvent->type() != QEvent::KeyPress)
            return QWidget::event(pEvent);
        const bool isTaking = m_isTaking;
        if (const auto onKey = m_onKey)
            onKey(*pEvent);
        return isTaking;
    }

    /// Called inside each key press. It may destroy the view.
    void SetOnKey(std::function<void(const QEvent&)> onKey) { m_onKey = std::move(onKey); }

    void SetHasWidget(bool hasWidget) { m_hasWidget = hasWidget; }

private:
    std::uint32_t m_id;
    bool m_isTaking;
    bool m_hasWidget = true;
    mutable ModelView m_modelView;
    std::function<void(const QEvent&)> m_onKey;
};

}
