#include "WarningRaiser.h"

#include "Warnings/Check.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

using namespace vesk;

namespace
{

/// The site of a warning.
#define SKETCHER_SITE(function, message)                                                           \
    CheckSite                                                                                      \
    {                                                                                              \
        __FILE__, __LINE__, function, message, L"vesk-sketcher", L"2026-11-21"                     \
    }

void RaisePlain()
{
    Check(false, SKETCHER_SITE("WarningRaiser::RaisePlain", L"试验警告"));
}

void RaiseWhileShown()
{
    Check(false, SKETCHER_SITE("WarningRaiser::RaiseWhileShown", L"对话框打开时的试验警告"));
}

void RaiseInPaint()
{
    Check(false, SKETCHER_SITE("WarningRaiser::RaiseInPaint", L"绘制时的试验警告"));
}

void RaiseInThread()
{
    Check(false, SKETCHER_SITE("WarningRaiser::RaiseInThread", L"其他线程的试验警告"));
}

void RaiseInLoop()
{
    constexpr int Count = 10000;
    for (int i = 0; i < Count; ++i)
        Check(false, SKETCHER_SITE("WarningRaiser::RaiseInLoop", L"循环中的试验警告"));
}

}

const QStringList& WarningRaiser::GetKinds()
{
    static const QStringList s_kinds = {QStringLiteral("plain"), QStringLiteral("paint"),
                                        QStringLiteral("nested"), QStringLiteral("thread"),
                                        QStringLiteral("loop")};
    return s_kinds;
}

WarningRaiser::WarningRaiser(const QString& kind, QWidget& view) : m_kind(kind), m_view(view)
{
    QTimer::singleShot(0, this, &WarningRaiser::Raise);
}

WarningRaiser::~WarningRaiser()
{
    if (m_thread.joinable())
        m_thread.join();
}

bool WarningRaiser::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::Paint)
    {
        RaiseInPaint();
        m_view.update();
    }
    return QObject::eventFilter(pWatched, pEvent);
}

void WarningRaiser::Raise()
{
    constexpr int SomeTimeMs = 300;
    if (m_kind == QLatin1String("nested"))
        QTimer::singleShot(SomeTimeMs, this, &RaiseWhileShown);
    if (m_kind == QLatin1String("plain") || m_kind == QLatin1String("nested"))
        RaisePlain();
    else if (m_kind == QLatin1String("thread"))
        m_thread = std::thread(&RaiseInThread);
    else if (m_kind == QLatin1String("loop"))
        RaiseInLoop();
    else if (m_kind == QLatin1String("paint"))
    {
        m_view.installEventFilter(this);
        m_view.update();
    }
}
