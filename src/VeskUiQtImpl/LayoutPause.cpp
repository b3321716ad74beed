#include "VeskUiQtImpl/LayoutPause.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLayout>
#include <QMainWindow>

namespace vesk
{

LayoutPause::LayoutPause(QMainWindow* pWindow)
{
    if (pWindow == nullptr || !pWindow->isVisible() || !pWindow->layout()->isEnabled())
        return;
    m_pLayout = pWindow->layout();
    m_pLayout->setEnabled(false);
    m_isOn = true;
    // Only the filters of the application see an event before the layout of the window does.
    QCoreApplication::instance()->installEventFilter(this);
}

LayoutPause::~LayoutPause()
{
    End();
}

void LayoutPause::LayOut()
{
    End();
    if (m_pLayout != nullptr)
        m_pLayout->activate();
}

bool LayoutPause::eventFilter(QObject* pObject, QEvent* pEvent)
{
    const QEvent::Type type = pEvent->type();
    // A disabled layout would keep the item of a child that is gone.
    const bool matters =
        type == QEvent::ChildRemoved || type == QEvent::Resize || type == QEvent::LayoutRequest;
    if (matters && m_pLayout != nullptr && pObject == m_pLayout->parent())
        End();
    return false;
}

void LayoutPause::End()
{
    if (m_isOn && m_pLayout != nullptr)
        m_pLayout->setEnabled(true);
    m_isOn = false;
}

}
