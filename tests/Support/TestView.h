#pragma once

#include "View/IUiView.h"
#include "View/ModelView.h"

#include <QWidget>

#include <functional>
#include <string>
#include <vector>

namespace vesk::test
{

/// A drawing view that records what it is told.
class TestView final : public QWidget, public IUiView
{
public:
    TestView(std::uint32_t id, QWidget* pParent);

    std::uint32_t GetId() const override { return m_id; }
    WindowId GetWindowId() const override { return m_windowId; }
    IModelView* GetModelView() const override { return m_hasModelView ? &m_modelView : nullptr; }
    void SetViewText(const std::wstring& text) override { m_texts.push_back(text); }
    void Activate() override {}

    /// Called by the host to repaint the view when its input is refreshed.
    void Redraw() override;

    /// Keys pressed in the view, and those passed to it directly; they remain unaccepted.
    const std::vector<int>& GetKeys() const { return m_keys; }

    /// Called once, inside the next key press.
    void SetOnKey(std::function<void()> onKey) { m_onKey = std::move(onKey); }

    ModelView& GetCamera() { return m_modelView; }
    const std::vector<std::wstring>& GetTexts() const { return m_texts; }
    int GetRedrawCount() const { return m_redrawCount; }

    /// Called once, inside the next Redraw.
    void SetOnRedraw(std::function<void()> onRedraw) { m_onRedraw = std::move(onRedraw); }
    void SetHasModelView(bool hasModelView) { m_hasModelView = hasModelView; }
    void SetWindowId(WindowId windowId) { m_windowId = windowId; }

protected:
    void keyPressEvent(QKeyEvent* pEvent) override;

private:
    std::uint32_t m_id;
    WindowId m_windowId;
    mutable ModelView m_modelView;
    bool m_hasModelView = true;
    std::vector<std::wstring> m_texts;
    int m_redrawCount = 0;
    std::function<void()> m_onRedraw;
    std::vector<int> m_keys;
    std::function<void()> m_onKey;
};

}
