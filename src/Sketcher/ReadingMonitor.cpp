#include "ReadingMonitor.h"

#include "Control/ProgressBarDefinition.h"

#include <QApplication>
#include <QDockWidget>
#include <QKeyEvent>
#include <QMainWindow>

#include <algorithm>

namespace
{

bool IsInput(QEvent::Type type)
{
    switch (type)
    {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

}

ReadingMonitor::ReadingMonitor(QMainWindow& window, vesk::ProgressBarDefinition* pProgress)
    : m_window(window), m_pProgress(pProgress)
{
    SetEnabled(false);
    if (m_pProgress != nullptr)
        m_pProgress->SetVisible(true);
    qApp->installEventFilter(this);
    m_sincePause.start();
}

ReadingMonitor::~ReadingMonitor()
{
    SetEnabled(true);
    if (m_pProgress != nullptr)
    {
        m_pProgress->SetVisible(false);
        m_pProgress->SetValue(0);
    }
    if (m_isClosePostponed)
        QMetaObject::invokeMethod(&m_window, &QWidget::close, Qt::QueuedConnection);
}

bool ReadingMonitor::Advance(std::size_t done, std::size_t total)
{
    constexpr qint64 LeastWorkMs = 50;
    constexpr qint64 MostWorkMs = 200;
    constexpr qint64 WorkByPause = 5;
    // The window gets a small part of the time, but never waits long.
    const qint64 workMs = std::clamp(WorkByPause * m_pauseMs, LeastWorkMs, MostWorkMs);
    if (m_isCancelled || m_sincePause.elapsed() < workMs)
        return !m_isCancelled;
    if (m_pProgress != nullptr)
        m_pProgress->SetValue(static_cast<int>(100 * done / total));
    m_sincePause.start();
    QApplication::processEvents();
    m_pauseMs = m_sincePause.restart();
    return !m_isCancelled;
}

bool ReadingMonitor::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    const QEvent::Type type = pEvent->type();
    // A warning may be shown meanwhile, and must be answered.
    const bool isInput = IsInput(type) && QApplication::activeModalWidget() == nullptr;
    const bool isEscape = isInput && type == QEvent::KeyPress &&
                          static_cast<QKeyEvent*>(pEvent)->key() == Qt::Key_Escape;
    const bool isClosing = type == QEvent::Close && pWatched == &m_window;
    m_isCancelled = m_isCancelled || isEscape || isClosing;
    if (!isClosing || !pEvent->spontaneous())
        return isInput || QObject::eventFilter(pWatched, pEvent);
    // A question about the drawing could not be answered now.
    m_isClosePostponed = true;
    pEvent->ignore();
    return true;
}

void ReadingMonitor::SetEnabled(bool isEnabled)
{
    m_window.menuWidget()->setEnabled(isEnabled);
    for (QDockWidget* pPane : m_window.findChildren<QDockWidget*>())
        pPane->setEnabled(isEnabled);
}
