#include "Support/TestView.h"

#include <QKeyEvent>

#include <utility>

namespace vesk::test
{

TestView::TestView(std::uint32_t id, QWidget* pParent)
    : QWidget(pParent), m_id(id), m_windowId(winId())
{
    resize(400, 300);
    m_modelView.SetSize(400, 300);
    setFocusPolicy(Qt::StrongFocus);
}

void TestView::Redraw()
{
    ++m_redrawCount;
    if (const auto onRedraw = std::exchange(m_onRedraw, nullptr))
        onRedraw();
}

void TestView::keyPressEvent(QKeyEvent* pEvent)
{
    QWidget::keyPressEvent(pEvent);
    m_keys.push_back(pEvent->key());
    if (const auto onKey = std::exchange(m_onKey, nullptr))
        onKey();
}

}
